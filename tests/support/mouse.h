// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

/// Turns the wheel over the middle of the widget, by eighths of a degree; whether it was used.
inline bool turnWheel(QWidget& widget, int angle, Qt::KeyboardModifiers modifiers = {})
{
    const QPointF place = widget.rect().center();
    QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, angle}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

/// Moves the mouse to this place, with its left button held.
inline void dragMouse(QWidget& widget, QPoint to, Qt::KeyboardModifiers modifiers = {})
{
    QMouseEvent event(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                      modifiers);
    QCoreApplication::sendEvent(&widget, &event);
}
