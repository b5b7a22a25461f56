// SPDX-License-Identifier: MIT
#include "listsorter_p.h"

#include "sortlistview.h"

#include <QAbstractItemModel>
#include <QElapsedTimer>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <chrono>
#include <limits>
#include <typeinfo>
#include <vector>

namespace {

using std::chrono::milliseconds;

/// Arrivals wait this many times as long as placing the last ones took, so that the program has
/// time for other things in between.
constexpr int pauseFactor = 4;
constexpr milliseconds longestPause(1000);

constexpr quint32 noRun = std::numeric_limits<quint32>::max(); ///< No item has this number.

quint32 nextRunNumber()
{
    static quint32 number = 0;
    number = number + 1 < noRun ? number + 1 : 1; // 0 stands for "never sorted"
    return number;
}

SortListViewItem* castItem(QTreeWidgetItem* item)
{
    // Most rows are of this very class, which is told faster than a class derived from it.
    return typeid(*item) == typeid(SortListViewItem) ? static_cast<SortListViewItem*>(item)
                                                     : dynamic_cast<SortListViewItem*>(item);
}

/// Keeps the row at the view's upper edge there while others move. A view that shows its first row
/// goes on doing so.
class UpperEdge
{
public:
    explicit UpperEdge(QTreeView& view)
        : m_view(view)
    {
        if (view.verticalScrollBar()->value() == view.verticalScrollBar()->minimum())
            return;
        m_row = view.indexAt(QPoint(view.isRightToLeft() ? view.viewport()->width() - 1 : 0, 0));
        m_top = view.visualRect(m_row).top();
    }
    void restore() const
    {
        if (!m_row.isValid() || m_view.visualRect(m_row).top() == m_top)
            return;
        const int left = m_view.horizontalScrollBar()->value();
        m_view.scrollTo(m_row, QAbstractItemView::PositionAtTop);
        if (m_view.verticalScrollMode() == QAbstractItemView::ScrollPerPixel)
            m_view.verticalScrollBar()->setValue(m_view.verticalScrollBar()->value() - m_top);
        m_view.horizontalScrollBar()->setValue(left);
    }

private:
    QTreeView& m_view;
    QPersistentModelIndex m_row;
    int m_top = 0;
};

} // namespace

struct ListSorter::Run
{
    explicit Run(SortListView::CompareFunction function)
        : keys(function)
    {}

    /// Reads the keys of all items below the root. Items of the earlier run keep what they had.
    void readKeys(QTreeWidgetItem& root, int column, const Run* earlier);
    void addItem(SortListViewItem& item, int column, const Run* earlier);
    void rank(const std::vector<SortListViewItem*>& items);

    quint32 number = nextRunNumber();
    SortKeys keys;
    bool isRanked = false;      ///< The items' ranks are set.
    bool hasOtherItems = false; ///< There are items that are no SortListViewItems.
};

/// While it lives, the items are compared by the keys of the run.
class ListSorter::Running
{
public:
    explicit Running(const Run& run)
        : m_run(s_run, &run)
        , m_rankedRun(s_rankedRun, run.isRanked && !run.hasOtherItems ? run.number : noRun)
    {}

private:
    QScopedValueRollback<const Run*> m_run;
    QScopedValueRollback<quint32> m_rankedRun;
};

const ListSorter::Run* ListSorter::s_run = nullptr;
quint32 ListSorter::s_rankedRun = noRun;

ListSorter::ListSorter(SortListView& view)
    : m_view(view)
{
    m_arrivals.setSingleShot(true);
    connect(&m_arrivals, &QTimer::timeout, this, &ListSorter::placeArrivals);
}

ListSorter::~ListSorter() = default;

void ListSorter::Run::addItem(SortListViewItem& item, int column, const Run* earlier)
{
    const quint32 row = keys.count();
    if (earlier != nullptr && item.m_sortRun == earlier->number)
        keys.add(earlier->keys, item.m_sortRow);
    else
        keys.add(item.text(column), item.GetSortKey(column));
    item.m_sortRun = number;
    item.m_sortRow = row;
}

