// SPDX-License-Identifier: MIT
#include "columntext.h"

#include <jtbase/geometryarrayparser.h>

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
