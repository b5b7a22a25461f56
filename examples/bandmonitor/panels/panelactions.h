// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QList>

class QAction;
class QString;
class QWidget;

namespace bandmonitor {

class WrappingRow;

/// A command of the panel. Its key works in the panel only; its tool tip names the key.
QAction* addPanelAction(QWidget* panel, const QString& text, const QKeySequence& key,
                        const QString& tip);

/// A row of text buttons for the commands, reached with Tab, behind these widgets.
WrappingRow* makeButtonRow(QWidget* panel, const QList<QAction*>& actions,
                           const QList<QWidget*>& before = {});

} // namespace bandmonitor
