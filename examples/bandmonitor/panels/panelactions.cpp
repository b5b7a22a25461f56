// SPDX-License-Identifier: MIT
#include "panels/panelactions.h"

#include "settings/keys.h"

#include <QAction>
#include <QHBoxLayout>
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

QHBoxLayout* makeButtonRow(QWidget* panel, const QList<QAction*>& actions)
{
    auto* row = new QHBoxLayout;
    for (QAction* action : actions) {
        auto* button = new QToolButton(panel);
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
    }
    row->addStretch(1);
    return row;
}

} // namespace bandmonitor
