// SPDX-License-Identifier: MIT
#include "dockframe_p.h"

#include <jtbase/windowsystem.h>

#include <QMouseEvent>
#include <QWindow>

namespace {

/// In pixels from the edge; where the toolkit shows the cursors for it.
constexpr int range = 4;

Qt::Edges edgesAt(const QPoint& position, const QRect& window)
{
    const QRect inside = window.adjusted(range + 1, range + 1, -range, -range);
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, position.x() < inside.left());
    edges.setFlag(Qt::RightEdge, position.x() > inside.right());
    edges.setFlag(Qt::TopEdge, position.y() < inside.top());
    edges.setFlag(Qt::BottomEdge, position.y() > inside.bottom());
    return edges;
}

} // namespace

bool DockFrame::beginResize(const QDockWidget& dock, const QMouseEvent& event)
{
    if (WindowSystem::placesWindows() || event.type() != QEvent::MouseButtonPress ||
        event.button() != Qt::LeftButton || !dock.isFloating() || dock.isMaximized())
        return false;
    const QPoint position = dock.mapFromGlobal(event.globalPosition().toPoint());
    const Qt::Edges edges = edgesAt(position, dock.rect());
    QWindow* window = dock.windowHandle();
    return edges && window != nullptr && window->startSystemResize(edges);
}
