// SPDX-License-Identifier: MIT
#include "spectrumraster_p.h"

#include "mixedcolor_p.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <utility>

// The sanitizers do not know functions in several versions.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) &&                             \
    !defined(__SANITIZE_ADDRESS__)
#define RADIOPANES_VERSIONS __attribute__((target_clones("default", "avx2")))
#else
#define RADIOPANES_VERSIONS
#endif

namespace RadioPanes {

namespace {

constexpr int dotDistance = 3;
constexpr int tileWidth = 8;

using Rows = SpectrumRaster::Rows;
using RowColors = SpectrumRaster::RowColors;

/// What is drawn in the columns of a tile.
struct Tile
{
    /// A number for each column.
    using Columns = std::array<int, tileWidth>;
    struct Line
    {
        Columns top;
        Columns bottom;
        QRgb color;
    };

    int x;
    std::size_t lineCount;
    std::array<Line, SpectrumRaster::mostLines> lines;
    Columns shadowTop;
    Columns rowDots;    ///< All bits where lines of the grid along rows have their dots, or none.
    Columns columnDots; ///< The same of lines along columns.
    bool hasColumnDots;
};

/// What is behind the traces.
struct Background
{
    std::span<const RowColors> rows;
    QRgb grid;
    QRgb shadedGrid;
};

#ifdef __GNUC__

/// All columns of a tile at a time: the compiler does not make such steps of loops with several
/// conditions. Comparisons give all bits or none, so that a colour is chosen without a branch.
using Lanes = int __attribute__((vector_size(tileWidth * sizeof(int))));

inline __attribute__((always_inline)) void load(Lanes& lanes, const Tile::Columns& columns)
{
    std::memcpy(&lanes, columns.data(), sizeof(lanes));
}

inline __attribute__((always_inline)) void drawTile(const Tile& tile, const Background& background,
                                                    Rows rows, uchar* pixels,
                                                    std::ptrdiff_t bytesPerLine)
{
    const auto all = [](Lanes& lanes, QRgb color) { lanes = Lanes{} + static_cast<int>(color); };
    Lanes shadowTop, grid, shadedGrid;
    load(shadowTop, tile.shadowTop);
    all(grid, background.grid);
    all(shadedGrid, background.shadedGrid);
    struct LineLanes
    {
        Lanes top;
        Lanes bottom;
        Lanes color;
    };
    std::array<LineLanes, SpectrumRaster::mostLines> lines;
    for (std::size_t i = 0; i < tile.lineCount; ++i) {
        load(lines[i].top, tile.lines[i].top);
        load(lines[i].bottom, tile.lines[i].bottom);
        all(lines[i].color, tile.lines[i].color);
    }
    for (int y = rows.first; y < rows.end; ++y) {
        const RowColors& colors = background.rows[static_cast<std::size_t>(y)];
        const Lanes row = Lanes{} + y;
        Lanes plain, shaded;
        all(plain, colors.plain);
        all(shaded, colors.shaded);
        const bool hasColumnDots = tile.hasColumnDots && y % dotDistance == 0;
        if (hasColumnDots || colors.isGrid) [[unlikely]] {
            Lanes rowDots{}, columnDots{};
            if (colors.isGrid)
                load(rowDots, tile.rowDots);
            if (hasColumnDots)
                load(columnDots, tile.columnDots);
            plain ^= (plain ^ grid) & (rowDots | columnDots);
            shaded ^= (shaded ^ shadedGrid) & (rowDots | columnDots);
        }
        Lanes result = shaded ^ ((shaded ^ plain) & (shadowTop > row));
        for (std::size_t i = 0; i < tile.lineCount; ++i) {
            const Lanes isOutside = (lines[i].top > row) | (row > lines[i].bottom);
            result = lines[i].color ^ ((lines[i].color ^ result) & isOutside);
        }
        std::memcpy(pixels + y * bytesPerLine, &result, sizeof(result));
    }
}

#else

void drawTile(const Tile& tile, const Background& background, Rows rows, uchar* pixels,
              std::ptrdiff_t bytesPerLine)
{
    for (int y = rows.first; y < rows.end; ++y) {
        const RowColors& colors = background.rows[static_cast<std::size_t>(y)];
        auto* pixel = reinterpret_cast<QRgb*>(pixels + y * bytesPerLine);
        for (std::size_t column = 0; column < tileWidth; ++column) {
            const bool isShaded = y >= tile.shadowTop[column];
            const bool isDot = (colors.isGrid && tile.rowDots[column]) ||
                               (y % dotDistance == 0 && tile.columnDots[column]);
            QRgb color = isDot      ? isShaded ? background.shadedGrid : background.grid
                         : isShaded ? colors.shaded
                                    : colors.plain;
            for (std::size_t i = 0; i < tile.lineCount; ++i) {
                const Tile::Line& line = tile.lines[i];
                color = y >= line.top[column] && y <= line.bottom[column] ? line.color : color;
            }
            pixel[column] = color;
        }
    }
}

#endif

/// The tiles of a content, from left to right.
class Tiles
{
public:
    explicit Tiles(const SpectrumRaster::Content& content, int width)
        : m_content(content)
        , m_width(width)
    {
        m_tile.x = -tileWidth;
        m_tile.lineCount = content.lines.size();
        for (std::size_t i = 0; i < m_tile.lineCount; ++i)
            m_tile.lines[i].color = content.lines[i].color;
    }

