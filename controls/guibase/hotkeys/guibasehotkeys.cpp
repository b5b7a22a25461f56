// SPDX-License-Identifier: MIT
// The members of GuiBase that deal with hot keys.
#include "hotkeyoverview.h"
#include "hotkeyregistry.h"
#include "keynames.h"

#include <guibase/services/guibase.h>
#include <guibase/services/guibase_p.h>

#include <QAction>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcutEvent>

#include <mutex>

int GuiBase::AddHotKey(Qt::Key key, int modifiers, QObject* receiver, const QString& comment,
                       const QString& scope, bool onPress, bool listed)
{
    if (receiver != nullptr && !d->hotKeys.hasReceiver(receiver))
        HotKeyRegistry::connectReceiver(*this, *receiver);
    HotKey hotKey;
    hotKey.registered = {key, modifiers};
    hotKey.receiver = receiver;
    hotKey.comment = comment;
    hotKey.scope = scope;
    hotKey.onPress = onPress;
    hotKey.listed = listed;
    return d->hotKeys.add(hotKey);
}

int GuiBase::GetIndex4HotKey(Qt::Key key, int modifiers)
{
    return d->hotKeys.indexOf({key, modifiers});
}

QString GuiBase::GetHotKeyComment(int id)
{
    const HotKey* hotKey = d->hotKeys.find(id);
    return hotKey != nullptr ? hotKey->comment : QString();
}

QString GuiBase::GetHotKeyScope(int id)
{
    const HotKey* hotKey = d->hotKeys.find(id);
    return hotKey != nullptr ? hotKey->scope : QString();
}

int GuiBase::RemoveHotKey(Qt::Key key, int modifiers)
{
    return d->hotKeys.unlist({key, modifiers});
}

void GuiBase::RemoveHotKey(int id, bool remove)
{
    d->hotKeys.setRemoved(id, remove);
}

void GuiBase::EnableHotKey(int id, bool enable)
{
    d->hotKeys.setEnabled(id, enable);
}

void GuiBase::RemoveHotKeyReceiver(QObject* receiver)
{
    if (receiver == nullptr || !d->hotKeys.hasReceiver(receiver))
        return;
    d->hotKeys.removeReceiver(receiver);
    disconnect(this, SIGNAL(signalHotKey(int)), receiver, SLOT(slotHotKey(int)));
}

void GuiBase::ChangeHotKey(int id, Qt::Key key, int modifiers)
{
    d->hotKeys.assign(id, {key, modifiers});
}

QString GuiBase::GetKeyAsString(Qt::Key key)
{
    return KeyNames::displayName(key);
}

void GuiBase::ShowHotKeyFrom(QAction* action, const QString& scope)
{
    if (action != nullptr)
        d->hotKeys.addAction(*action, scope);
}

int GuiBase::ShowHotKey(Qt::Key key, int modifiers, const QString& comment, const QString& scope)
{
    HotKey hotKey;
    hotKey.registered = {key, modifiers};
    hotKey.comment = comment;
    hotKey.scope = scope;
    hotKey.isShownOnly = true;
    return d->hotKeys.add(hotKey);
}

QKeyCombination GuiBase::GetHotKey(int id)
{
    const HotKey* hotKey = d->hotKeys.find(id);
    return hotKey != nullptr && hotKey->enabled ? hotKey->stroke.combination()
                                                : QKeyCombination::fromCombined(0);
}

QWidget* GuiBase::GetHotkeysCtrl(QWidget* parent)
{
    return HotKeyOverview::createList(d->hotKeys, parent);
}

void GuiBase::ExecHotKeysDialog(QWidget* parent)
{
    HotKeyOverview::exec(d->hotKeys, parent);
}

bool GuiBase::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && object == d->application) {
        d->followDesktopColors();
        return false;
    }
    if (event->type() == QEvent::Shortcut)
        return d->helpMenu.resolveAmbiguity(*static_cast<QShortcutEvent*>(event));
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const QKeyEvent& keyEvent = *static_cast<QKeyEvent*>(event);
    if (keyEvent.key() != Qt::Key_Escape && !d->hotKeys.isWatched(keyEvent.key()))
        return false;
    if (d->hotKeys.isRepeatedDelivery(object, keyEvent))
        return false;
    const QPointer<QObject> guard(object);
    const bool consumed = handleHotKeyEvent(object, event);
    // A handler may have run a loop with keys of its own, such as a message box.
    if (guard)
        d->hotKeys.noteDelivery(object, keyEvent);
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
