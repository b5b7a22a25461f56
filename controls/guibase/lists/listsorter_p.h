// SPDX-License-Identifier: MIT
#pragma once

#include "sortkeys_p.h"
#include "sortlistviewitem.h"

#include <QObject>
#include <QTimer>

#include <optional>

class SortListView;

/// Sorts the rows of a SortListView, and puts rows in their places that arrive in a sorted list.
///
/// The sorting itself is the toolkit's, which compares the items with their operator<. While it
/// runs, SortListViewItem's operator< is answered from keys that were read once per row before.
class ListSorter : public QObject
{
public:
    explicit ListSorter(SortListView& view);
    ~ListSorter() override;

    void sortAll(int column, Qt::SortOrder order);
    void sortChildren(QTreeWidgetItem& parent, int column, Qt::SortOrder order);
    /// The list is not sorted any more; it stays as it is until the next sortAll().
    void forgetOrder();
    /// Rows were inserted in the model.
    void rowsInserted(const QModelIndex& parent, int first, int last);

    /// The comparison by the keys of the running sort; nothing when there is none or it does not
    /// have both items.
    static std::optional<bool> isLess(const SortListViewItem& a, const QTreeWidgetItem& b);

private:
    struct Run;

    static Run readKeys(const SortListView& view, QTreeWidgetItem& root, int column);
    void placeArrivals();

    static const Run* s_run;
    SortListView& m_view;
    std::optional<int> m_sortedColumn; ///< Set as long as the list is sorted but for appended rows.
    Qt::SortOrder m_order = Qt::AscendingOrder;
    QTimer m_arrivals;
};
