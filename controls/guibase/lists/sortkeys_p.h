// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/lists/sortlistview.h>

#include <QString>

#include <optional>
#include <vector>

/// What the rows of one sort are compared by, read and parsed once per row.
///
/// isLess() tells for every pair of rows exactly what SortListView::SortFunction() < 0 tells for
/// their sort keys, where both have one, and otherwise for their texts.
class SortKeys
{
public:
    explicit SortKeys(SortListView::CompareFunction function);

    void reserve(std::size_t rows) { m_rows.reserve(rows); }
    /// Adds the next row; rows are numbered from 0.
    void add(const QString& text, const QString& sortKey);
    /// Adds a row of an earlier sort with the same function.
    void add(const SortKeys& earlier, quint32 row);
    bool isLess(quint32 a, quint32 b) const;
    /// For every row a number that orders the rows as isLess() does; nothing where the comparison
    /// may not be an order: when only some rows have sort keys, when a text is no number (it equals
    /// all others), and for a function of the application.
    std::optional<std::vector<quint32>> ranks() const;

    quint32 count() const { return static_cast<quint32>(m_rows.size()); }

private:
    enum class Rule { Text, TextIgnoringCase, Number, NumberWithSuffix, Function };
    struct Value
    {
        QString text;      ///< Not kept for numbers.
        double number = 0; ///< NaN, which is never less, for a text that is no number.
    };
    struct Row
    {
        Value text;
        Value key;
        bool hasKey = false;
    };

    static Rule ruleOf(SortListView::CompareFunction function);
    bool isNumeric() const;
    Value valueOf(const QString& text) const;
    bool isLess(const Value& a, const Value& b) const;

    SortListView::CompareFunction m_function;
    Rule m_rule;
    quint32 m_keyCount = 0;
    std::vector<Row> m_rows;
};
