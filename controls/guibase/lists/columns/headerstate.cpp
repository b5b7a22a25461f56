// SPDX-License-Identifier: MIT
#include "headerstate_p.h"

#include <QDataStream>
#include <QHash>
#include <QHeaderView>

#include <algorithm>
#include <limits>

namespace {

constexpr qint32 stateMarker = 0xff; // QHeaderView's own
constexpr qint32 stateVersion = 0;
constexpr qint32 maximumSections = 4096;
constexpr qint32 maximumLength = (1 << 24) - 1; // of all sections together, in pixels
constexpr qint32 lastResizeMode = 3;

/// Reads a state number by number; after a wrong one everything reads as 0.
class Walk
{
public:
    explicit Walk(const QByteArray& state)
        : m_stream(state)
    {}

    qint32 number();
    /// A number from `lowest` to `highest`.
    qint32 number(qint32 lowest, qint32 highest) { return checked(number(), lowest, highest); }
    qint32 count() { return number(0, maximumSections); }
    QList<qint32> numbers(qint32 size);
    void flags(int size);
    void fail() { m_isFine = false; }
    bool isFine() const { return m_isFine; }
    bool atEnd() const { return m_stream.atEnd(); }

private:
    qint32 checked(qint32 value, qint32 lowest, qint32 highest);

    QDataStream m_stream;
    bool m_isFine = true;
};

qint32 Walk::number()
{
    qint32 value = 0;
    m_stream >> value;
    if (m_stream.status() != QDataStream::Ok)
        fail();
    return m_isFine ? value : 0;
}

qint32 Walk::checked(qint32 value, qint32 lowest, qint32 highest)
{
    if (value < lowest || value > highest)
        fail();
    return m_isFine ? value : 0;
}

QList<qint32> Walk::numbers(qint32 size)
{
    QList<qint32> result;
    for (qint32 i = 0; i < size && m_isFine; ++i)
        result.append(number());
    return result;
}

void Walk::flags(int size)
{
    if (m_stream.skipRawData(size) != size)
        fail();
}

/// Whether the lists are the two directions of one order; both are empty in the default order.
bool areInverse(const QList<qint32>& visual, const QList<qint32>& logical)
{
    if (visual.size() != logical.size())
        return false;
    for (qsizetype i = 0; i < visual.size(); ++i) {
        if (visual.at(i) < 0 || visual.at(i) >= logical.size() || logical.at(visual.at(i)) != i)
            return false;
    }
    return true;
}

/// The sizes of the sections by their places. The runs of equal sections, each with the length of
/// all its sections, must add up to all of them.
QList<qint32> readRuns(Walk& walk, qint32 sections)
{
    QList<qint32> sizes;
    const qint32 runs = walk.number(0, sections);
    qint32 length = 0;
    for (qint32 run = 0; run < runs && walk.isFine(); ++run) {
        const qint32 runLength = walk.number(0, maximumLength - length);
        const qint32 count = walk.number(1, sections - static_cast<qint32>(sizes.size()));
        length += runLength;
        for (qint32 i = 0; i < count; ++i)
            sizes.append(runLength / count);
        walk.number(0, lastResizeMode);
    }
    if (sizes.size() != sections)
        walk.fail();
    return sizes;
}

/// What the toolkit keeps of hidden sections: section and former size.
QHash<qint32, qint32> readHiddenSizes(Walk& walk)
{
    QHash<qint32, qint32> sizes;
    const qint32 hidden = walk.count();
    for (qint32 i = 0; i < hidden && walk.isFine(); ++i) {
        const qint32 section = walk.number(0, maximumSections - 1);
        sizes.insert(section, walk.number(0, maximumLength));
    }
    return sizes;
}

/// Fields that were added to the state over time; older states end before any of them.
void walkAdditions(Walk& walk)
{
    if (!walk.atEnd())
        walk.number(-1, std::numeric_limits<qint32>::max()); // rows to look at for contents
    if (!walk.atEnd())
        walk.flags(1); // default size is the application's own
    if (!walk.atEnd())
        walk.number(-1, maximumLength); // size of the last section
    if (!walk.atEnd())
        walk.number(0, 1); // sort indicator clearable
    if (!walk.atEnd())
        walk.fail();
}

} // namespace

std::optional<HeaderState> HeaderState::fromBytes(const QByteArray& bytes,
                                                  Qt::Orientation orientation)
{
    Walk walk(bytes);
    HeaderState state;
    walk.number(stateMarker, stateMarker);
    walk.number(stateVersion, stateVersion);
    walk.number(orientation, orientation);
    state.sortOrder = Qt::SortOrder(walk.number(Qt::AscendingOrder, Qt::DescendingOrder));
    // The toolkit's default is 0, sections or not.
    state.sortSection = walk.number(-1, maximumSections);
    walk.flags(1); // sort indicator shown
    const QList<qint32> visual = walk.numbers(walk.count());
    const QList<qint32> logical = walk.numbers(walk.count());
    const qint32 hiddenBits = walk.count();
    walk.flags((hiddenBits + 7) / 8);
    const QHash<qint32, qint32> hiddenSizes = readHiddenSizes(walk);
    walk.number(0, maximumLength);
    const qint32 stored = walk.count();
    walk.flags(5); // movable, clickable, highlight, stretch last, cascading
    // Sections that stretch or follow their contents; the toolkit miscounts hidden ones.
    walk.number();
    walk.number();
    walk.number(-1, maximumLength); // default size
    walk.number(-1, maximumLength); // minimum size
    walk.number();                  // alignment
    walk.number(0, lastResizeMode);
    const QList<qint32> sizes = readRuns(walk, stored);
    walkAdditions(walk);
    const bool areHiddenKnown = std::all_of(hiddenSizes.keyBegin(), hiddenSizes.keyEnd(),
                                            [stored](qint32 section) { return section < stored; });
    if (!walk.isFine() || hiddenBits > stored || !areHiddenKnown || !areInverse(visual, logical) ||
        (!visual.isEmpty() && visual.size() != stored))
        return std::nullopt;
    for (qint32 section = 0; section < stored; ++section) {
        const qint32 place = visual.isEmpty() ? section : visual.at(section);
        const bool isHidden = hiddenSizes.contains(section);
        state.sections.append(
            {isHidden ? hiddenSizes.value(section) : sizes.at(place), place, isHidden});
    }
    return state;
}

void HeaderState::applyTo(QHeaderView& header, int first) const
{
    const int count = std::min(header.count(), static_cast<int>(sections.size()));
    for (int section = first; section < count; ++section) {
        const Section& stored = sections.at(section);
        if (stored.size > 0)
            header.resizeSection(section, stored.size);
        header.setSectionHidden(section, stored.isHidden);
        int place = 0;
        for (int other = 0; other < section; ++other) {
            if (sections.at(other).place < stored.place)
                place = std::max(place, header.visualIndex(other) + 1);
        }
        const int from = header.visualIndex(section);
        header.moveSection(from, place > from ? place - 1 : place);
    }
    if (sortSection >= first && sortSection < count)
        header.setSortIndicator(sortSection, sortOrder);
}
