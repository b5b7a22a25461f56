// SPDX-License-Identifier: MIT
#include "geometryarrayparser.h"

#include "numberhelpers.h"

#include <QStringTokenizer>

namespace {

constexpr QChar rowEnd = u';';
constexpr QChar numberSeparator = u',';

std::optional<QList<int>> parseRow(QStringView text)
{
    QList<int> row;
    for (QStringView part : qTokenize(text, numberSeparator)) {
        bool ok = false;
        const int number = NumberHelpers::parse<int>(part, &ok);
        if (!ok || row.size() == GeometryArrayParser::maximumNumbersPerRow)
            return std::nullopt;
        row.append(number);
    }
    return row;
}

} // namespace

std::optional<QList<QList<int>>> GeometryArrayParser::parseRows(const QString& text)
{
    QList<QList<int>> rows;
    for (QStringView part : qTokenize(QStringView(text), rowEnd)) {
        if (part.trimmed().isEmpty())
            continue;
        std::optional<QList<int>> row = parseRow(part);
        if (!row || rows.size() == maximumRows)
            return std::nullopt;
        rows.append(*std::move(row));
    }
    return rows;
}

std::optional<QList<int>> GeometryArrayParser::parseList(const QString& text)
{
    const std::optional<QList<QList<int>>> rows = parseRows(text);
    if (!rows)
        return std::nullopt;
    QList<int> numbers;
    numbers.reserve(rows->size());
    for (const QList<int>& row : *rows) {
        if (row.size() != 1)
            return std::nullopt;
        numbers.append(row.first());
    }
    return numbers;
}

QString GeometryArrayParser::formatRows(const QList<QList<int>>& rows)
{
    QString text;
    for (const QList<int>& row : rows) {
        for (qsizetype i = 0; i < row.size(); ++i) {
            if (i > 0)
                text += numberSeparator;
            text += QString::number(row.at(i));
        }
        text += rowEnd;
    }
    return text;
}

QString GeometryArrayParser::formatList(const QList<int>& numbers)
{
    QString text;
    for (int number : numbers)
        text += QString::number(number) + rowEnd;
    return text;
}
