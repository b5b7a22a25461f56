// SPDX-License-Identifier: MIT
#include "settings/keys.h"

#include <guibase/services/guibase.h>

#include <QAction>
#include <QMenu>

namespace bandmonitor::Keys {

void listEverywhere(QAction* action)
{
    // The library's name for it: such keys meet those of every panel.
    GuiBase::Instance().ShowHotKeyFrom(action, GuiBase::tr("Application Wide"));
}

QAction* addEntry(QMenu& menu, const QString& text, const QKeySequence& key,
                  const std::function<void()>& perform)
{
    QAction* action = menu.addAction(text);
    action->setShortcut(key);
    QObject::connect(action, &QAction::triggered, &menu, perform);
    listEverywhere(action);
    return action;
}

void nameInToolTip(QAction* action, const QString& tip)
{
    const auto refresh = [action, tip] {
        const QString text = tip.isEmpty() ? action->text().remove(QLatin1Char('&')) : tip;
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(key.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, key));
    };
    QObject::connect(action, &QAction::changed, action, refresh);
    refresh();
}

} // namespace bandmonitor::Keys
