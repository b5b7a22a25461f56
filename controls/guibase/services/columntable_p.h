// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <map>
#include <optional>

class QTreeView;
class SortListView;

/// How a column of a list looked: width in pixels, place in the header, and whether it was hidden.
struct ColumnRecord
{
    int width = 0;
    int visualIndex = 0;
    bool isHidden = false;

    bool operator==(const ColumnRecord&) const = default;
};

/// Column records as text: "120,0,0;80,1,1;" holds the widths 120 and 80, the visual indices 0 and
/// 1, and a hidden second column.
namespace ColumnText {

QString format(const QList<ColumnRecord>& columns);
/// Nothing for a text with anything but rows of three numbers, and for a column of more than
/// `largestWidth` pixels.
std::optional<QList<ColumnRecord>> parse(const QString& text);

inline constexpr int largestWidth = 1 << 14;

} // namespace ColumnText

/// The columns of the application's lists, by the lists' names. What is stored is in the
/// configuration at once.
class ColumnTable
{
public:
    /// Takes the columns of a visible list over; nothing for others, and while the list gets its
    /// columns. A hidden column keeps the width that is known for it; columns beyond those of the
    /// list, which may come later, stay known. Cheap enough to be called with every change.
    void store(const QString& name, const SortListView* list);
    /// Gives the list the columns that the configuration has for the name. Columns that it does not
    /// know stay as they are, and so do columns without a width. A damaged text changes nothing and
    /// is kept aside. May be called again when the list has got more columns.
    void apply(const QString& name, SortListView* list);
    void writeConfiguration() const;

private:
    void write(const QString& name) const;

    std::map<QString, QList<ColumnRecord>> m_columns;
    const SortListView* m_applied = nullptr; ///< The list that gets its columns just now.
};
