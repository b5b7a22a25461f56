// SPDX-License-Identifier: MIT
#include "spectrumraster_p.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cwchar>
#include <type_traits>

namespace RadioPanes {

namespace {

constexpr int dotDistance = 3;

QRgb mixed(QRgb from, QRgb to, double share)
{
    const auto mix = [share](int a, int b) {
        return static_cast<int>(std::lround(a + share * (b - a)));
    };
    return qRgb(mix(qRed(from), qRed(to)), mix(qGreen(from), qGreen(to)),
                mix(qBlue(from), qBlue(to)));
}

/// As std::fill_n(), faster for long runs: the C library has a version for each processor.
void fill(QRgb* pixels, int count, QRgb color)
{
    if constexpr (sizeof(wchar_t) == sizeof(QRgb))
        std::wmemset(reinterpret_cast<wchar_t*>(pixels), static_cast<wchar_t>(color),
                     static_cast<std::size_t>(count));
    else
        std::fill_n(pixels, count, color);
}

/// Columns are looked at in tiles: in most rows the pixels of a tile are all of one kind.
constexpr int tileWidth = 16;

/// Does `use(x, width)` for a tile; the width is a constant in all tiles but the last one, so that
/// the compiler makes one step of several pixels.
template <typename Use>
void forTile(int tile, int imageWidth, Use use)
{
    const int x = tile * tileWidth;
    if (x + tileWidth <= imageWidth)
        use(x, std::integral_constant<int, tileWidth>());
    else
        use(x, imageWidth - x);
}

/// Which of three kinds each tile has in the rows from top to bottom: `Before` up to its first row,
/// then `Within`, then `Behind` from its last row on.
class TileKinds
{
public:
    enum Kind : std::uint8_t { Before, Within, Behind };

    /// `first(tile)` and `last(tile)` tell the rows.
    template <typename First, typename Last>
    TileKinds(int tiles, int height, First first, Last last)
        : m_kinds(static_cast<std::size_t>(tiles), Before)
        , m_heads(static_cast<std::size_t>(height), none)
    {
        m_changes.reserve(2 * m_kinds.size());
        for (int tile = 0; tile < tiles; ++tile) {
            const int firstRow = first(tile);
            // In reverse: the last one that is added to a row is done first.
            add(std::max(last(tile), firstRow), tile, Behind);
            add(firstRow, tile, Within);
        }
    }

    /// The kinds in this row; to be asked for one row after the other.
    std::span<const Kind> at(int row)
    {
        for (int next = m_heads[static_cast<std::size_t>(row)]; next != none;) {
            const Change& change = m_changes[static_cast<std::size_t>(next)];
            Kind& kind = m_kinds[static_cast<std::size_t>(change.tile)];
            if (kind == Within)
                std::erase(m_within, change.tile);
            if (change.kind == Within)
                m_within.push_back(change.tile);
            kind = change.kind;
            next = change.next;
        }
        return m_kinds;
    }
    /// The tiles of the kind Within in that row, in any order.
    std::span<const int> within() const { return m_within; }

private:
    static constexpr int none = -1;

    struct Change
    {
        int tile;
        Kind kind;
        int next; ///< In the same row.
    };

    void add(int row, int tile, Kind kind)
    {
        if (row >= static_cast<int>(m_heads.size()))
            return;
        int& head = m_heads[static_cast<std::size_t>(std::max(row, 0))];
        m_changes.push_back({tile, kind, head});
        head = static_cast<int>(m_changes.size()) - 1;
    }

    std::vector<Kind> m_kinds;
    std::vector<int> m_heads; ///< The first change in each row.
    std::vector<Change> m_changes;
    std::vector<int> m_within;
};

class Drawing
{
public:
    Drawing(QImage& image, const SpectrumRaster::Content& content)
        : m_image(image)
        , m_width(image.width())
        , m_content(content)
        , m_ground(makeGround())
    {
        for (const SpectrumRaster::Line& line : content.lines)
            m_lines.emplace_back(
                tileCount(), image.height(),
                [&](int tile) { return std::ranges::min(part(line.top, tile)); },
                [&](int tile) { return std::ranges::max(part(line.bottom, tile)) + 1; });
    }

