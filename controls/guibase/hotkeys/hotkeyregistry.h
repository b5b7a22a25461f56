// SPDX-License-Identifier: MIT
#pragma once

#include "hotkey.h"

#include <QList>
#include <QMutex>
#include <QSet>

class GuiBase;
class QKeyEvent;

/// The hot keys of the application, in the order of their registration, and the shortcuts of
/// actions that are shown with them.
///
/// A key that the operator has changed is applied when its hot key is registered. Ids that were
/// never given change nothing.
class HotKeyRegistry
{
public:
    /// `hotKey.registered` is what the application gives; `id` and `stroke` are set here. Returns
    /// the id.
    int add(HotKey hotKey);
    /// Enters the action's first shortcut and its text, only to be shown; nothing without shortcut,
    /// and for an action that is there already under this scope. The shortcut becomes the one that
    /// the operator has chosen.
    void addAction(QAction& action, const QString& scope);
    bool hasReceiver(const QObject* receiver) const;

    /// -1 without an enabled hot key for exactly this key and these modifiers.
    int indexOf(const HotKeyStroke& stroke) const;
    /// Null for an id that was never given.
    const HotKey* find(int id) const;
    /// Takes every hot key with this key out of the overview; returns their number.
    int unlist(const HotKeyStroke& stroke);
    void setRemoved(int id, bool removed);
    void setEnabled(int id, bool enabled);
    /// The hot keys stay, without receiver.
    void removeReceiver(const QObject* receiver);

    /// The operator's choice, which is kept in the configuration.
    void assign(int id, const HotKeyStroke& stroke);

    /// The hot keys that the overview shows: each combination with the same texts once.
    QList<HotKey> shownHotKeys() const;
    /// Those of the shown hot keys that the same key fires too, in a scope that overlaps. Scopes
    /// overlap when they are equal, and when one is empty or the whole application.
    static QList<HotKey> conflicts(const HotKey& hotKey, const QList<HotKey>& shown);
    bool isEmpty() const { return m_hotKeys.isEmpty(); }

    /// Whether a hot key may fire with this key; a quick answer for all the keys that people type.
    bool isWatched(int key) const { return m_watchedKeys.contains(key); }
    /// The ids of the hot keys that the event fires, in their order.
    QList<int> matches(const QKeyEvent& event) const;
    /// Whether the event is one that was examined already: the toolkit offers one key event to a
    /// widget and then, until one accepts it, to the widgets around it.
    bool isRepeatedDelivery(const QObject* target, const QKeyEvent& event);
    /// The event is the one examined last: repeated deliveries are compared with it.
    void noteDelivery(const QObject* target, const QKeyEvent& event);

    /// Held while hot keys fire; a key event that arrives meanwhile is not examined.
    QMutex& mutex() { return m_mutex; }

    /// Makes the services' signalHotKey(int) call the receiver's slotHotKey(int), queued. A
    /// receiver without the slot is reported by a trace.
    static void connectReceiver(const GuiBase& services, const QObject& receiver);

private:
    struct Delivery
    {
        const QKeyEvent* event = nullptr;
        quint64 timestamp = 0;
        int type = 0;
        int key = 0;

        bool operator==(const Delivery&) const = default;
    };

    HotKey* entry(int id);
    /// The line as it is now: of an action, with the action's shortcut and text.
    static HotKey current(const HotKey& hotKey);

    QMutex m_mutex;
    QList<HotKey> m_hotKeys;
    QSet<int> m_watchedKeys; ///< Every key that a hot key has, or has had.
    Delivery m_lastDelivery;
    QPointer<const QObject> m_lastTarget;
};
