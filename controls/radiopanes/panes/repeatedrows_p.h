// SPDX-License-Identifier: MIT
#pragma once

class QImage;
class QPainter;
class QPoint;

namespace RadioPanes {

/// Rows of an image that follow one another.
struct ImageRows
{
    const QImage& image; ///< Format_RGB32
    int first;
    int count;
};

/// Draws each row `times` times, one below the other, from `place` on. The toolkit would scale the
/// image pixel by pixel, which takes six times as long; where the painter allows it, whole rows are
/// copied instead.
void drawRepeatedRows(QPainter& painter, const QPoint& place, const ImageRows& rows, int times);

} // namespace RadioPanes