    void drawRow(int y)
    {
        auto* row = reinterpret_cast<QRgb*>(m_image.scanLine(y));
        drawGround(row, y);
        while (m_gridRow < m_content.gridRows.size() && m_content.gridRows[m_gridRow] < y)
            ++m_gridRow;
        drawGrid(row, y,
                 m_gridRow < m_content.gridRows.size() && m_content.gridRows[m_gridRow] == y);
        for (std::size_t number = 0; number < m_lines.size(); ++number)
            drawLine(row, y, m_content.lines[number], m_lines[number]);
    }

private:
    int tileCount() const { return (m_width + tileWidth - 1) / tileWidth; }
    std::span<const int> part(std::span<const int> columns, int tile) const
    {
        const int x = tile * tileWidth;
        return columns.subspan(static_cast<std::size_t>(x),
                               static_cast<std::size_t>(std::min(tileWidth, m_width - x)));
    }

    TileKinds makeGround() const
    {
        const std::span<const int> top = m_content.shadowTop;
        const auto none = [this](int) { return m_image.height(); };
        if (top.empty())
            return {tileCount(), m_image.height(), none, none};
        return {tileCount(), m_image.height(),
                [&](int tile) { return std::ranges::min(part(top, tile)); },
                [&](int tile) { return std::ranges::max(part(top, tile)); }};
    }

    void drawGround(QRgb* row, int y)
    {
        const QRgb plain = mixed(m_content.backgroundTop, m_content.backgroundBottom,
                                 (y + 0.5) / m_image.height());
        const QRgb shaded = mixed(plain, m_content.shadow, m_content.shadowOpacity);
        const std::span<const TileKinds::Kind> kinds = m_ground.at(y);
        const auto count = static_cast<int>(kinds.size());
        for (int tile = 0; tile < count;) {
            const TileKinds::Kind kind = kinds[static_cast<std::size_t>(tile)];
            if (kind == TileKinds::Within) {
                forTile(tile++, m_width, [&](int x, auto width) {
                    const int* top = m_content.shadowTop.data() + x;
                    for (int i = 0; i < width; ++i)
                        row[x + i] = y >= top[i] ? shaded : plain;
                });
                continue;
            }
            const int first = tile * tileWidth;
            while (tile < count && kinds[static_cast<std::size_t>(tile)] == kind)
                ++tile;
            fill(row + first, std::min(tile * tileWidth, m_width) - first,
                 kind == TileKinds::Behind ? shaded : plain);
        }
    }

    void drawGrid(QRgb* row, int y, bool isGridRow) const
    {
        const auto dot = [&](int x) {
            const bool isShaded = !m_content.shadowTop.empty() &&
                                  y >= m_content.shadowTop[static_cast<std::size_t>(x)];
            row[x] = isShaded ? m_shadedGrid : m_content.grid;
        };
        if (isGridRow) {
            for (int x = 0; x < m_width; x += dotDistance)
                dot(x);
        }
        if (y % dotDistance == 0)
            std::ranges::for_each(m_content.gridColumns, dot);
    }

    void drawLine(QRgb* row, int y, const SpectrumRaster::Line& line, TileKinds& tiles) const
    {
        tiles.at(y);
        for (const int tile : tiles.within()) {
            forTile(tile, m_width, [&](int x, auto width) {
                const int* top = line.top.data() + x;
                const int* bottom = line.bottom.data() + x;
                const QRgb color = line.color;
                for (int i = 0; i < width; ++i)
                    row[x + i] = (y >= top[i]) & (y <= bottom[i]) ? color : row[x + i];
            });
        }
    }

    QImage& m_image;
    int m_width;
    const SpectrumRaster::Content& m_content;
    QRgb m_shadedGrid = mixed(m_content.grid, m_content.shadow, m_content.shadowOpacity);
    TileKinds m_ground;
    std::vector<TileKinds> m_lines;
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

void SpectrumRaster::draw(QImage& image, const Content& content)
{
    if (image.isNull())
        return;
    clearVectorRegisters();
    Drawing drawing(image, content);
    for (int y = 0; y < image.height(); ++y)
        drawing.drawRow(y);
}

} // namespace RadioPanes
