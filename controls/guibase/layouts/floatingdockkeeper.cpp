// SPDX-License-Identifier: MIT
#include "floatingdockkeeper.h"

#include "widgetplacement.h"

#include <jtbase/qtimerhelpers.h>
#include <jtbase/windowsystem.h>

#include <QDockWidget>
#include <QEvent>
#include <QPointer>

FloatingDockKeeper::FloatingDockKeeper(QDockWidget& dock, Place place)
    : QObject(&dock)
    , m_dock(dock)
    , m_geometry(dock.geometry())
    , m_place(place)
{
    dock.installEventFilter(this);
    QTimerHelpers::singleShot(milliseconds, this, [this] { deleteLater(); });
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

void FloatingDockKeeper::putBack()
{
    const bool isKept = m_dock.isFloating() && !m_dock.isMaximized() && !m_dock.isMinimized();
    if (m_timesLeft == 0 || !isKept)
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
