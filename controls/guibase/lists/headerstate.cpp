// SPDX-License-Identifier: MIT
#include "headerstate_p.h"

#include <QDataStream>
#include <QList>

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

/// The runs of equal sections must add up to all of them.
void walkRuns(Walk& walk, qint32 sections)
{
    const qint32 runs = walk.number(0, sections);
    qint32 covered = 0;
    qint32 length = 0;
    for (qint32 run = 0; run < runs && walk.isFine(); ++run) {
        length += walk.number(0, maximumLength - length);
        covered += walk.number(1, sections - covered);
        walk.number(0, lastResizeMode);
    }
    if (covered != sections)
        walk.fail();
}

/// What the toolkit keeps of hidden sections: pairs of section and former size.
void walkHiddenSizes(Walk& walk, qint32 sections)
{
    const qint32 hidden = walk.count();
    for (qint32 i = 0; i < hidden && walk.isFine(); ++i) {
        walk.number(0, sections - 1);
        walk.number(0, maximumLength);
    }
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

bool HeaderState::isValid(const QByteArray& state, Qt::Orientation orientation, int sections)
{
    Walk walk(state);
    const qint32 limit = std::min(sections, maximumSections);
    walk.number(stateMarker, stateMarker);
    walk.number(stateVersion, stateVersion);
    walk.number(orientation, orientation);
    walk.number(Qt::AscendingOrder, Qt::DescendingOrder);
    walk.number(-1, limit); // sort section; the toolkit's default is 0, sections or not
    walk.flags(1);          // sort indicator shown
    const QList<qint32> visual = walk.numbers(walk.count());
    const QList<qint32> logical = walk.numbers(walk.count());
    const qint32 hiddenBits = walk.count();
    walk.flags((hiddenBits + 7) / 8);
    walkHiddenSizes(walk, limit);
    walk.number(0, maximumLength);
    const qint32 stored = walk.number(0, limit);
    walk.flags(5);                  // movable, clickable, highlight, stretch last, cascading
    walk.number(0, stored);         // sections that stretch
    walk.number(0, stored);         // sections that follow their contents
    walk.number(-1, maximumLength); // default size
    walk.number(-1, maximumLength); // minimum size
    walk.number();                  // alignment
    walk.number(0, lastResizeMode);
    walkRuns(walk, stored);
    walkAdditions(walk);
    return walk.isFine() && hiddenBits <= stored && areInverse(visual, logical) &&
           (visual.isEmpty() || visual.size() == stored);
}
