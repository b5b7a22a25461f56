// SPDX-License-Identifier: MIT
#pragma once

#include "sortkeys_p.h"
#include "sortlistviewitem.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPersistentModelIndex>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

class ISortCallback;
class QTreeView;
class SortListView;

/// Keeps the row at a view's upper edge in its place while others move. A view that shows its first
/// row goes on showing the first row.
class UpperEdge
{
public:
    /// Notes the row. Nothing happens when it has been noted and the view was not scrolled since.
    void note(QTreeView& view);
    /// Brings it back to its place, and forgets it.
    void restore(QTreeView& view);

private:
    bool m_isNoted = false;
    int m_scrolled = 0;
    QPersistentModelIndex m_row;
    int m_top = 0;
};

/// What the rows of a SortListView are sorted by, the sorting itself, and the placing of rows that
/// arrive in a sorted list.
///
/// The toolkit sorts, and compares the items with their operator<. While it does,
/// SortListViewItem's operator< is answered from keys that were read once per row before.
class ListSorter : public QObject
{
public:
    using CompareFunction = SortListView::CompareFunction;

    explicit ListSorter(SortListView& view);
    ~ListSorter() override;

    void setFunctionCount(int count);
    void setFunction(int column, CompareFunction function);
    CompareFunction functionOf(int column) const;
    void setCallback(ISortCallback* callback) { m_callback = callback; }
    bool hasCallback() const { return m_callback != nullptr; }
    void setAllowed(bool allowed) { m_isAllowed = allowed; }
    bool isAllowed() const { return m_isAllowed; }
    void setPlacingArrivals(bool on);
    bool isPlacingArrivals() const { return m_isPlacing; }

    /// Whether the items compare at all at present.
    bool maySort() const;
    /// See SortListView::SortFunction(); 0 while the list must not sort.
    int compare(int column, const QString& a, const QString& b) const;

    int column() const { return m_column; }
    Qt::SortOrder order() const { return m_order; }
    Qt::SortOrder orderAfterClick(int column) const;

    void sort(int column, Qt::SortOrder order);
    void sortChildren(QTreeWidgetItem& parent, int column, Qt::SortOrder order);
    /// The list is not sorted any more; it stays as it is until it is sorted again.
    void forgetOrder();
    /// Rows were inserted in the model.
    void rowsInserted(const QModelIndex& parent, int last);
    /// The item came into the tree, by itself or with one above it.
    static void itemArrived(QTreeWidgetItem& item);

    /// The comparison in the running sort; nothing when there is none or it does not have both
    /// items.
    static std::optional<bool> isLess(const SortListViewItem& a, const QTreeWidgetItem& b);

private:
    struct Run;

    class Running;

    static std::optional<bool> isLessByKeys(const SortListViewItem& a, const QTreeWidgetItem& b);
    void sortRows(std::shared_ptr<Run> run);
    void adoptOrder();
    bool rankArrivals();
    void placeArrivals();

    static const Run* s_run;
    static const ListSorter* s_sorter; ///< That of the running sort.
    /// The number of the running sort while all of its items have ranks, else none.
    static quint32 s_rankedRun;
    /// The same, and no other items can be compared now.
    static quint32 s_exclusiveRun;

    SortListView& m_view;
    std::vector<CompareFunction> m_functions;
    ISortCallback* m_callback = nullptr;
    bool m_isAllowed = true;
    bool m_isPlacing = false;
    int m_column = 0;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    bool m_isSorted = false;         ///< Apart from appended rows that will be put in place.
    bool m_hasArrivalsBelow = false; ///< Such rows have arrived below others.
    /// The keys of the last sort; null when the list is not sorted or others have sorted it.
    std::shared_ptr<Run> m_run;
    QTimer m_arrivals;
    QElapsedTimer m_lastPlacing;
    std::chrono::milliseconds m_pause{0}; ///< That there is to be behind the last placing.
    UpperEdge m_edge;
};

// Called for each comparison of a sort, of which there are millions.
inline std::optional<bool> ListSorter::isLess(const SortListViewItem& a, const QTreeWidgetItem& b)
{
    if (a.m_sortRun == s_exclusiveRun)
        return a.m_sortRank < static_cast<const SortListViewItem&>(b).m_sortRank;
    if (a.m_sortRun == s_rankedRun && b.type() == SortListViewItem::Type &&
        b.treeWidget() == a.treeWidget()) {
        const auto& other = static_cast<const SortListViewItem&>(b);
        if (other.m_sortRun == s_rankedRun)
            return a.m_sortRank < other.m_sortRank;
    }
    return isLessByKeys(a, b);
}
