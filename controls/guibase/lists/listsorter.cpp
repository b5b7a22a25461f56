// SPDX-License-Identifier: MIT
#include "listsorter_p.h"

#include "sortlistview.h"

#include <QAbstractItemModel>
#include <QElapsedTimer>
#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

using std::chrono::milliseconds;

/// Arrivals wait this many times as long as placing the last ones took, so that the program has
/// time for other things in between.
constexpr int pauseFactor = 4;
constexpr milliseconds longestPause(1000);

quint32 nextRunNumber()
{
    static quint32 number = 0;
    return ++number == 0 ? ++number : number; // 0 stands for "never sorted"
}

} // namespace

struct ListSorter::Run
{
    explicit Run(SortListView::CompareFunction function)
        : keys(function)
    {}

    quint32 number = nextRunNumber();
    SortKeys keys;
    bool isRanked = false;      ///< The items' slots are ranks, not numbers of rows.
    bool hasOtherItems = false; ///< There are items that are no SortListViewItems.
};

const ListSorter::Run* ListSorter::s_run = nullptr;

ListSorter::ListSorter(SortListView& view)
    : m_view(view)
{
    m_arrivals.setSingleShot(true);
    connect(&m_arrivals, &QTimer::timeout, this, &ListSorter::placeArrivals);
}

ListSorter::~ListSorter() = default;

ListSorter::Run ListSorter::readKeys(const SortListView& view, QTreeWidgetItem& root, int column)
{
    Run run(view.compareFunction(column));
    std::vector<SortListViewItem*> items;
    std::vector<QTreeWidgetItem*> parents{&root};
    while (!parents.empty()) {
        QTreeWidgetItem* const parent = parents.back();
        parents.pop_back();
        for (int i = 0; i < parent->childCount(); ++i) {
            QTreeWidgetItem* const child = parent->child(i);
            if (child->childCount() > 0)
                parents.push_back(child);
            auto* const item = dynamic_cast<SortListViewItem*>(child);
            if (item == nullptr) {
                run.hasOtherItems = true;
                continue;
            }
            item->m_sortRun = run.number;
            item->m_sortSlot = static_cast<quint32>(items.size());
            items.push_back(item);
            run.keys.add(item->text(column), item->GetSortKey(column));
        }
    }
    if (const std::optional<std::vector<quint32>> ranks = run.keys.ranks()) {
        run.isRanked = true;
        for (std::size_t i = 0; i < items.size(); ++i)
            items[i]->m_sortSlot = ranks->at(i);
    }
    return run;
}

void ListSorter::sortAll(int column, Qt::SortOrder order)
{
    m_arrivals.stop();
    forgetOrder();
    if (!m_view.maySort()) {
        m_view.QTreeWidget::sortItems(column, order);
        return;
    }
    m_sortedColumn = column;
    m_order = order;
    const Run run = readKeys(m_view, *m_view.invisibleRootItem(), column);
    const QScopedValueRollback<const Run*> running(s_run, &run);
    m_view.QTreeWidget::sortItems(column, order);
}

void ListSorter::sortChildren(QTreeWidgetItem& parent, int column, Qt::SortOrder order)
{
    if (!m_view.maySort()) {
        parent.sortChildren(column, order);
        return;
    }
    const Run run = readKeys(m_view, parent, column);
    const QScopedValueRollback<const Run*> running(s_run, &run);
    parent.sortChildren(column, order);
}

void ListSorter::forgetOrder()
{
    m_sortedColumn.reset();
}

void ListSorter::rowsInserted(const QModelIndex& parent, int, int last)
{
    if (!m_sortedColumn)
        return;
    if (last + 1 < m_view.model()->rowCount(parent))
        forgetOrder();
    else if (m_view.maySort() && !m_arrivals.isActive())
        m_arrivals.start();
}

void ListSorter::placeArrivals()
{
    if (!m_sortedColumn || !m_view.maySort())
        return;
    const QPointer<ListSorter> self(this);
    QElapsedTimer time;
    time.start();
    sortAll(*m_sortedColumn, m_order);
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
        return a.m_sortSlot < other->m_sortSlot;
    return run->keys.isLess(a.m_sortSlot, other->m_sortSlot);
}
