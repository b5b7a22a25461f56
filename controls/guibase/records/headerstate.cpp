// SPDX-License-Identifier: MIT
#include "headerstate.h"

#include "statewalk.h"

#include <QHash>

#include <algorithm>
#include <limits>

namespace {

constexpr qint32 stateMarker = 0xff; // QHeaderView's own
constexpr qint32 stateVersion = 0;
constexpr qint32 maximumSections = 4096;
constexpr qint32 maximumLength = (1 << 24) - 1; // of all sections together, in pixels
constexpr qint32 lastResizeMode = 3;

qint32 readCount(StateWalk& walk)
{
    return walk.number(0, maximumSections);
}

QList<qint32> readNumbers(StateWalk& walk)
{
    QList<qint32> result;
    for (qint32 left = readCount(walk); left > 0 && walk.isFine(); --left)
        result.append(walk.number());
    return result;
}

void passBytes(StateWalk& walk, qint32 count)
{
    for (; count > 0 && walk.isFine(); --count)
        walk.byte();
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
QList<qint32> readRuns(StateWalk& walk, qint32 sections)
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
        walk.expect(false);
    return sizes;
}

/// What the toolkit keeps of hidden sections: section and former size.
QHash<qint32, qint32> readHiddenSizes(StateWalk& walk)
{
    QHash<qint32, qint32> sizes;
    const qint32 hidden = readCount(walk);
    for (qint32 i = 0; i < hidden && walk.isFine(); ++i) {
        const qint32 section = walk.number(0, maximumSections - 1);
        sizes.insert(section, walk.number(0, maximumLength));
    }
    return sizes;
}

/// Fields that were added to the state over time; older states end before any of them.
void walkAdditions(StateWalk& walk)
{
    if (!walk.atEnd())
        walk.number(-1, std::numeric_limits<qint32>::max()); // rows to look at for contents
    if (!walk.atEnd())
        passBytes(walk, 1); // default size is the application's own
    if (!walk.atEnd())
        walk.number(-1, maximumLength); // size of the last section
    if (!walk.atEnd())
        walk.number(0, 1); // sort indicator clearable
    if (!walk.atEnd())
        walk.expect(false);
}

} // namespace

std::optional<HeaderState> HeaderState::fromBytes(const QByteArray& bytes,
                                                  Qt::Orientation orientation)
{
    StateWalk walk(bytes);
    HeaderState state;
    state.bytes = bytes;
    walk.number(stateMarker, stateMarker);
    walk.number(stateVersion, stateVersion);
    walk.number(orientation, orientation);
    state.sortOrder = Qt::SortOrder(walk.number(Qt::AscendingOrder, Qt::DescendingOrder));
    // The toolkit's default is 0, sections or not.
    state.sortSection = walk.number(-1, maximumSections);
    passBytes(walk, 1); // sort indicator shown
    const QList<qint32> visual = readNumbers(walk);
    const QList<qint32> logical = readNumbers(walk);
    const qint32 hiddenBits = readCount(walk);
    passBytes(walk, (hiddenBits + 7) / 8);
    const QHash<qint32, qint32> hiddenSizes = readHiddenSizes(walk);
    walk.number(0, maximumLength);
    const qint32 stored = readCount(walk);
    passBytes(walk, 5); // movable, clickable, highlight, stretch last, cascading
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

std::optional<HeaderState> HeaderState::fromText(const QString& text, Qt::Orientation orientation)
{
    if (text.size() > maximumTextSize)
        return std::nullopt;
    const auto decoded =
        QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? fromBytes(decoded.decoded, orientation) : std::nullopt;
}
