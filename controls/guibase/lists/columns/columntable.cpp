// SPDX-License-Identifier: MIT
#include "columntable.h"

#include <guibase/lists/sortlistview.h>

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

QList<ColumnRecord> columnsOf(const QTreeView& list, const QList<ColumnRecord>& known)
{
    const QHeaderView& header = *list.header();
    QList<ColumnRecord> columns;
    for (int column = 0; column < header.count(); ++column) {
        ColumnRecord record{list.columnWidth(column), header.visualIndex(column),
                            list.isColumnHidden(column)};
        if (record.isHidden) {
            record.width =
                column < known.size() ? known.at(column).width : header.defaultSectionSize();
        }
        columns.append(record);
    }
    return columns;
}

/// Moving one column shifts others that have their place already; the last pass, from the first
/// place to the last, brings every order about.
void applyOrder(QHeaderView& header, const QList<ColumnRecord>& columns)
{
    QList<std::pair<int, int>> places;
    for (int column = 0; column < columns.size(); ++column) {
        const int place = columns.at(column).visualIndex;
        if (place < 0 || place >= header.count())
            continue;
        header.moveSection(header.visualIndex(column), place);
        places.append({place, column});
    }
    std::sort(places.begin(), places.end());
    for (const auto& [place, column] : std::as_const(places))
        header.moveSection(header.visualIndex(column), place);
}

/// The places that columns have among one another when others are missing.
void closeRanks(QList<ColumnRecord>& columns)
{
    QList<int> places;
    for (const ColumnRecord& column : std::as_const(columns))
        places.append(column.visualIndex);
    std::sort(places.begin(), places.end());
    for (ColumnRecord& column : columns)
        column.visualIndex = static_cast<int>(places.indexOf(column.visualIndex));
}

/// Moves a column that came late in front of the first one that belongs behind it.
void insertColumn(QHeaderView& header, const QList<ColumnRecord>& columns, int column)
{
    for (int place = 0; place < header.count(); ++place) {
        const int other = header.logicalIndex(place);
        if (other < column && columns.at(other).visualIndex > columns.at(column).visualIndex) {
            header.moveSection(header.visualIndex(column), place);
            return;
        }
    }
}

void applyColumns(QTreeView& list, QList<ColumnRecord> columns, int first)
{
    QHeaderView& header = *list.header();
    if (columns.size() > header.count()) {
        columns.resize(header.count());
        closeRanks(columns);
    }
    const bool isAllHidden =
        columns.size() == header.count() &&
        std::all_of(columns.cbegin(), columns.cend(), [](const auto& c) { return c.isHidden; });
    for (int column = first; column < columns.size(); ++column) {
        // Nobody could grip a column without width.
        if (columns.at(column).width > 0)
            list.setColumnWidth(column, columns.at(column).width);
        // Without any column there would be no header to bring the others back with.
        list.setColumnHidden(column, columns.at(column).isHidden && !(isAllHidden && column == 0));
        if (first > 0)
            insertColumn(header, columns, column);
    }
    if (first == 0)
        applyOrder(header, columns);
}

} // namespace

void ColumnTable::noteChange(const QString& name, SortListView* list)
{
    if (list == nullptr || list == m_applied || !list->isVisible())
        return;
    m_changed[name] = list;
    m_store.noteChange();
}

void ColumnTable::setWriteDelay(int milliseconds)
{
    m_store.setWriteDelay(milliseconds);
}

void ColumnTable::storeChanges()
{
    const auto changed = m_changed;
    for (const auto& [name, list] : changed)
        store(name, list);
    m_changed.clear();
}

/// Nothing for a damaged text, which is kept aside.
std::optional<QList<ColumnRecord>> ColumnTable::known(const QString& name) const
{
    return m_store.read(name, QStringLiteral("the columns are damaged"), ColumnText::parse);
}

void ColumnTable::store(const QString& name, const SortListView* list)
{
    const auto changed = m_changed.find(name);
    const bool hasChanged = changed != m_changed.end() && changed->second == list;
    if (list == nullptr || list == m_applied || (!list->isVisible() && !hasChanged))
        return;
    if (hasChanged)
        m_changed.erase(changed);
    const auto former = known(name);
    const QList<ColumnRecord> columns = columnsOf(*list, former.value_or(QList<ColumnRecord>()));
    if (columns != former)
        m_store.write(name, ColumnText::format(columns));
}

void ColumnTable::apply(const QString& name, SortListView* list, int firstColumn)
{
    const auto columns = list != nullptr ? known(name) : std::nullopt;
    if (!columns)
        return;
    const QScopedValueRollback applied(m_applied, static_cast<const SortListView*>(list));
    applyColumns(*list, *columns, std::max(firstColumn, 0));
}
