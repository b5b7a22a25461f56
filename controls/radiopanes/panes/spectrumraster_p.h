// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <span>
#include <vector>

namespace RadioPanes {

/// Draws background, grid and traces of a spectrum into an image, row by row: the pixels of a row
/// are neighbours in memory, those of a column are not.
class SpectrumRaster
{
public:
    /// A trace: in column `x` the pixels from `top[x]` down to `bottom[x]`; none when the bottom is
    /// above the top. May reach out of the image.
    struct Line
    {
        std::span<const int> top;
        std::span<const int> bottom;
        QRgb color = 0;
    };
    struct Content
    {
        QRgb backgroundTop = 0; ///< A gradient runs from it down to `backgroundBottom`.
        QRgb backgroundBottom = 0;
        QRgb grid = 0;
        std::span<const int> gridRows;    ///< Dotted, ascending.
        std::span<const int> gridColumns; ///< Dotted, ascending.
        std::span<const int> shadowTop;   ///< From there down all is tinted; empty for no shadow.
        QRgb shadow = 0;
        double shadowOpacity = 0;    ///< 0 to 1.
        std::span<const Line> lines; ///< Later ones cover earlier ones.
    };

    /// The image is of the format RGB32. The spans of the lines and the shadow have its width.
    static void draw(QImage& image, const Content& content);
};

} // namespace RadioPanes