    /// False after the last one.
    bool next()
    {
        m_tile.x += tileWidth;
        if (m_tile.x >= m_width)
            return false;
        take(m_tile.shadowTop, m_content.shadowTop, std::numeric_limits<int>::max());
        for (std::size_t i = 0; i < m_tile.lineCount; ++i) {
            take(m_tile.lines[i].top, m_content.lines[i].top, std::numeric_limits<int>::max());
            take(m_tile.lines[i].bottom, m_content.lines[i].bottom, -1);
        }
        for (int column = 0; column < tileWidth; ++column)
            m_tile.rowDots[static_cast<std::size_t>(column)] =
                (m_tile.x + column) % dotDistance == 0 ? -1 : 0;
        takeColumnDots();
        return true;
    }
    const Tile& tile() const { return m_tile; }
    /// The rows that anything is drawn in.
    Rows rows() const
    {
        Rows rows{std::numeric_limits<int>::max(), 0};
        if (!m_content.shadowTop.empty())
            rows = {std::ranges::min(m_tile.shadowTop), std::ranges::max(m_tile.shadowTop)};
        for (std::size_t i = 0; i < m_tile.lineCount; ++i) {
            const Tile::Line& line = m_tile.lines[i];
            rows = rows.united({std::ranges::min(line.top), std::ranges::max(line.bottom) + 1});
        }
        return rows;
    }

private:
    void take(Tile::Columns& columns, std::span<const int> all, int nothing) const
    {
        const auto x = static_cast<std::size_t>(m_tile.x);
        const std::size_t count = std::min(all.size() - std::min(x, all.size()), columns.size());
        if (count < columns.size())
            columns.fill(nothing);
        std::copy_n(all.begin() + std::min(m_tile.x, static_cast<int>(all.size())), count,
                    columns.begin());
    }
    void takeColumnDots()
    {
        const std::span<const int> grid = m_content.gridColumns;
        m_tile.hasColumnDots = false;
        m_tile.columnDots = {};
        for (; m_gridColumn < grid.size() && grid[m_gridColumn] < m_tile.x + tileWidth;
             ++m_gridColumn) {
            m_tile.columnDots[static_cast<std::size_t>(grid[m_gridColumn] - m_tile.x)] = -1;
            m_tile.hasColumnDots = true;
        }
    }

