// SPDX-License-Identifier: MIT
#include "spectrumraster_p.h"

#include "mixedcolor_p.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <utility>

namespace RadioPanes {

namespace {

constexpr int dotDistance = 3;

/// Columns are looked at in tiles: those whose pixels stay as they are cost nothing.
constexpr int tileWidth = 16;

int tilesOf(int width)
{
    return (width + tileWidth - 1) / tileWidth;
}

using Rows = SpectrumRaster::Rows;

/// Tells the tiles that are used in each row, from the top to the bottom.
class TileRows
{
public:
    TileRows(std::span<const Rows> tiles, int height)
        : m_heads(static_cast<std::size_t>(height), none)
    {
        m_changes.reserve(2 * tiles.size());
        for (int tile = 0; tile < std::ssize(tiles); ++tile) {
            const Rows& rows = tiles[static_cast<std::size_t>(tile)];
            if (std::max(rows.first, 0) < std::min(rows.end, height)) {
                add(rows.first, tile, true);
                add(rows.end, tile, false);
            }
        }
    }

    /// To be called for one row after the other.
    void at(int row)
    {
        for (int next = m_heads[static_cast<std::size_t>(row)]; next != none;) {
            const Change& change = m_changes[static_cast<std::size_t>(next)];
            if (change.begins)
                m_within.push_back(change.tile);
            else
                std::erase(m_within, change.tile);
            next = change.next;
        }
    }
    /// The tiles used in that row, in any order.
    std::span<const int> within() const { return m_within; }

private:
    static constexpr int none = -1;

    struct Change
    {
        int tile;
        bool begins;
        int next; ///< In the same row.
    };

    void add(int row, int tile, bool begins)
    {
        if (row >= static_cast<int>(m_heads.size()))
            return;
        int& head = m_heads[static_cast<std::size_t>(std::max(row, 0))];
        m_changes.push_back({tile, begins, head});
        head = static_cast<int>(m_changes.size()) - 1;
    }

    std::vector<int> m_heads; ///< The first change in each row.
    std::vector<Change> m_changes;
    std::vector<int> m_within;
};

/// What a row is made of.
struct RowContent
{
    int y;
    QRgb plain;
    QRgb shaded;
    const int* shadowTop;
    std::span<const SpectrumRaster::Line> lines;

    QRgb pixel(int x) const
    {
        const auto column = static_cast<std::size_t>(x);
        QRgb color = y >= shadowTop[x] ? shaded : plain;
        for (const SpectrumRaster::Line& line : lines)
            color = y >= line.top[column] && y <= line.bottom[column] ? line.color : color;
        return color;
    }
};

#ifdef __GNUC__

/// Four pixels at a time: the compiler does not make such steps of loops with several conditions.
using Pixels = int __attribute__((vector_size(16)));
constexpr int pixelsAtOnce = sizeof(Pixels) / sizeof(int);

Pixels load(const int* columns)
{
    Pixels result;
    std::memcpy(&result, columns, sizeof(result));
    return result;
}

Pixels all(int value)
{
    return Pixels{} + value;
}

inline void drawTile(QRgb* row, int x, const RowContent& content)
{
    // Comparisons give all bits or none, so that a colour is chosen without a branch.
    std::array<Pixels, tileWidth / pixelsAtOnce> tile{};
    const Pixels y = all(content.y);
    const Pixels plain = all(static_cast<int>(content.plain));
    const Pixels shaded = all(static_cast<int>(content.shaded));
    const int* shadowTop = content.shadowTop + x;
    for (std::size_t i = 0; i < tile.size(); ++i)
        tile[i] = shaded ^ ((shaded ^ plain) & (load(shadowTop + i * pixelsAtOnce) > y));
    for (const SpectrumRaster::Line& line : content.lines) {
        const int* top = line.top.data() + x;
        const int* bottom = line.bottom.data() + x;
        const Pixels color = all(static_cast<int>(line.color));
        for (std::size_t i = 0; i < tile.size(); ++i) {
            const std::size_t at = i * pixelsAtOnce;
            const Pixels isOutside = (load(top + at) > y) | (y > load(bottom + at));
            tile[i] ^= ~isOutside & (tile[i] ^ color);
        }
    }
    for (std::size_t i = 0; i < tile.size(); ++i)
        std::memcpy(row + x + i * pixelsAtOnce, &tile[i], sizeof(Pixels));
}

#else

inline void drawTile(QRgb* row, int x, const RowContent& content)
{
    for (const int end = x + tileWidth; x < end; ++x)
        row[x] = content.pixel(x);
}

#endif

// The sanitizers do not know functions in several versions.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) &&                             \
    !defined(__SANITIZE_ADDRESS__)
#define RADIOPANES_VERSIONS __attribute__((target_clones("default", "avx2")))
#else
#define RADIOPANES_VERSIONS
#endif

RADIOPANES_VERSIONS void drawTiles(QRgb* row, int width, std::span<const int> tiles,
                                   const RowContent& content)
{
    for (const int tile : tiles) {
        int x = tile * tileWidth;
        if (x + tileWidth <= width) {
            drawTile(row, x, content);
            continue;
        }
        for (; x < width; ++x)
            row[x] = content.pixel(x);
    }
}

class Drawing
{
public:
    /// Draws where something is, and where something was before: in the rows `drawn` of the tiles,
    /// which become those of now.
    Drawing(QImage& image, const SpectrumRaster::Content& content,
            std::span<const std::pair<QRgb, QRgb>> rowColors, std::vector<Rows>& drawn)
        : m_image(image)
        , m_width(image.width())
        , m_content(content)
        , m_rowColors(rowColors)
        , m_shadowTop(content.shadowTop.begin(), content.shadowTop.end())
        , m_changed(takeChanges(drawn), image.height())
    {}

