// SPDX-License-Identifier: MIT
#pragma once

#include "sortkeys_p.h"
#include "sortlistviewitem.h"

#include <QObject>
#include <QTimer>

#include <memory>
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
    /// Rows were inserted in the model. Appended ones are put in place later, among the others by
    /// what those were last sorted by.
    void rowsInserted(const QModelIndex& parent, int first, int last);
    /// The item came into the tree, by itself or with one above it.
    static void itemArrived(QTreeWidgetItem& item);

    /// The comparison by the keys of the running sort; nothing when there is none or it does not
    /// have both items.
    static std::optional<bool> isLess(const SortListViewItem& a, const QTreeWidgetItem& b);
    /// The rank of the item in the running sort that the first item is in; null when it has none.
    static const double* rankBeside(const SortListViewItem& first, const QTreeWidgetItem& item);

private:
    struct Run;

    class Running;

    void sortRows(int column, Qt::SortOrder order, const Run* earlier);
    void placeArrivals();

    static const Run* s_run;
    /// The number of the running sort while all of its items have ranks, else none.
    static quint32 s_rankedRun;
    SortListView& m_view;
    /// The last sort; null when the list is not sorted, appended rows apart.
    std::shared_ptr<const Run> m_lastRun;
    int m_column = 0;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    QTimer m_arrivals;
};

// Called for most comparisons of a sort, of which there are hundreds of thousands.
inline const double* ListSorter::rankBeside(const SortListViewItem& first,
                                            const QTreeWidgetItem& item)
{
    if (first.m_sortRun != s_rankedRun || item.type() != SortListViewItem::Type ||
        item.treeWidget() != first.treeWidget())
        return nullptr;
    const auto& other = static_cast<const SortListViewItem&>(item);
    return other.m_sortRun == s_rankedRun ? &other.m_sortRank : nullptr;
}
