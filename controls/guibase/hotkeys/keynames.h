// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QtCore/qnamespace.h>

#include <optional>

/// What keys are called on the screen: all printable keys of Latin-1 (32 to 255) and the named
/// ones, such as "F1" or "Escape".
namespace KeyNames {

/// The name of the key, translated where it is a word; "unknown" for a key without one.
QString displayName(Qt::Key key);
bool hasName(Qt::Key key);
/// The key with this name, translated or not, in any case, or the key that types this character.
std::optional<Qt::Key> keyOf(const QString& text);
/// Whether the key does nothing by itself, like Shift or Caps Lock.
bool isModifier(Qt::Key key);
/// The names of all keys that have one.
QStringList displayNames();

} // namespace KeyNames