    void draw()
    {
        for (int y = m_first; y < m_end; ++y) {
            auto* row = reinterpret_cast<QRgb*>(m_bits + y * m_bytesPerLine);
            const auto [plain, shaded] = m_rowColors[static_cast<std::size_t>(y)];
            const RowContent content{y, plain, shaded, m_shadowTop.data(), m_content.lines};
            m_changed.at(y);
            drawTiles(row, m_width, m_changed.within(), content);
            drawGrid(row, content);
        }
    }

private:
    /// The rows that must be drawn in each tile.
    std::vector<Rows> takeChanges(std::vector<Rows>& drawn)
    {
        std::vector<Rows> used(drawn.size(), Rows{m_image.height(), 0});
        // The shadow also where it begins in one row: it may come to begin in another.
        if (!m_shadowTop.empty())
            unite(used, m_shadowTop, m_shadowTop, 0);
        else
            m_shadowTop.assign(static_cast<std::size_t>(m_width), m_image.height());
        for (const SpectrumRaster::Line& line : m_content.lines)
            unite(used, line.top, line.bottom, 1);
        std::vector<Rows> changed = std::exchange(drawn, used);
        for (std::size_t tile = 0; tile < changed.size(); ++tile) {
            Rows& rows = changed[tile];
            rows = {std::min(rows.first, used[tile].first), std::max(rows.end, used[tile].end)};
            m_first = std::min(m_first, std::max(rows.first, 0));
            m_end = std::max(m_end, std::min(rows.end, m_image.height()));
        }
        return changed;
    }

    /// Adds the rows from the first of `tops` to the last of `bottoms`, and `more`, to each tile.
    void unite(std::vector<Rows>& tiles, std::span<const int> tops, std::span<const int> bottoms,
               int more) const
    {
        for (std::size_t tile = 0; tile < tiles.size(); ++tile) {
            const std::size_t x = tile * tileWidth;
            const std::size_t end = std::min(x + tileWidth, tops.size());
            Rows rows = tiles[tile];
            for (std::size_t column = x; column < end; ++column) {
                rows.first = std::min(rows.first, tops[column]);
                rows.end = std::max(rows.end, bottoms[column] + more);
            }
            tiles[tile] = rows;
        }
    }

    /// Behind the lines. What was drawn before is drawn again alike.
    void drawGrid(QRgb* row, const RowContent& content)
    {
        const auto dot = [&](int x) {
            const auto isLine = [&, column = static_cast<std::size_t>(x)](const auto& line) {
                return content.y >= line.top[column] && content.y <= line.bottom[column];
            };
            if (std::ranges::none_of(content.lines, isLine))
                row[x] = content.y >= content.shadowTop[x] ? m_shadedGrid : m_content.grid;
        };
        const std::span<const int> rows = m_content.gridRows;
        while (m_gridRow < rows.size() && rows[m_gridRow] < content.y)
            ++m_gridRow;
        if (m_gridRow < rows.size() && rows[m_gridRow] == content.y) {
            for (int x = 0; x < m_width; x += dotDistance)
                dot(x);
        }
        if (content.y % dotDistance == 0)
            std::ranges::for_each(m_content.gridColumns, dot);
    }

    QImage& m_image;
    uchar* m_bits = m_image.bits();
    qsizetype m_bytesPerLine = m_image.bytesPerLine();
    int m_width;
    const SpectrumRaster::Content& m_content;
    std::span<const std::pair<QRgb, QRgb>> m_rowColors;
    QRgb m_shadedGrid = mixed(m_content.grid, m_content.shadow, m_content.shadowOpacity);
    std::vector<int> m_shadowTop;
    int m_first = std::numeric_limits<int>::max();
    int m_end = 0;
    TileRows m_changed;
    std::size_t m_gridRow = 0;
};

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

QImage& SpectrumRaster::draw(QSize size, const Content& content)
{
    const bool hasShadow = !content.shadowTop.empty();
    Ground ground{size,
                  content.backgroundTop,
                  content.backgroundBottom,
                  content.grid,
                  {content.gridRows.begin(), content.gridRows.end()},
                  {content.gridColumns.begin(), content.gridColumns.end()},
                  hasShadow,
                  content.shadow,
                  content.shadowOpacity};
    if (m_image.isNull() || ground != m_ground) {
        if (m_image.size() != size)
            m_image = QImage(size, QImage::Format_RGB32);
        m_ground = std::move(ground);
        m_rowColors.clear();
        for (int y = 0; y < size.height(); ++y) {
            const QRgb plain =
                mixed(content.backgroundTop, content.backgroundBottom, (y + 0.5) / size.height());
            m_rowColors.emplace_back(plain, mixed(plain, content.shadow, content.shadowOpacity));
        }
        m_drawn.assign(static_cast<std::size_t>(tilesOf(size.width())), {0, size.height()});
    }
    if (m_image.isNull())
        return m_image;
    clearVectorRegisters();
    Drawing(m_image, content, m_rowColors, m_drawn).draw();
    return m_image;
}

} // namespace RadioPanes
