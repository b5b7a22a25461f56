// SPDX-License-Identifier: MIT
#include "menukeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

namespace bandmonitor {

MenuKeys::MenuKeys(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

MenuKeys::~MenuKeys() = default;

bool MenuKeys::eventFilter(QObject*, QEvent* event)
{
    // The toolkit asks the widget with the focus, not the menu, whether a key is a shortcut.
    if (event->type() != QEvent::ShortcutOverride ||
        qobject_cast<QMenu*>(QApplication::activePopupWidget()) == nullptr)
        return false;
    constexpr auto ofShortcuts = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (static_cast<const QKeyEvent*>(event)->modifiers() & ofShortcuts)
        return false;
    event->accept();
    return true;
}

} // namespace bandmonitor
