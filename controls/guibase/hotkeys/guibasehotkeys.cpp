// SPDX-License-Identifier: MIT
// The members of GuiBase that deal with hot keys.
#include "hotkeyoverview.h"
#include "hotkeyregistry.h"

#include <guibase/services/guibase.h>
#include <guibase/services/guibase_p.h>

#include <QAction>
#include <QKeyEvent>
#include <QPointer>

#include <mutex>

int GuiBase::AddHotKey(Qt::Key key, int modifiers, QObject* receiver, const QString& comment,
                       const QString& scope, bool onPress, bool listed)
{
    if (receiver != nullptr && !d->hotKeys.hasReceiver(receiver))
        HotKeyRegistry::connectReceiver(*this, *receiver);
    HotKey hotKey;
    hotKey.key = key;
    hotKey.modifiers = modifiers;
    hotKey.receiver = receiver;
    hotKey.comment = comment;
    hotKey.scope = scope;
    hotKey.onPress = onPress;
    hotKey.listed = listed;
    return d->hotKeys.add(hotKey);
}

void GuiBase::ShowHotKeyFrom(QAction* action, const QString& scope)
{
    if (action != nullptr)
        d->hotKeys.addAction(*action, scope);
}

void GuiBase::ExecHotKeysDialog(QWidget* parent)
{
    HotKeyOverview::exec(d->hotKeys.shownHotKeys(), parent);
}

bool GuiBase::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    if (d->hotKeys.isRepeatedDelivery(object, *static_cast<QKeyEvent*>(event)))
        return false;
    const QPointer<QObject> guard(object);
    const bool consumed = handleHotKeyEvent(object, event);
    // A handler may have deleted the object: the toolkit must not deliver the event to it then.
    return consumed || !guard;
}

bool GuiBase::handleHotKeyEvent(QObject*, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    // Handlers may run an event loop; keys that arrive meanwhile fire nothing.
    const std::unique_lock lock(d->hotKeys.mutex(), std::try_to_lock);
    if (!lock)
        return false;
    const QKeyEvent& keyEvent = *static_cast<QKeyEvent*>(event);
    const int key = keyEvent.key();
    if (event->type() == QEvent::KeyPress && key == Qt::Key_Escape &&
        keyEvent.modifiers() == Qt::NoModifier) {
        Q_EMIT hotkey_ESC_pressed();
    }
    const QList<int> ids = d->hotKeys.matches(keyEvent);
    for (const int id : ids)
        Q_EMIT signalHotKey(id);
    return !ids.isEmpty() && (key == Qt::Key_F10 || key == Qt::Key_F12);
}
