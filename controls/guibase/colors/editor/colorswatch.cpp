// SPDX-License-Identifier: MIT
#include "colorswatch_p.h"

#include "drawnicon_p.h"

#include <QColor>
#include <QPainter>

QIcon colorSwatch(const QColor& color)
{
    constexpr int side = 13;
    return drawnIcon({side, side}, [color](QPainter& painter) {
        painter.setPen(Qt::black);
        if (color.isValid())
            painter.setBrush(color);
        painter.drawRect(0, 0, side - 1, side - 1);
    });
}