    const SpectrumRaster::Content& m_content;
    int m_width;
    std::size_t m_gridColumn = 0;
    Tile m_tile;
};

/// Draws where something is, and where something was before: in the rows `drawn` of each tile,
/// which become those of now. Leaves in `changed` where that was.
RADIOPANES_VERSIONS void drawTiles(const SpectrumRaster::Content& content,
                                   const Background& background, int width, uchar* pixels,
                                   std::ptrdiff_t bytesPerLine, std::span<Rows> drawn,
                                   std::span<Rows> changed)
{
    const int height = static_cast<int>(background.rows.size());
    Tiles tiles(content, width);
    for (std::size_t number = 0; tiles.next(); ++number) {
        const Tile& tile = tiles.tile();
        const Rows used = tiles.rows();
        Rows& rows = changed[number];
        rows = std::exchange(drawn[number], used).united(used);
        rows = {std::max(rows.first, 0), std::min(rows.end, height)};
        drawTile(tile, background, rows, pixels + tile.x * std::ptrdiff_t{sizeof(QRgb)},
                 bytesPerLine);
    }
}

qint64 area(const QRect& rect)
{
    return qint64(rect.width()) * rect.height();
}

/// Unites neighbours as long as that adds fewer pixels than a rectangle is worth.
std::vector<QRect> united(std::vector<QRect> rects)
{
    constexpr qint64 worth = 40'000; // what is copied in the time that a rectangle takes
    while (rects.size() > 1) {
        std::size_t best = 0;
        qint64 least = std::numeric_limits<qint64>::max();
        for (std::size_t i = 0; i + 1 < rects.size(); ++i) {
            const qint64 added =
                area(rects[i].united(rects[i + 1])) - area(rects[i]) - area(rects[i + 1]);
            if (added < least) {
                least = added;
                best = i;
            }
        }
        if (least > worth)
            break;
        rects[best] = rects[best].united(rects[best + 1]);
        rects.erase(rects.begin() + static_cast<std::ptrdiff_t>(best) + 1);
    }
    return rects;
}

/// The toolkit's painting can leave the upper halves of the vector registers in use; narrower
/// vector code is up to twice as slow until they are cleared.
void clearVectorRegisters()
{
#if defined(__GNUC__) && defined(__x86_64__)
    if (__builtin_cpu_supports("avx"))
        asm volatile("vzeroupper");
#endif
}

} // namespace

Rows Rows::united(const Rows& other) const
{
    return {std::min(first, other.first), std::max(end, other.end)};
}

void SpectrumRaster::takeGround(const Content& content)
{
    const int width = m_ground.size.width();
    const int height = m_ground.size.height();
    const std::size_t rowLines =
        (static_cast<std::size_t>(width) + CacheLine::pixels - 1) / CacheLine::pixels;
    m_memory.resize(rowLines * static_cast<std::size_t>(height));
    m_image = QImage(reinterpret_cast<uchar*>(m_memory.data()), width, height,
                     static_cast<qsizetype>(rowLines * sizeof(CacheLine)), QImage::Format_RGB32);
    m_rows.clear();
    for (int y = 0; y < height; ++y) {
        const QRgb plain =
            mixed(content.backgroundTop, content.backgroundBottom, (y + 0.5) / height);
        m_rows.push_back({plain, mixed(plain, content.shadow, content.shadowOpacity), false});
    }
    for (const int row : content.gridRows) {
        if (row >= 0 && row < height)
            m_rows[static_cast<std::size_t>(row)].isGrid = true;
    }
    const auto tiles = static_cast<std::size_t>((width + tileWidth - 1) / tileWidth);
    m_drawn.assign(tiles, {0, height});
    m_changed.resize(tiles);
}

const QImage& SpectrumRaster::draw(QSize size, const Content& content)
{
    Ground ground{size,
                  content.backgroundTop,
                  content.backgroundBottom,
                  content.grid,
                  {content.gridRows.begin(), content.gridRows.end()},
                  {content.gridColumns.begin(), content.gridColumns.end()},
                  !content.shadowTop.empty(),
                  content.shadow,
                  content.shadowOpacity};
    if (size.isEmpty())
        ground.size = {};
    if (ground != m_ground) {
        m_ground = std::move(ground);
        takeGround(content);
    }
    if (m_ground.size.isEmpty())
        return m_image;
    clearVectorRegisters();
    const Background background{m_rows, content.grid,
                                mixed(content.grid, content.shadow, content.shadowOpacity)};
    drawTiles(content, background, size.width(), reinterpret_cast<uchar*>(m_memory.data()),
              m_image.bytesPerLine(), m_drawn, m_changed);
    return m_image;
}

std::vector<QRect> SpectrumRaster::changes() const
{
    constexpr std::size_t tilesTogether = 8;
    std::vector<QRect> result;
    for (std::size_t first = 0; first < m_changed.size(); first += tilesTogether) {
        const std::size_t count = std::min(tilesTogether, m_changed.size() - first);
        Rows rows{m_ground.size.height(), 0};
        for (const Rows& tile : std::span(m_changed).subspan(first, count))
            rows = rows.united(tile);
        if (rows.first < rows.end)
            result.emplace_back(static_cast<int>(first) * tileWidth, rows.first,
                                static_cast<int>(count) * tileWidth, rows.end - rows.first);
    }
    return united(std::move(result));
}

} // namespace RadioPanes
