// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Bytes as the texts in which the configuration holds widget states.
namespace Hexadecimal {

/// Nothing for a text that holds anything but pairs of hexadecimal digits. An empty text is no
/// bytes.
std::optional<QByteArray> decode(const QString& text);
/// In lower-case digits.
QString encode(const QByteArray& bytes);

} // namespace Hexadecimal
