// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

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

} // namespace RadioPanes
