// SPDX-License-Identifier: MIT
#pragma once

#include "hotkey.h"

#include <optional>

/// The keys that the operator has given to hot keys and shortcuts, in the configuration.
///
/// They stand under "HotKeys", the scope, and the comment with the registered key: "Ctrl+F7", or an
/// empty text for a hot key that has no key any more. A text that is no key counts as not there; it
/// is kept aside under its name followed by "_damaged".
namespace HotKeyAssignments {

/// Nothing when the operator has not changed the key.
std::optional<HotKeyStroke> read(const HotKey& hotKey);
/// Keeps the present key, or forgets it when it is the registered one.
void write(const HotKey& hotKey);

/// "Ctrl+F7"; empty for none.
QString text(const HotKeyStroke& stroke);
/// Nothing for a text that is no single key.
std::optional<HotKeyStroke> fromText(const QString& text);

} // namespace HotKeyAssignments
