// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMutex>
#include <QObject>
#include <QPointer>
#include <QString>

class GuiBase;
class QAction;
class QKeyEvent;

/// One line of the hot-key registry.
struct HotKey
{
    Qt::Key key = Qt::Key_unknown;
    int modifiers = 0; ///< Qt::KeyboardModifiers.
    QPointer<QObject> receiver;
    QString comment;
    QString scope;
    int id = 0; ///< From 1, in the order of registration; never used again.
    bool onPress = false;
    bool listed = true;  ///< Shown in the overview.
    bool enabled = true; ///< Takes part in matching.
    /// Belongs to an action, which handles its shortcut itself: shown, but never matched.
    bool shownOnly = false;
};

/// The hot keys of the application, in the order of their registration.
class HotKeyRegistry
{
public:
    /// `hotKey.id` is given here and returned.
    int add(HotKey hotKey);
    /// Enters the action's first shortcut and its text, only to be shown; nothing without shortcut.
    void addAction(const QAction& action, const QString& scope);
    bool hasReceiver(const QObject* receiver) const;
    /// The hot keys that the overview shows: each combination with the same texts once.
    QList<HotKey> shownHotKeys() const;
    /// The ids of the hot keys that the event fires, in their order.
    QList<int> matches(const QKeyEvent& event) const;

    /// Whether the event is one that was examined already: the toolkit offers one key event to a
    /// widget and then, until one accepts it, to the widgets around it.
    bool isRepeatedDelivery(const QObject* target, const QKeyEvent& event);

    /// Held while hot keys fire; a key event that arrives meanwhile is not examined.
    QMutex& mutex() { return m_mutex; }

    /// Makes the services' signalHotKey(int) call the receiver's slotHotKey(int), queued. A receiver
    /// without the slot is reported by a trace.
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

    QMutex m_mutex;
    QList<HotKey> m_hotKeys;
    Delivery m_lastDelivery;
    QPointer<const QObject> m_lastTarget;
};
