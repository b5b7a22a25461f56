// SPDX-License-Identifier: MIT
#include "autohidetimer_p.h"

#include <guibase/docks/dockfocus.h>

#include <jtbase/qtimerhelpers.h>
#include <jtbase/windowsystem.h>

#include <QApplication>
#include <QCursor>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

namespace QMainWindowHelpers {

namespace {

/// Milliseconds, at least, until it is looked again whether something keeps a dock open.
constexpr int shortestWait = 50;

/// Whether a menu, list or dialog is open that belongs to the dock, or that may: their parents do
/// not tell from where menus and modal dialogs were opened.
bool hasOpenWindow(const QDockWidget& dock)
{
    if (QApplication::activePopupWidget() != nullptr ||
        QApplication::activeModalWidget() != nullptr)
        return true;
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.cbegin(), windows.cend(), [&dock](const QWidget* window) {
        const Qt::WindowType type = window->windowType();
        const bool counts = type == Qt::Dialog || type == Qt::Sheet;
        return counts && window->isVisible() && DockFocus::isInside(window, dock);
    });
}

} // namespace

AutoHideTimer::AutoHideTimer(QObject& owner, Hooks hooks)
    : m_owner(owner)
    , m_hooks(std::move(hooks))
{}

AutoHideTimer::~AutoHideTimer() = default;

void AutoHideTimer::setDelay(int milliseconds)
{
    m_delay = std::max(0, milliseconds);
}

bool AutoHideTimer::isUnderCursor(const QWidget& widget)
{
    return WindowSystem::tellsPointerEverywhere()
               ? widget.rect().contains(widget.mapFromGlobal(QCursor::pos()))
               : widget.underMouse();
}

void AutoHideTimer::start(QDockWidget& dock)
{
    const DockPointer guarded(&dock);
    const QPointer<QObject> alive(&m_owner);
    if (QDockWidget* former = stop())
        hide(*former);
    if (!alive || !guarded)
        return;
    m_pending = guarded;
    m_timer.start(m_delay, &m_owner);
}

QDockWidget* AutoHideTimer::stop()
{
    m_timer.stop();
    return std::exchange(m_pending, nullptr).get();
}

void AutoHideTimer::forget(const QObject* dock)
{
    m_waiting.remove(dock);
    if (m_pending == nullptr || m_pending == dock)
        stop();
}

void AutoHideTimer::hideOther(const QDockWidget& dock)
{
    QDockWidget* other = stop();
    if (other != nullptr && other != &dock)
        hide(*other);
}

void AutoHideTimer::hide(QDockWidget& dock)
{
    if (!dock.isVisible())
        return;
    if (hasOpenWindow(dock)) {
        hideLater(dock);
        return;
    }
    m_hooks.hides(dock);
    dock.hide();
}

void AutoHideTimer::hideLater(QDockWidget& dock)
{
    const QObject* key = &dock;
    if (m_waiting.contains(key))
        return;
    m_waiting.insert(key);
    QTimerHelpers::singleShot(
        std::max(m_delay, shortestWait), &m_owner,
        [this, key, guarded = DockPointer(&dock)] { finishWaiting(key, guarded); });
}

void AutoHideTimer::finishWaiting(const QObject* key, const DockPointer& dock)
{
    // Otherwise the user has come back to it, or it will be hidden in its turn.
    if (m_waiting.remove(key) && dock && m_hooks.isInMode(*dock) && !(m_pending == key) &&
        !isUnderCursor(*dock))
        hide(*dock);
}

bool AutoHideTimer::handle(const QTimerEvent& event)
{
    if (event.timerId() != m_timer.timerId())
        return false;
    QDockWidget* dock = stop();
    if (dock == nullptr)
        return true;
    // On a busy computer the mouse is back before the toolkit tells so.
    if (hasOpenWindow(*dock) || isUnderCursor(*dock) || m_hooks.isButtonUnderCursor(*dock)) {
        m_pending = dock;
        m_timer.start(std::max(m_delay, shortestWait), &m_owner);
    } else {
        hide(*dock);
    }
    return true;
}

} // namespace QMainWindowHelpers
