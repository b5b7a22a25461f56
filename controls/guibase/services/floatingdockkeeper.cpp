// SPDX-License-Identifier: MIT
#include "floatingdockkeeper_p.h"

#include "widgetplacement_p.h"

#include <jtbase/qtimerhelpers.h>

#include <QDockWidget>
#include <QEvent>

FloatingDockKeeper::FloatingDockKeeper(QDockWidget& dock)
    : QObject(&dock)
    , m_dock(dock)
    , m_geometry(dock.geometry())
{
    dock.installEventFilter(this);
    QTimerHelpers::singleShot(milliseconds, this, [this] { deleteLater(); });
}

void FloatingDockKeeper::keep(QDockWidget& dock)
{
    delete dock.findChild<FloatingDockKeeper*>(QString(), Qt::FindDirectChildrenOnly);
    (new FloatingDockKeeper(dock))->putBack();
}

bool FloatingDockKeeper::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        // What the application itself does stays.
        if (event->spontaneous())
            QTimerHelpers::singleShot(0, this, [this] { putBack(); });
        else
            m_geometry = m_dock.geometry();
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
    // Its frame may have come only now.
    const QRect place = WidgetPlacement::reachableGeometry(m_geometry, m_dock);
    if (m_dock.geometry() == place)
        return;
    --m_timesLeft;
    m_dock.setGeometry(place);
}
