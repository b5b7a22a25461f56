// SPDX-License-Identifier: MIT
#include "columntable.h"

#include <guibase/lists/sortlistview.h>
#include <guibase/records/damagedrecords.h>

#include <jtbase/geometryarrayparser.h>
#include <trovappstartup/cfgcenter.h>

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>
#include <numeric>

namespace {

std::unique_ptr<ICfg> configuration()
{
    return CfgCenter::GetAppCfg(LayoutView)->OpenSubCfg(QStringLiteral("FreqStoreListView"));
}

/// Nothing for a damaged text, which is kept aside.
std::optional<QList<ColumnRecord>> knownColumns(ICfg& cfg, const QString& name)
{
    const QString text = cfg.GetString(name);
    auto columns = ColumnText::parse(text);
    if (!columns)
        DamagedRecords::keepAside(cfg, name, text, QStringLiteral("the columns are damaged"));
    return columns;
}

/// Appends the known columns that the list does not have. They keep their places: the list's own
/// columns share those that were theirs before.
void keepOthers(QList<ColumnRecord>& columns, const QHeaderView& header,
                const QList<ColumnRecord>& known)
{
    const int present = static_cast<int>(columns.size());
    columns += known.mid(present);
    if (columns.size() == present)
        return;
    QList<int> order(known.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&known](int a, int b) {
        return known.at(a).visualIndex < known.at(b).visualIndex;
    });
    int ownPlace = 0;
    for (int place = 0; place < order.size(); ++place) {
        const bool isOwn = order.at(place) < present;
        columns[isOwn ? header.logicalIndex(ownPlace++) : order.at(place)].visualIndex = place;
    }
}

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
    keepOthers(columns, header, known);
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

QString ColumnText::format(const QList<ColumnRecord>& columns)
{
    QList<QList<int>> rows;
    for (const ColumnRecord& column : columns)
        rows.append({column.width, column.visualIndex, column.isHidden ? 1 : 0});
    return GeometryArrayParser::formatRows(rows);
}

std::optional<QList<ColumnRecord>> ColumnText::parse(const QString& text)
{
    const auto rows = GeometryArrayParser::parseRows(text);
    if (!rows)
        return std::nullopt;
    QList<ColumnRecord> columns;
    for (const QList<int>& row : *rows) {
        if (row.size() != 3 || row.at(0) > largestWidth)
            return std::nullopt;
        columns.append({row.at(0), row.at(1), row.at(2) != 0});
    }
    return columns;
}

void ColumnTable::noteChange(const QString& name, SortListView* list)
{
    if (list == nullptr || list == m_applied || !list->isVisible())
        return;
    m_changed[name] = list;
    m_delayedWrite.noteChange();
}

void ColumnTable::setWriteDelay(int milliseconds)
{
    m_delayedWrite.setDelay(milliseconds);
}

void ColumnTable::storeChanges()
{
    const auto changed = m_changed;
    for (const auto& [name, list] : changed)
        store(name, list);
    m_changed.clear();
}

void ColumnTable::store(const QString& name, const SortListView* list)
{
    const auto changed = m_changed.find(name);
    const bool hasChanged = changed != m_changed.end() && changed->second == list;
    if (list == nullptr || list == m_applied || (!list->isVisible() && !hasChanged))
        return;
    if (hasChanged)
        m_changed.erase(changed);
    // Not what this table has: another list, or process, may have stored meanwhile.
    const std::unique_ptr<ICfg> cfg = configuration();
    const auto known = knownColumns(*cfg, name);
    QList<ColumnRecord> columns = columnsOf(*list, known.value_or(QList<ColumnRecord>()));
    if (columns == known)
        return;
    m_columns[name] = std::move(columns);
    write(name);
}

void ColumnTable::apply(const QString& name, SortListView* list, int firstColumn)
{
    if (list == nullptr)
        return;
    const std::unique_ptr<ICfg> cfg = configuration();
    const auto columns = knownColumns(*cfg, name);
    if (!columns || columns->isEmpty()) {
        m_columns.erase(name);
        return;
    }
    m_columns[name] = *columns;
    const QScopedValueRollback applied(m_applied, static_cast<const SortListView*>(list));
    applyColumns(*list, *columns, std::max(firstColumn, 0));
}

void ColumnTable::write(const QString& name) const
{
    configuration()->SetString(name, ColumnText::format(m_columns.at(name)));
}

void ColumnTable::writeConfiguration()
{
    storeChanges();
    for (const auto& [name, columns] : m_columns)
        write(name);
}
