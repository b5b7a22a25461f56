// SPDX-License-Identifier: MIT
#include "headerarrangement.h"

#include <QHeaderView>

#include <algorithm>
#include <numeric>

namespace {

/// The sections in the order of their places.
QList<int> orderOf(const QList<ColumnRecord>& columns)
{
    QList<int> order(columns.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&columns](int a, int b) {
        return columns.at(a).visualIndex < columns.at(b).visualIndex;
    });
    return order;
}

QList<int> presentOrder(const QHeaderView& header)
{
    QList<int> order(header.count());
    for (int place = 0; place < header.count(); ++place)
        order[place] = header.logicalIndex(place);
    return order;
}

/// Each section with a record at its place; the others, and those whose place is taken or not
/// there, in the places that are left.
QList<int> wholeOrder(const QHeaderView& header, const QList<ColumnRecord>& columns)
{
    QList<int> order(header.count(), -1);
    QList<int> others;
    const QList<int> wanted = orderOf(columns);
    for (const int section : wanted) {
        const int place = columns.at(section).visualIndex;
        if (place >= 0 && place < order.size() && order.at(place) < 0)
            order[place] = section;
        else
            others.append(section);
    }
    const QList<int> present = presentOrder(header);
    std::copy_if(present.cbegin(), present.cend(), std::back_inserter(others),
                 [&columns](int section) { return section >= columns.size(); });
    auto next = others.cbegin();
    for (int& section : order) {
        if (section < 0)
            section = *next++;
    }
    return order;
}

/// The present order, but each section from `first` on that has a record stands in front of the
/// first one that belongs behind it.
QList<int> orderWithLate(const QHeaderView& header, const QList<ColumnRecord>& columns, int first)
{
    QList<int> order = presentOrder(header);
    for (int section = first; section < columns.size(); ++section) {
        const auto isBehind = [&](int other) {
            return other < section &&
                   columns.at(other).visualIndex > columns.at(section).visualIndex;
        };
        const auto behind = std::find_if(order.cbegin(), order.cend(), isBehind);
        if (behind == order.cend())
            continue;
        const auto from = order.indexOf(section);
        const auto place = std::distance(order.cbegin(), behind);
        order.move(from, place > from ? place - 1 : place);
    }
    return order;
}

/// The sections that may be stretched: the last one, and the last visible one. Their stored widths
/// are those of a window, and as own widths would keep the sections from shrinking with another.
template <typename IsHidden>
QList<int> stretchedSections(const QList<int>& order, IsHidden isHidden)
{
    if (order.isEmpty())
        return {};
    const auto visible = std::find_if_not(order.crbegin(), order.crend(), isHidden);
    return visible == order.crend() ? order.last(1) : QList<int>{order.last(), *visible};
}

/// Widths, and what is hidden, of the sections from `first` on. One that was stretched before they
/// came gets its width now.
void resize(QHeaderView& header, const QList<ColumnRecord>& columns, const QList<int>& order,
            int first, bool isStretching)
{
    const auto isHidden = [&](int section) {
        return section >= first && section < columns.size() ? columns.at(section).isHidden
                                                            : header.isSectionHidden(section);
    };
    QList<int> stretched;
    QList<int> former;
    if (isStretching) {
        stretched = stretchedSections(order, isHidden);
        former = stretchedSections(presentOrder(header).mid(0, first), isHidden);
    }
    for (int section = 0; section < columns.size(); ++section) {
        const ColumnRecord& column = columns.at(section);
        const bool isWanted = section >= first || former.contains(section);
        // Nobody could grip a section without width.
        if (isWanted && column.width > 0 && !stretched.contains(section))
            header.resizeSection(section, column.width);
        if (section >= first)
            header.setSectionHidden(section, column.isHidden);
    }
}

} // namespace

QList<ColumnRecord> HeaderArrangement::of(const QHeaderView& header,
                                          const QList<ColumnRecord>& known)
{
    QList<ColumnRecord> columns;
    for (int section = 0; section < header.count(); ++section) {
        ColumnRecord record{header.sectionSize(section), header.visualIndex(section),
                            header.isSectionHidden(section)};
        if (record.isHidden)
            record.width =
                section < known.size() ? known.at(section).width : header.defaultSectionSize();
        columns.append(record);
    }
    return columns;
}

void HeaderArrangement::apply(QHeaderView& header, QList<ColumnRecord> columns, int first)
{
    if (columns.size() > header.count()) {
        columns.resize(header.count());
        int place = 0;
        const QList<int> order = orderOf(columns);
        for (const int section : order)
            columns[section].visualIndex = place++;
    }
    // A visible header looks for what it must paint again after each single change.
    const bool isPainting = header.updatesEnabled();
    header.setUpdatesEnabled(false);
    const QList<int> order =
        first == 0 ? wholeOrder(header, columns) : orderWithLate(header, columns, first);
    const bool isStretching = header.stretchLastSection();
    header.setStretchLastSection(false); // gives the last section its own width back
    resize(header, columns, order, first, isStretching);
    // To move a section would shift all those between its places.
    for (int place = 0; place < order.size(); ++place)
        header.swapSections(header.visualIndex(order.at(place)), place);
    // A header without sections could not open the menu that brings them back.
    if (header.count() > 0 && header.hiddenSectionCount() == header.count())
        header.showSection(header.logicalIndex(0));
    header.setStretchLastSection(isStretching);
    header.setUpdatesEnabled(isPainting);
}
