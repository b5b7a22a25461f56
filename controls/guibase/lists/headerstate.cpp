// SPDX-License-Identifier: MIT
#include "headerstate_p.h"

#include <QDataStream>
#include <QList>

namespace {

constexpr qint32 stateMarker = 0xff; // QHeaderView's own
constexpr qint32 stateVersion = 0;
constexpr qint32 maximumSections = 4096;
constexpr qint32 maximumSectionSize = 1 << 20;

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
    constexpr qint32 lastResizeMode = 3;
    const qint32 runs = walk.number(0, sections);
    qint32 covered = 0;
    for (qint32 run = 0; run < runs && walk.isFine(); ++run) {
        walk.number(0, maximumSectionSize);
        covered += walk.number(1, sections - covered);
        walk.number(0, lastResizeMode);
    }
    if (covered != sections)
        walk.fail();
}

} // namespace

bool HeaderState::isValid(const QByteArray& state)
{
    Walk walk(state);
    walk.number(stateMarker, stateMarker);
    walk.number(stateVersion, stateVersion);
    walk.number(Qt::Horizontal, Qt::Vertical);
    walk.number(Qt::AscendingOrder, Qt::DescendingOrder);
    const qint32 sortSection = walk.number(-1, maximumSections);
    walk.flags(1); // sort indicator shown
    const QList<qint32> visual = walk.numbers(walk.count());
    const QList<qint32> logical = walk.numbers(walk.count());
    const qint32 hiddenBits = walk.count();
    walk.flags((hiddenBits + 7) / 8);
    const qint32 hiddenSizes = walk.count();
    walk.numbers(2 * hiddenSizes);
    walk.number(); // length
    const qint32 sections = walk.count();
    walk.flags(5);   // movable, clickable, highlight, stretch last section, cascading
    walk.numbers(4); // stretch and content sections, default and minimum size
    walk.numbers(2); // alignment, resize mode
    walkRuns(walk, sections);
    return walk.isFine() && sortSection <= sections && hiddenBits <= sections &&
           hiddenSizes <= sections && areInverse(visual, logical) &&
           (visual.isEmpty() || visual.size() == sections);
}
