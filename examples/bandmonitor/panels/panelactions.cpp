// SPDX-License-Identifier: MIT
#include "panels/panelactions.h"

#include "panels/wrappingrow.h"
#include "settings/keys.h"

#include <QAction>
#include <QToolButton>

namespace bandmonitor {

QAction* addPanelAction(QWidget* panel, const QString& text, const QKeySequence& key,
                        const QString& tip)
{
    auto* action = new QAction(text, panel);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    Keys::nameInToolTip(action, tip);
    panel->addAction(action);
    return action;
}

WrappingRow* makeButtonRow(QWidget* panel, const QList<QAction*>& actions,
                           const QList<QWidget*>& before)
{
    auto* row = new WrappingRow;
    for (QWidget* widget : before)
        row->addWidget(widget);
    for (QAction* action : actions) {
        auto* button = new QToolButton(panel);
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
    }
    return row;
}

} // namespace bandmonitor
