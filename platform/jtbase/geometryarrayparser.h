// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QList>
#include <QString>

#include <optional>

/// Texts of whole numbers as layouts store them: rows ended by ';', numbers in a row parted by ','.
///
/// "120,0,0;80,1,1;" holds two rows of three numbers. Empty rows are skipped; blanks around a
/// number are ignored. Texts come from files, so nothing in them is trusted: a number that is no
/// decimal int, a row longer than `maximumNumbersPerRow` or more rows than `maximumRows` refuse the
/// whole text.
class JTBASE_EXPORT GeometryArrayParser
{
public:
    /// Longer texts are refused.
    static constexpr int maximumRows = 4096;
    static constexpr int maximumNumbersPerRow = 16;

    /// The rows, or nothing for a text that breaks the rules.
    static std::optional<QList<QList<int>>> parseRows(const QString& text);
    /// The numbers of a text with one number a row ("200;350;"), or nothing.
    static std::optional<QList<int>> parseList(const QString& text);

    /// The text that parseRows() or parseList() reads.
    static QString formatRows(const QList<QList<int>>& rows);
    static QString formatList(const QList<int>& numbers);

    GeometryArrayParser() = delete;
};