void ListSorter::Run::readKeys(QTreeWidgetItem& root, int column, const Run* earlier)
{
    std::vector<SortListViewItem*> items;
    items.reserve(static_cast<std::size_t>(root.childCount()));
    std::vector<QTreeWidgetItem*> parents{&root};
    while (!parents.empty()) {
        QTreeWidgetItem* const parent = parents.back();
        parents.pop_back();
        for (int i = 0; i < parent->childCount(); ++i) {
            QTreeWidgetItem* const child = parent->child(i);
            if (child->childCount() > 0)
                parents.push_back(child);
            if (auto* const item = castItem(child)) {
                addItem(*item, column, earlier);
                items.push_back(item);
            } else {
                hasOtherItems = true;
            }
        }
    }
    rank(items);
}

void ListSorter::Run::rank(const std::vector<SortListViewItem*>& items)
{
    const std::optional<std::vector<double>> ranks = keys.ranks();
    isRanked = ranks.has_value();
    for (std::size_t i = 0; isRanked && i < items.size(); ++i)
        items[i]->m_sortRank = (*ranks)[i];
}

void ListSorter::sortAll(int column, Qt::SortOrder order)
{
    forgetOrder();
    if (m_view.maySort())
        sortRows(column, order, nullptr);
    else
        m_view.QTreeWidget::sortItems(column, order);
}

void ListSorter::sortRows(int column, Qt::SortOrder order, const Run* earlier)
{
    m_arrivals.stop();
    auto run = std::make_shared<Run>(m_view.compareFunction(column));
    run->readKeys(*m_view.invisibleRootItem(), column, earlier);
    m_order = order;
    m_column = column;
    m_lastRun = run;
    const Running running(*run);
    m_view.QTreeWidget::sortItems(column, order);
}

void ListSorter::sortChildren(QTreeWidgetItem& parent, int column, Qt::SortOrder order)
{
    Run run(m_view.compareFunction(column));
    if (m_view.maySort())
        run.readKeys(parent, column, nullptr);
    const Running running(run);
    parent.sortChildren(column, order);
}

void ListSorter::forgetOrder()
{
    m_lastRun.reset();
}

void ListSorter::rowsInserted(const QModelIndex& parent, int, int last)
{
    if (!m_lastRun)
        return;
    if (last + 1 < m_view.model()->rowCount(parent))
        forgetOrder();
    else if (m_view.maySort() && !m_arrivals.isActive())
        m_arrivals.start();
}

void ListSorter::itemArrived(QTreeWidgetItem& item)
{
    // It may have been in the list before, with other texts.
    if (auto* const listItem = castItem(&item))
        listItem->m_sortRun = 0;
}

void ListSorter::placeArrivals()
{
    if (!m_lastRun || !m_view.maySort())
        return;
    const QPointer<ListSorter> self(this);
    const std::shared_ptr<const Run> earlier = m_lastRun;
    QElapsedTimer time;
    time.start();
    const UpperEdge edge(m_view);
    sortRows(m_column, m_order, earlier.get());
    if (self)
        edge.restore();
    if (self)
        m_arrivals.setInterval(std::min(milliseconds(pauseFactor * time.elapsed()), longestPause));
}

std::optional<bool> ListSorter::isLess(const SortListViewItem& a, const QTreeWidgetItem& b)
{
    const Run* const run = s_run;
    if (run == nullptr || a.m_sortRun != run->number)
        return std::nullopt;
    const bool isOurs = !run->hasOtherItems && b.type() == SortListViewItem::Type &&
                        b.treeWidget() == a.treeWidget();
    const auto* const other = isOurs ? static_cast<const SortListViewItem*>(&b)
                                     : dynamic_cast<const SortListViewItem*>(&b);
    if (other == nullptr || other->m_sortRun != run->number)
        return std::nullopt;
    if (run->isRanked)
        return a.m_sortRank < other->m_sortRank;
    return run->keys.isLess(a.m_sortRow, other->m_sortRow);
}
