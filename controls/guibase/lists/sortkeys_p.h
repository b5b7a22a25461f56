// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/lists/sortlistview.h>

#include <QString>

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

    /// Whether one number per row can stand for the order of the rows. Not when only some rows have
    /// sort keys, and not with a compare function of the application.
    bool canRank() const;
    /// Whether number() gives these numbers.
    bool isNumeric() const;
    /// NaN, which equals all others, for a text that should be a number and is none.
    double number(quint32 row) const;
    /// Such numbers of all rows, where rows are compared as texts.
    std::vector<double> ranks() const;

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
    /// Where only some rows have keys, the texts.
    const Values& values() const { return m_keyCount == m_count ? m_keys : m_texts; }
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
