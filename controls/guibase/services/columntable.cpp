// SPDX-License-Identifier: MIT
#include "columntable_p.h"

#include "damagedrecords_p.h"

#include <guibase/lists/sortlistview.h>

#include <jtbase/geometryarrayparser.h>
#include <trovappstartup/cfgcenter.h>

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

std::unique_ptr<ICfg> configuration()
{
    return CfgCenter::GetAppCfg(LayoutView)->OpenSubCfg(QStringLiteral("FreqStoreListView"));
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
    columns += known.mid(columns.size());
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

void applyColumns(QTreeView& list, QList<ColumnRecord> columns)
{
    QHeaderView& header = *list.header();
    columns.resize(std::min<qsizetype>(columns.size(), header.count()));
    const bool isAllHidden =
        columns.size() == header.count() &&
        std::all_of(columns.cbegin(), columns.cend(), [](const auto& c) { return c.isHidden; });
    for (int column = 0; column < columns.size(); ++column) {
        // Nobody could grip a column without width.
        if (columns.at(column).width > 0)
            list.setColumnWidth(column, columns.at(column).width);
        // Without any column there would be no header to bring the others back with.
        list.setColumnHidden(column, columns.at(column).isHidden && !(isAllHidden && column == 0));
    }
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

void ColumnTable::store(const QString& name, const SortListView* list)
{
    if (list == nullptr || list == m_applied || !list->isVisible())
        return;
    QList<ColumnRecord>& known = m_columns[name];
    QList<ColumnRecord> columns = columnsOf(*list, known);
    if (columns == known)
        return;
    known = std::move(columns);
    write(name);
}

void ColumnTable::apply(const QString& name, SortListView* list)
{
    if (list == nullptr)
        return;
    const std::unique_ptr<ICfg> cfg = configuration();
    const QString text = cfg->GetString(name);
    const auto columns = ColumnText::parse(text);
    if (!columns)
        DamagedRecords::keepAside(*cfg, name, text, QStringLiteral("the columns are damaged"));
    if (!columns || columns->isEmpty()) {
        m_columns.erase(name);
        return;
    }
    m_columns[name] = *columns;
    const QScopedValueRollback applied(m_applied, static_cast<const SortListView*>(list));
    applyColumns(*list, *columns);
}

void ColumnTable::write(const QString& name) const
{
    configuration()->SetString(name, ColumnText::format(m_columns.at(name)));
}

void ColumnTable::writeConfiguration() const
{
    for (const auto& [name, columns] : m_columns)
        write(name);
}
