// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QAction;
class QKeySequence;
class QMenu;
class QString;

namespace bandmonitor::Keys {

/// Enters a command that its key reaches in the whole window in the overview of keys.
void listEverywhere(QAction* action);

/// A new entry of the menu, listed like that. The action belongs to the menu.
QAction* addEntry(QMenu& menu, const QString& text, const QKeySequence& key,
                  const std::function<void()>& perform);

/// Has the action's tool tip be `tip`, or its text when that is empty, and name the key, also one
/// that the operator chooses later.
void nameInToolTip(QAction* action, const QString& tip);

} // namespace bandmonitor::Keys
