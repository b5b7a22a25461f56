// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QList>

class QAction;
class QHBoxLayout;
class QString;
class QWidget;

namespace bandmonitor {

/// A command of the pane, whose key works in the pane only and stands in its tool tip.
QAction* addPanelAction(QWidget* pane, const QString& text, const QKeySequence& key,
                        const QString& tip);

/// A row of text buttons for the commands, reached with Tab, aligned to the left.
QHBoxLayout* makeButtonRow(QWidget* pane, const QList<QAction*>& actions);

} // namespace bandmonitor
