// SPDX-License-Identifier: MIT
#include "colorswatch_p.h"

#include <QColor>
#include <QPainter>

QPixmap colorSwatch(const QColor& color)
{
    constexpr int size = 13;
    QPixmap swatch(size, size);
    swatch.fill(color.isValid() ? color : QColor(Qt::transparent));
    QPainter painter(&swatch);
    painter.setPen(Qt::black);
    painter.drawRect(0, 0, size - 1, size - 1);
    return swatch;
}
