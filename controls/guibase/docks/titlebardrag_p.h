// SPDX-License-Identifier: MIT
#pragma once

#include "dockpointer.h"

#include <QPoint>

#include <optional>

class QMouseEvent;

/// Moves a dock by its title bar where programs cannot move their windows: a floating dock is
/// handed to the window system, a docked one that is dragged floats, and a double click lets it
/// float or dock. Elsewhere the toolkit does all that, and this does nothing.
class TitleBarDrag
{
public:
    explicit TitleBarDrag(QDockWidget& dock);

    /// For the mouse events of the bar. True when the event is done with.
    bool handle(const QMouseEvent& event);

private:
    void begin();

    DockPointer m_dock;
    std::optional<QPoint> m_pressedAt; ///< On the screen; the left button is still down.
};
