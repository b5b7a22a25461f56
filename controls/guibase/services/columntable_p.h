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
/// Nothing for a text with anything but rows of three numbers.
std::optional<QList<ColumnRecord>> parse(const QString& text);

} // namespace ColumnText

/// The columns of the application's lists, by the lists' names. What is stored is in the
/// configuration at once.
class ColumnTable
{
public:
    /// Takes the columns of a visible list over; nothing for others. A hidden column keeps the
    /// width that is known for it.
    void store(const QString& name, const SortListView* list);
    /// Gives the list the columns that the configuration has for the name. Columns that it does not
    /// know stay as they are, and so does everything when the text there is damaged.
    void apply(const QString& name, SortListView* list);
    void writeConfiguration() const;

private:
    void write(const QString& name) const;

    std::map<QString, QList<ColumnRecord>> m_columns;
};
