// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <optional>

namespace bandmonitor {

/// Replaces the file by `text`, or leaves it as it is and tells why. Opened with QIODevice::Text,
/// lines end as on the platform.
std::optional<QString> writeTextFile(const QString& path, const QByteArray& text,
                                     QIODevice::OpenMode lineEnds = {});

} // namespace bandmonitor
