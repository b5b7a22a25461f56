// SPDX-License-Identifier: MIT
#include "listsorter_p.h"

#include "isortcallback.h"
#include "sortlistview.h"

#include <QAbstractItemModel>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <limits>
#include <typeinfo>
#include <utility>

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

bool isPlainItem(const QTreeWidgetItem& item)
{
    return typeid(item) == typeid(SortListViewItem);
}

SortListViewItem* castItem(QTreeWidgetItem* item)
{
    // Most rows are of this very class, which is told faster than a class derived from it.
    return isPlainItem(*item) ? static_cast<SortListViewItem*>(item)
                              : dynamic_cast<SortListViewItem*>(item);
}

} // namespace

ISortCallback::~ISortCallback() = default;

// --- The row at the upper edge ------------------------------------------------------------------

void UpperEdge::note(QTreeView& view)
{
    const QScrollBar& bar = *view.verticalScrollBar();
    if (m_isNoted && m_scrolled == bar.value())
        return;
    m_isNoted = true;
    m_scrolled = bar.value();
    m_row = QPersistentModelIndex();
    if (m_scrolled == bar.minimum())
        return;
    m_row = view.indexAt(QPoint(view.isRightToLeft() ? view.viewport()->width() - 1 : 0, 0));
    m_top = view.visualRect(m_row).top();
}

void UpperEdge::restore(QTreeView& view)
{
    m_isNoted = false;
    const QPersistentModelIndex row = std::exchange(m_row, {});
    if (!row.isValid() || view.visualRect(row).top() == m_top)
        return;
    const int left = view.horizontalScrollBar()->value();
    view.scrollTo(row, QAbstractItemView::PositionAtTop);
    if (view.verticalScrollMode() == QAbstractItemView::ScrollPerPixel)
        view.verticalScrollBar()->setValue(view.verticalScrollBar()->value() - m_top);
    view.horizontalScrollBar()->setValue(left);
}

// --- The keys of one sort -----------------------------------------------------------------------

struct ListSorter::Run
{
    explicit Run(SortListView::CompareFunction function)
        : keys(function)
    {}

    using Items = std::vector<SortListViewItem*>;

    /// Reads the keys of all items below the root. Items of the earlier run keep what they had.
    void readKeys(QTreeWidgetItem& root, int column, const Run* earlier);
    void addItem(SortListViewItem& item, int column, const Run* earlier);
    /// Reads and ranks the items that came behind the rows of this run. False when that cannot be
    /// told without ranking all items anew.
    bool addArrivals(const QTreeWidgetItem& root, Qt::SortOrder order, int column);
    /// The same for items that are compared as texts, behind the first `sorted` rows.
    void rankArrivals(const QTreeWidgetItem& root, int sorted, Qt::SortOrder order, Items arrivals);

    quint32 number = nextRunNumber();
    SortKeys keys;
    bool isRanked = false;         ///< The items' ranks are set.
    bool isFlat = true;            ///< No item has children.
    bool hasOtherItems = false;    ///< There are items that are no SortListViewItems.
    bool hasOnlyPlainItems = true; ///< None of a class derived from SortListViewItem, either.
};

