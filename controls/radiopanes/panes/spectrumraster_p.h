// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <span>
#include <utility>
#include <vector>

namespace RadioPanes {

/// Draws background, grid and traces of a spectrum, row by row: the pixels of a row are neighbours
/// in memory, those of a column are not. It keeps the picture, and draws the next one only where
/// traces or shadow were or come to be.
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

    /// The picture of that size, of the format RGB32. The spans of the lines and the shadow have
    /// its width. Valid until the next call.
    QImage& draw(QSize size, const Content& content);

    /// From the first row that is used up to, but without, the one after the last.
    struct Rows
    {
        int first = 0;
        int end = 0;
    };

private:
    /// All that the pixels without line depend on, but where the shadow begins.
    struct Ground
    {
        QSize size;
        QRgb top = 0;
        QRgb bottom = 0;
        QRgb grid = 0;
        std::vector<int> gridRows;
        std::vector<int> gridColumns;
        bool hasShadow = false;
        QRgb shadow = 0;
        double shadowOpacity = 0;

        bool operator==(const Ground&) const = default;
    };

    Ground m_ground;
    QImage m_image;
    std::vector<std::pair<QRgb, QRgb>> m_rowColors; ///< Without and with shadow.
    std::vector<Rows> m_drawn; ///< In each tile: above is no shadow, below is nothing else.
};

} // namespace RadioPanes
