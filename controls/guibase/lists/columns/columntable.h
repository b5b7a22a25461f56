// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/lists/sortlistview.h>
#include <guibase/records/columntext.h>
#include <guibase/records/recordstore.h>

#include <QList>
#include <QPointer>
#include <QString>

#include <map>
#include <optional>

/// The columns of the application's lists, by the lists' names. What is stored is in the
/// configuration at once, and nowhere else: other lists, and other processes, may store meanwhile.
class ColumnTable
{
public:
    ColumnTable() = default;
    ColumnTable(const ColumnTable&) = delete;
    ColumnTable& operator=(const ColumnTable&) = delete;

    /// The columns of a visible list have changed: they are stored when nothing has changed for the
    /// write delay, and at the latest by storeChanges(). Nothing for lists that are not
    /// visible, and while the list gets its columns.
    void noteChange(const QString& name, SortListView* list);
    /// In milliseconds; negative: noted changes wait for store() and storeChanges().
    void setWriteDelay(int milliseconds);
    /// Takes over the columns of a list that is visible, or whose changes were noted while it was.
    /// A hidden column keeps the width that is known for it.
    void store(const QString& name, const SortListView* list);
    /// Gives the list, from `firstColumn` on, what the configuration has for the name. Columns and
    /// widths that it does not know stay as they are. A damaged text changes nothing and is kept
    /// aside.
    void apply(const QString& name, SortListView* list, int firstColumn);
    void storeChanges();

private:
    std::optional<QList<ColumnRecord>> known(const QString& name) const;

    std::map<QString, QPointer<SortListView>> m_changed;
    const SortListView* m_applied = nullptr; ///< The list that gets its columns just now.
    RecordStore m_store{LayoutView, QStringLiteral("FreqStoreListView"),
                        [this] { storeChanges(); }};
};