/// While it lives, the items are compared by the keys of the run.
class ListSorter::Running
{
public:
    Running(const ListSorter& sorter, const Run& run)
        : m_run(s_run, &run)
        , m_sorter(s_sorter, &sorter)
        , m_rankedRun(s_rankedRun, run.isRanked && !run.hasOtherItems ? run.number : noRun)
    {
        if (s_rankedRun == noRun || !run.hasOnlyPlainItems)
            return;
        // The last slot of the signal, after which the toolkit does nothing but sort.
        QObject::connect(sorter.m_view.model(), &QAbstractItemModel::layoutAboutToBeChanged,
                         &m_lastSlot, [number = run.number] { s_exclusiveRun = number; });
    }
    ~Running() { s_exclusiveRun = noRun; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

private:
    QScopedValueRollback<const Run*> m_run;
    QScopedValueRollback<const ListSorter*> m_sorter;
    QScopedValueRollback<quint32> m_rankedRun;
    QObject m_lastSlot;
};

const ListSorter::Run* ListSorter::s_run = nullptr;
const ListSorter* ListSorter::s_sorter = nullptr;
quint32 ListSorter::s_rankedRun = noRun;
quint32 ListSorter::s_exclusiveRun = noRun;

void ListSorter::Run::addItem(SortListViewItem& item, int column, const Run* earlier)
{
    const quint32 row = keys.count();
    if (earlier != nullptr && item.m_sortRun == earlier->number)
        keys.add(earlier->keys, item.m_sortRow);
    else
        keys.add(item.text(column), item.GetSortKey(column));
    item.m_sortRun = number;
    item.m_sortRow = row;
    item.m_sortRank = keys.number(row);
}

void ListSorter::Run::readKeys(QTreeWidgetItem& root, int column, const Run* earlier)
{
    Items items;
    items.reserve(static_cast<std::size_t>(root.childCount()));
    std::vector<QTreeWidgetItem*> parents{&root};
    while (!parents.empty()) {
        QTreeWidgetItem* const parent = parents.back();
        parents.pop_back();
        for (int i = 0; i < parent->childCount(); ++i) {
            QTreeWidgetItem* const child = parent->child(i);
            if (child->childCount() > 0) {
                parents.push_back(child);
                isFlat = false;
            }
            if (auto* const item = castItem(child)) {
                addItem(*item, column, earlier);
                items.push_back(item);
            } else {
                hasOtherItems = true;
            }
            hasOnlyPlainItems = hasOnlyPlainItems && isPlainItem(*child);
        }
    }
    isRanked = keys.canRank();
    if (!isRanked || keys.isNumeric())
        return;
    const std::vector<double> ranks = keys.ranks();
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i]->m_sortRank = ranks[i];
}

bool ListSorter::Run::addArrivals(const QTreeWidgetItem& root, Qt::SortOrder order, int column)
{
    Items arrivals;
    int sorted = root.childCount();
    for (; sorted > 0; --sorted) {
        SortListViewItem* const item = castItem(root.child(sorted - 1));
        if (item == nullptr)
            return false;
        if (item->m_sortRun == number)
            break;
        if (item->childCount() > 0)
            return false;
        addItem(*item, column, nullptr);
        hasOnlyPlainItems = hasOnlyPlainItems && isPlainItem(*item);
        if (!keys.isNumeric())
            arrivals.push_back(item);
    }
    if (!keys.canRank())
        return false;
    if (!keys.isNumeric())
        rankArrivals(root, sorted, order, std::move(arrivals));
    return true;
}

void ListSorter::Run::rankArrivals(const QTreeWidgetItem& root, int sorted, Qt::SortOrder order,
                                   Items arrivals)
{
    const auto isLess = [this](const SortListViewItem* a, const SortListViewItem* b) {
        return keys.isLess(a->m_sortRow, b->m_sortRow);
    };
    std::sort(arrivals.begin(), arrivals.end(), isLess);
    const auto rowAt = [&](int i) {
        const int row = order == Qt::AscendingOrder ? i : sorted - 1 - i;
        return static_cast<SortListViewItem*>(root.child(row));
    };
    // One pass over all rows in their order: each gets the rank of the one before it when the two
    // are equal, else the next one. Rows that were there are equal when their ranks were.
    const SortListViewItem* before = nullptr;
    double rankWas = 0;
    double rank = 0;
    const auto rankNext = [&](SortListViewItem& item, bool isEqual) {
        rankWas = std::exchange(item.m_sortRank, rank = isEqual ? rank : rank + 1);
        before = &item;
    };
    int done = 0;
    const auto rankRowsUpTo = [&](int end, const SortListViewItem* arrival) {
        for (; done < end; ++done) {
            SortListViewItem& item = *rowAt(done);
            rankNext(item, before != nullptr && (before == arrival ? !isLess(arrival, &item)
                                                                   : rankWas == item.m_sortRank));
        }
    };
    const SortListViewItem* former = nullptr;
    for (SortListViewItem* const item : arrivals) {
        int low = done;
        for (int high = sorted; low < high;) {
            const int middle = low + (high - low) / 2;
            if (isLess(rowAt(middle), item))
                low = middle + 1;
            else
                high = middle;
        }
        rankRowsUpTo(low, former);
        rankNext(*item, former != nullptr && before == former && !isLess(former, item));
        former = item;
    }
    rankRowsUpTo(sorted, former);
}

