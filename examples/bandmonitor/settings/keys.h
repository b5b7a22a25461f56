// SPDX-License-Identifier: MIT
#pragma once

class QAction;
class QString;

namespace bandmonitor::Keys {

/// Enters a command that its key reaches in the whole window in the overview of keys.
void listEverywhere(QAction* action);

/// Has the action's tool tip be `tip`, or its text when that is empty, and name the key, also one
/// that the operator chooses later.
void nameInToolTip(QAction* action, const QString& tip);

} // namespace bandmonitor::Keys
