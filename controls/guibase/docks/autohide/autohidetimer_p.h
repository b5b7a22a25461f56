// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/docks/dockpointer.h>

#include <QBasicTimer>
#include <QSet>

#include <functional>

class QTimerEvent;

namespace QMainWindowHelpers {

/// Decides when a dock that was shown in auto-hide mode hides again: a while after the mouse has
/// left it and its button, but not while a menu, list or dialog of its own is open.
class AutoHideTimer
{
public:
    struct Hooks
    {
        std::function<bool(const QDockWidget&)> isInMode;
        std::function<bool(const QDockWidget&)> isButtonUnderCursor;
        /// Called right before a dock is hidden.
        std::function<void(QDockWidget&)> hides;
    };

    /// The owner receives the timer events, and hands them to handle().
    AutoHideTimer(QObject& owner, Hooks hooks);
    ~AutoHideTimer();
    Q_DISABLE_COPY_MOVE(AutoHideTimer)

    /// Milliseconds, 0 or more.
    void setDelay(int milliseconds);
    int delay() const { return m_delay; }

    /// Hides the pending dock at once and lets this one be hidden after the delay.
    void start(QDockWidget& dock);
    /// The dock that was pending, or null.
    QDockWidget* stop();
    /// Stops when this dock is pending, and when the pending one is dead.
    void forget(const QObject* dock);
    /// Hides the pending dock unless it is this one.
    void hideOther(const QDockWidget& dock);
    /// Hides the dock, or does so later if something of its own is open.
    void hide(QDockWidget& dock);
    /// False for the events of other timers.
    bool handle(const QTimerEvent& event);

    static bool isUnderCursor(const QWidget& widget);

private:
    void hideLater(QDockWidget& dock);
    void finishWaiting(const QObject* key, const DockPointer& dock);

    QObject& m_owner;
    const Hooks m_hooks;
    int m_delay = 500;
    QBasicTimer m_timer;
    DockPointer m_pending;
    QSet<const QObject*> m_waiting; ///< Docks that hide once what they have open is closed.
};

} // namespace QMainWindowHelpers