// --- What is sorted by --------------------------------------------------------------------------

ListSorter::ListSorter(SortListView& view)
    : m_view(view)
{
    m_arrivals.setSingleShot(true);
    connect(&m_arrivals, &QTimer::timeout, this, &ListSorter::placeArrivals);
    connect(view.model(), &QAbstractItemModel::layoutChanged, this, &ListSorter::adoptOrder);
}

ListSorter::~ListSorter() = default;

void ListSorter::setFunctionCount(int count)
{
    forgetOrder();
    m_functions.resize(static_cast<std::size_t>(std::max(count, 0)), nullptr);
}

void ListSorter::setFunction(int column, CompareFunction chosen)
{
    if (column < 0 || static_cast<std::size_t>(column) >= m_functions.size())
        return;
    forgetOrder();
    m_functions[static_cast<std::size_t>(column)] = chosen;
}

ListSorter::CompareFunction ListSorter::functionOf(int column) const
{
    const bool isSet = column >= 0 && static_cast<std::size_t>(column) < m_functions.size();
    return isSet ? m_functions[static_cast<std::size_t>(column)] : nullptr;
}

bool ListSorter::maySort() const
{
    return m_callback == nullptr && m_isAllowed && m_view.isVisible();
}

int ListSorter::compare(int column, const QString& a, const QString& b) const
{
    if (!maySort())
        return 0;
    const CompareFunction own = functionOf(column);
    return own == nullptr ? a.compare(b) : own(b, a);
}

Qt::SortOrder ListSorter::orderAfterClick(int column) const
{
    if (column != m_column)
        return m_order;
    return m_order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
}

// --- Sorting ------------------------------------------------------------------------------------

void ListSorter::sort(int column, Qt::SortOrder order)
{
    m_column = column;
    m_order = order;
    forgetOrder();
    const QPointer<ListSorter> self(this);
    if (m_callback != nullptr && m_callback->sort(column, order == Qt::AscendingOrder))
        return;
    if (!self || !m_isAllowed)
        return;
    const bool hasColumn = column >= 0 && column < m_view.columnCount();
    if (!m_view.isVisible() || !hasColumn) {
        m_view.header()->setSortIndicator(hasColumn ? column : -1, order);
    } else if (maySort()) {
        auto run = std::make_shared<Run>(functionOf(column));
        run->readKeys(*m_view.invisibleRootItem(), column, nullptr);
        sortRows(std::move(run));
    } else {
        m_view.QTreeWidget::sortItems(column, order);
    }
}

void ListSorter::sortRows(std::shared_ptr<Run> run)
{
    m_arrivals.stop();
    m_hasArrivalsBelow = false;
    m_isSorted = true;
    m_run = run;
    const Running running(*this, *run);
    QHeaderView& header = *m_view.header();
    const bool isIndicated =
        header.sortIndicatorSection() == m_column && header.sortIndicatorOrder() == m_order;
    if (m_view.isSortingEnabled()) {
        // The toolkit sorts as soon as the indicator changes.
        if (!isIndicated)
            header.setSortIndicator(m_column, m_order);
        else
            m_view.QTreeWidget::sortItems(m_column, m_order);
    } else if (run->isFlat) {
        // sortItems() would ask every row for its children, which costs more than placing a few.
        const QPointer<ListSorter> self(this);
        header.setSortIndicator(m_column, m_order);
        if (self)
            m_view.invisibleRootItem()->sortChildren(m_column, m_order);
    } else {
        m_view.QTreeWidget::sortItems(m_column, m_order);
    }
}

