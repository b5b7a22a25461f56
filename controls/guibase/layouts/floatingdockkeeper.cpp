// SPDX-License-Identifier: MIT
#include "floatingdockkeeper.h"

#include "widgetplacement.h"

#include <jtbase/qtimerhelpers.h>
#include <jtbase/windowsystem.h>

#include <QCoreApplication>
#include <QDockWidget>
#include <QPointer>
#include <QResizeEvent>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {
constexpr int lookMilliseconds = 100;
constexpr int scalingError = 2; // in pixels
} // namespace

FloatingDockKeeper::FloatingDockKeeper(QDockWidget& dock, Place place)
    : QObject(&dock)
    , m_dock(dock)
    , m_geometry(dock.geometry())
    , m_place(place)
{
    dock.installEventFilter(this);
    QTimerHelpers::singleShot(milliseconds, this, [this] { deleteLater(); });
    m_look.callOnTimeout(this, &FloatingDockKeeper::endForgottenState);
    m_look.start(lookMilliseconds);
}

void FloatingDockKeeper::keep(QDockWidget& dock, Place place)
{
    delete dock.findChild<FloatingDockKeeper*>(QString(), Qt::FindDirectChildrenOnly);
    if (WindowSystem::placesWindows())
        (new FloatingDockKeeper(dock, place))->putBack();
}

bool FloatingDockKeeper::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (event->spontaneous()) {
            QTimerHelpers::singleShot(0, this, [this] { putBack(); });
        } else if (!m_isPuttingBack) {
            // What the application itself does stays.
            m_geometry = m_dock.geometry();
            m_place = Place::AsItIs;
        }
        break;
    case QEvent::MouseButtonPress:
    case QEvent::NonClientAreaMouseButtonPress:
        m_timesLeft = 0;
        break;
    default:
        break;
    }
    return false;
}

bool FloatingDockKeeper::isKept() const
{
    return m_timesLeft > 0 && m_dock.isFloating() && !m_dock.isMaximized() && !m_dock.isMinimized();
}

/// The window has another size than the toolkit has told the dock: the window manager shows it
/// maximized, from a time before the dock became normal.
void FloatingDockKeeper::endForgottenState()
{
    QWindow* window = m_dock.windowHandle();
    const QSize missed = window != nullptr ? window->size() - m_dock.size() : QSize(0, 0);
    const bool isForgotten =
        m_timesLeft > 0 && m_dock.isFloating() && m_dock.isVisible() && !m_dock.isMinimized() &&
        std::max(std::abs(missed.width()), std::abs(missed.height())) > scalingError;
    // At the first look the answer may be on its way.
    if (!std::exchange(m_wasForgotten, isForgotten) || !isForgotten)
        return;
    --m_timesLeft;
    if (m_dock.isMaximized()) { // again by now
        QResizeEvent resize(window->size(), m_dock.size());
        QCoreApplication::sendEvent(window, &resize);
        return;
    }
    // The toolkit asks for the normal state only after one to be maximized.
    window->setWindowState(Qt::WindowMaximized);
    window->setWindowState(Qt::WindowNoState);
    window->setGeometry(m_dock.geometry());
}

void FloatingDockKeeper::putBack()
{
    if (!isKept())
        return;
    const QRect place = m_place == Place::OnScreen
                            ? WidgetPlacement::reachableGeometry(m_geometry, m_dock)
                            : m_geometry;
    if (m_dock.geometry() == place)
        return;
    --m_timesLeft;
    const QPointer<FloatingDockKeeper> guard(this);
    m_isPuttingBack = true;
    m_dock.setGeometry(place);
    if (guard)
        m_isPuttingBack = false;
}
