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

    /// Adds the next row; rows are numbered from 0.
    void add(const QString& text, const QString& sortKey);
    /// Adds a row of an earlier sort with the same function.
    void add(const SortKeys& earlier, quint32 row);
    bool isLess(quint32 a, quint32 b) const;
    /// For every row a number that orders the rows as isLess() does; nothing where the comparison
    /// may not be an order: when only some rows have sort keys, when a text is no number (it equals
    /// all others), and for a function of the application.
    std::optional<std::vector<quint32>> ranks() const;

    quint32 count() const { return m_count; }

private:
    enum class Rule { Text, TextIgnoringCase, Number, NumberWithSuffix, Function };
    /// One of the two lists is used, as the rule wants it.
    struct Values
    {
        std::vector<QString> texts;
        std::vector<double> numbers; ///< NaN, which is never less, for a text that is no number.
    };

    static Rule ruleOf(SortListView::CompareFunction function);
    bool isNumeric() const;
    void append(Values& values, const QString& text) const;
    void append(Values& values, const Values& from, quint32 row) const;
    /// Begins the next row; whether its key, or that it has none, is to be appended too.
    bool beginRow(bool hasKey);
    bool isLess(const Values& values, quint32 a, quint32 b) const;

    SortListView::CompareFunction m_function;
    Rule m_rule;
    quint32 m_count = 0;
    quint32 m_keyCount = 0;
    Values m_texts;
    Values m_keys;              ///< Empty as long as no row has a sort key.
    std::vector<char> m_hasKey; ///< As long as m_keys.
};
