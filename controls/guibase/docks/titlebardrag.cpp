// SPDX-License-Identifier: MIT
#include "titlebardrag_p.h"

#include "dockframe_p.h"

#include <jtbase/windowsystem.h>

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

TitleBarDrag::TitleBarDrag(QDockWidget& dock)
    : m_dock(&dock)
{}

bool TitleBarDrag::handle(const QMouseEvent& event)
{
    if (WindowSystem::placesWindows() || !m_dock)
        return false;
    const bool isLeft = event.button() == Qt::LeftButton;
    const QPoint position = event.globalPosition().toPoint();
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        if (DockFrame::beginResize(*m_dock, event))
            return true;
        if (isLeft && m_dock->features().testFlag(QDockWidget::DockWidgetMovable))
            m_pressedAt = position;
        return isLeft;
    case QEvent::MouseMove:
        if (m_pressedAt && event.buttons().testFlag(Qt::LeftButton) &&
            (position - *m_pressedAt).manhattanLength() >= QApplication::startDragDistance())
            begin();
        return true;
    case QEvent::MouseButtonRelease:
        m_pressedAt.reset();
        return isLeft;
    case QEvent::MouseButtonDblClick:
        m_pressedAt.reset();
        if (isLeft && m_dock->features().testFlag(QDockWidget::DockWidgetFloatable))
            m_dock->setFloating(!m_dock->isFloating());
        return isLeft;
    default:
        return false;
    }
}

void TitleBarDrag::begin()
{
    m_pressedAt.reset();
    if (!m_dock->isFloating()) {
        if (m_dock->features().testFlag(QDockWidget::DockWidgetFloatable))
            m_dock->setFloating(true);
    } else if (QWindow* window = m_dock->windowHandle()) {
        window->startSystemMove();
    }
}
