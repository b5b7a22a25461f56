// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QWidget>

namespace RadioPanes {

/// Paints a pane. Axes go from left to right in every language, so numbers keep their sign in front
/// and labels their side.
class PanePainter : public QPainter
{
public:
    explicit PanePainter(QWidget* pane)
        : QPainter(pane)
    {
        setLayoutDirection(Qt::LeftToRight);
    }
};

/// Of a pane that has the focus; nothing otherwise.
inline void paintFocusFrame(QPainter& painter, const QWidget& pane)
{
    if (!pane.hasFocus())
        return;
    painter.setPen(pane.palette().color(QPalette::Highlight));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(pane.rect().adjusted(0, 0, -1, -1));
}

} // namespace RadioPanes
