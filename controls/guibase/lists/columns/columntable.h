// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/lists/sortlistview.h>
#include <guibase/records/delayedwrite.h>

#include <QList>
#include <QPointer>
#include <QString>

#include <map>
#include <optional>

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
    ColumnTable() = default;
    ColumnTable(const ColumnTable&) = delete;
    ColumnTable& operator=(const ColumnTable&) = delete;

    /// The columns of a visible list have changed: they are stored when nothing has changed for the
    /// write delay, and at the latest by writeConfiguration(). Nothing for lists that are not
    /// visible, and while the list gets its columns.
    void noteChange(const QString& name, SortListView* list);
    /// In milliseconds; negative: noted changes wait for store() and writeConfiguration().
    void setWriteDelay(int milliseconds);
    /// Takes the columns of a list over that is visible, or has noted changes from when it was. A
    /// hidden column keeps the width that is known for it; columns beyond those of the list, which
    /// may come later, stay known.
    void store(const QString& name, const SortListView* list);
    /// Gives the list, from a column on, what the configuration has for the name. Columns that it
    /// does not know stay as they are, and so do widths of columns without one. A damaged text
    /// changes nothing and is kept aside.
    void apply(const QString& name, SortListView* list, int firstColumn);
    void writeConfiguration();

private:
    void storeChanges();
    void write(const QString& name) const;

    std::map<QString, QList<ColumnRecord>> m_columns;
    std::map<QString, QPointer<SortListView>> m_changed;
    const SortListView* m_applied = nullptr; ///< The list that gets its columns just now.
    DelayedWrite m_delayedWrite{[this] { storeChanges(); }};
};
