// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

#include <array>
#include <span>
#include <vector>

namespace RadioPanes {

/// Draws background, grid and traces of a spectrum. It keeps the picture, and draws the next one
/// only where traces or shadow were or come to be, in tiles of eight columns: what is drawn in the
/// columns of a tile stays in vector registers from its first row to its last.
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
        std::span<const Line> lines; ///< Later ones cover earlier ones; `mostLines` at most.
    };
    static constexpr int mostLines = 4;

    /// The picture of that size, of the format RGB32. The spans of the lines and the shadow have
    /// its width. Valid until the next call.
    const QImage& draw(QSize size, const Content& content);
    /// What the last draw() has changed in the picture, with pixels between where that makes fewer
    /// rectangles. They may reach beyond its right edge.
    std::vector<QRect> changes() const;

    /// From the first row that is used up to, but without, the one after the last.
    struct Rows
    {
        int first = 0;
        int end = 0;

        Rows united(const Rows& other) const;
    };
    /// A row of the background, without and with shadow.
    struct RowColors
    {
        QRgb plain;
        QRgb shaded;
        bool isGrid; ///< There is a line of the grid in it.
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

    /// A line of the processor's cache.
    struct alignas(64) CacheLine
    {
        static constexpr std::size_t pixels = 16;
        std::array<QRgb, pixels> colors;
    };

    void takeGround(const Content& content);

    Ground m_ground;
    std::vector<CacheLine> m_memory; ///< Of the image.
    QImage m_image;
    std::vector<RowColors> m_rows;
    std::vector<Rows> m_drawn;   ///< In each tile: above is no shadow, below is nothing else.
    std::vector<Rows> m_changed; ///< In each tile, by the last call.
};

} // namespace RadioPanes