/// Others have sorted: the toolkit, for sortItems() or at a change of the sort indicator.
void ListSorter::adoptOrder()
{
    s_exclusiveRun = noRun;
    if (s_sorter == this)
        return;
    const QHeaderView& header = *m_view.header();
    const int column = header.sortIndicatorSection();
    const bool hasEffect = m_view.isVisible() || m_view.isSortingEnabled();
    if (!hasEffect || !m_isAllowed || m_callback != nullptr || column < 0 ||
        column >= m_view.columnCount())
        return;
    m_column = column;
    m_order = header.sortIndicatorOrder();
    m_run.reset();
    m_isSorted = true;
}

void ListSorter::sortChildren(QTreeWidgetItem& parent, int column, Qt::SortOrder order)
{
    Run run(functionOf(column));
    if (maySort())
        run.readKeys(parent, column, nullptr);
    m_run.reset(); // its items have other keys now
    const Running running(*this, run);
    parent.sortChildren(column, order);
}

void ListSorter::forgetOrder()
{
    m_isSorted = false;
    m_run.reset();
}

std::optional<bool> ListSorter::isLessByKeys(const SortListViewItem& a, const QTreeWidgetItem& b)
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

// --- Rows that arrive ---------------------------------------------------------------------------

void ListSorter::setPlacingArrivals(bool on)
{
    m_isPlacing = on;
    if (on || !m_arrivals.isActive())
        return;
    // Those that wait stay where they are, too.
    m_arrivals.stop();
    forgetOrder();
}

void ListSorter::rowsInserted(const QModelIndex& parent, int last)
{
    if (!m_isSorted)
        return;
    if (m_view.isSortingEnabled()) {
        m_run.reset(); // the toolkit puts the rows in place
        return;
    }
    if (last + 1 < m_view.model()->rowCount(parent) || !m_isPlacing) {
        forgetOrder();
        return;
    }
    m_hasArrivalsBelow = m_hasArrivalsBelow || parent.isValid();
    if (!maySort() || m_arrivals.isActive())
        return;
    m_edge.note(m_view);
    const milliseconds waited =
        m_lastPlacing.isValid() ? milliseconds(m_lastPlacing.elapsed()) : m_pause;
    m_arrivals.start(std::max(m_pause - waited, milliseconds(0)));
}

void ListSorter::itemArrived(QTreeWidgetItem& item)
{
    // It may have been in the list before, with other texts.
    if (auto* const listItem = castItem(&item))
        listItem->m_sortRun = 0;
}

/// Whether the arrivals have ranks among the other rows now; else all rows must be ranked anew.
bool ListSorter::rankArrivals()
{
    const QTreeWidgetItem& root = *m_view.invisibleRootItem();
    if (!m_run || !m_run->isRanked || m_run->hasOtherItems || m_hasArrivalsBelow ||
        m_run->keys.count() / 2 > static_cast<quint32>(root.childCount()))
        return false;
    return m_run->addArrivals(root, m_order, m_column);
}

void ListSorter::placeArrivals()
{
    if (!m_isSorted || !maySort())
        return;
    const QPointer<ListSorter> self(this);
    QElapsedTimer time;
    time.start();
    m_edge.note(m_view);
    std::shared_ptr<Run> run = m_run;
    if (!rankArrivals()) {
        run = std::make_shared<Run>(functionOf(m_column));
        run->readKeys(*m_view.invisibleRootItem(), m_column, m_run.get());
    }
    sortRows(std::move(run));
    if (self)
        m_edge.restore(m_view);
    if (!self)
        return;
    m_pause = std::min(milliseconds(pauseFactor * time.elapsed()), longestPause);
    m_lastPlacing.start();
}
