// SPDX-License-Identifier: MIT
#include "sortlistview.h"

#include "checksortlistviewitem.h"
#include "itemwalk_p.h"
#include "listcolumns_p.h"
#include "listheader_p.h"
#include "listsorter_p.h"
#include "sortlistviewitem.h"

#include <guibase/lists/columns/listcolumnkeys.h>

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTreeWidgetItemIterator>

#include <algorithm>
#include <optional>
#include <typeinfo>

namespace {

SortListViewItem* cast(QTreeWidgetItem* item)
{
    return dynamic_cast<SortListViewItem*>(item);
}

/// The item came into a view, by itself or with one above it.
void arrive(QTreeWidgetItem& item)
{
    if (item.type() != SortListViewItem::Type)
        return;
    ListSorter::itemArrived(item);
    // Most rows are of this class, or will be of another only when they are whole.
    if (typeid(item) == typeid(SortListViewItem))
        return;
    if (auto* const checkItem = dynamic_cast<CheckSortListViewItem*>(&item))
        checkItem->restoreCheckBox();
}

} // namespace

struct SortListView::Private
{
    explicit Private(SortListView& view)
        : columnKeys(view)
        , columns(view)
        , sorter(view)
    {}

    ListColumnKeys columnKeys;
    ListColumns columns;
    QPointer<QMenu> contextMenu;
    int childCursor = 0;
    ListSorter sorter;
};

SortListView::SortListView(QWidget* parent, const char* name)
    : QTreeWidget(parent)
    , d(std::make_unique<Private>(*this))
{
    setHeader(new ListHeader(*this));
    header()->setSectionsClickable(true); // setHeader() has switched it off.
    header()->setSortIndicator(d->sorter.column(), d->sorter.order());
    if (name != nullptr)
        setObjectName(QString::fromUtf8(name));
    setRootIsDecorated(false);
    setTabKeyNavigation(false);
    header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connectSignals();
}

void SortListView::connectSignals()
{
    connect(header(), &QHeaderView::sectionClicked, this, &SortListView::slotHeaderClicked);
    const auto keepColumns = [this] { d->columns.keep(); };
    connect(header(), &QHeaderView::sectionResized, this, keepColumns);
    connect(header(), &QHeaderView::sectionMoved, this, keepColumns);
    connect(header(), &QHeaderView::sectionCountChanged, this,
            [this](int oldCount, int newCount) { d->columns.applyFrom(oldCount, newCount); });
    connect(this, &SortListView::contextMenuRequested, this,
            &SortListView::slotContextMenuRequested);
    connect(this, &QTreeWidget::itemDoubleClicked, this, &SortListView::slotDoubleClicked);
    connect(this, &QTreeWidget::itemActivated, this, &SortListView::slotClicked);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &SortListView::slotSelectionChanged);
    connect(this, &QTreeWidget::itemCollapsed, this, &SortListView::slotCollapsed);
    connect(this, &QTreeWidget::itemExpanded, this, &SortListView::slotExpanded);
}

SortListView::~SortListView()
{
    saveColumnStatus();
    disconnect(header(), nullptr, this, nullptr);
    disconnect(this, nullptr, this, nullptr);
}

ListSorter& SortListView::sorter() const
{
    return d->sorter;
}

bool SortListView::hasItem(const QTreeWidgetItem* item) const
{
    return item != nullptr && item->treeWidget() == this;
}

// --- Columns -------------------------------------------------------------------------------------

int SortListView::addColumn(const QString& text)
{
    d->columns.add(text);
    return columnCount();
}

int SortListView::columns() const
{
    return columnCount();
}

QString SortListView::columnText(int column) const
{
    return d->columns.text(column);
}

void SortListView::setColumnText(int column, const QString& text)
{
    d->columns.setText(column, text);
}

void SortListView::setColumnAlignment(unsigned column, int alignment)
{
    d->columns.setAlignment(column, alignment);
}

int SortListView::columnAlignment(int column) const
{
    return d->columns.alignment(column);
}

void SortListView::applyAlignment(QTreeWidgetItem* item) const
{
    if (item != nullptr)
        d->columns.applyAlignment(*item);
}

void SortListView::setColumnWidthMode(int column, QHeaderView::ResizeMode mode)
{
    if (d->columns.has(column))
        header()->setSectionResizeMode(column, mode);
}

void SortListView::SetColumnWidthPersistantName(const QString& name)
{
    d->columns.setName(name);
}

QString SortListView::columnsName() const
{
    return d->columns.name();
}

void SortListView::saveColumnStatus()
{
    d->columns.store();
}

void SortListView::setColumnSelectionMenu(bool on)
{
    d->columns.setHasMenu(on);
    if (on)
        connect(header(), &QWidget::customContextMenuRequested, this,
                &SortListView::slotHeaderContextMenuRequested, Qt::UniqueConnection);
    else
        disconnect(header(), &QWidget::customContextMenuRequested, this,
                   &SortListView::slotHeaderContextMenuRequested);
}

bool SortListView::hasColumnSelectionMenu() const
{
    return d->columns.hasMenu();
}

void SortListView::slotHeaderContextMenuRequested(QPoint pos)
{
    d->columns.runMenu(header()->viewport()->mapToGlobal(pos));
}

// --- Sorting -------------------------------------------------------------------------------------

void SortListView::SetCompareFunctionLength(int count)
{
    d->sorter.setFunctionCount(count);
}

void SortListView::SetCompareFunction(int column, CompareFunction function)
{
    d->sorter.setFunction(column, function);
}

bool SortListView::HasSortFunction(int column) const
{
    return !d->sorter.hasCallback() && d->sorter.functionOf(column) != nullptr;
}

int SortListView::SortFunction(int column, const QString& a, const QString& b) const
{
    return d->sorter.compare(column, a, b);
}

void SortListView::SetSortCallback(ISortCallback* callback)
{
    d->sorter.setCallback(callback);
}

void SortListView::AllowSort(bool allow)
{
    d->sorter.setAllowed(allow);
}

void SortListView::setPlacingArrivals(bool on)
{
    d->sorter.setPlacingArrivals(on);
}

bool SortListView::isPlacingArrivals() const
{
    return d->sorter.isPlacingArrivals();
}

void SortListView::setSorting(int column, Qt::SortOrder order)
{
    sortByColumn(column, order);
}

void SortListView::setSorting(int column, bool ascending)
{
    setSorting(column, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

Qt::SortOrder SortListView::GetColumnSortingOrder() const
{
    return d->sorter.order();
}

void SortListView::sort()
{
    sortByColumn(d->sorter.column(), d->sorter.order());
}

void SortListView::sortByColumn(int column, Qt::SortOrder order)
{
    d->sorter.sort(column, order);
}

// --- The older navigation interface --------------------------------------------------------------

SortListViewItem* SortListView::currentItem() const
{
    return cast(QTreeWidget::currentItem());
}

SortListViewItem* SortListView::selectedItem() const
{
    return cast(selectedItems().value(0));
}

SortListViewItem* SortListView::firstChild()
{
    d->childCursor = 0;
    return cast(topLevelItem(0));
}

SortListViewItem* SortListView::nextChild()
{
    d->childCursor = std::min(d->childCursor + 1, topLevelItemCount());
    return cast(topLevelItem(d->childCursor));
}

int SortListView::childCount() const
{
    return topLevelItemCount();
}

SortListViewItem* SortListView::findItem(const QString& text, int column,
                                         Qt::CaseSensitivity caseSensitivity) const
{
    // The iterator wants a tree that it may change, but does not change it.
    for (QTreeWidgetItemIterator it(const_cast<SortListView*>(this)); *it != nullptr; ++it) {
        if ((*it)->text(column).compare(text, caseSensitivity) == 0)
            return cast(*it);
    }
    return nullptr;
}

void SortListView::takeItem(QTreeWidgetItem* item)
{
    if (!hasItem(item))
        return;
    if (item->parent() != nullptr)
        item->parent()->removeChild(item);
    else
        takeTopLevelItem(indexOfTopLevelItem(item));
}

bool SortListView::isSelected(const QTreeWidgetItem* item) const
{
    return hasItem(item) && item->isSelected();
}

void SortListView::setSelected(QTreeWidgetItem* item, bool selected)
{
    if (hasItem(item))
        item->setSelected(selected);
}

void SortListView::setShowSortIndicator(bool show)
{
    header()->setSortIndicatorShown(show);
}

void SortListView::setMultiSelection(bool multi)
{
    setSelectionMode(multi ? MultiSelection : SingleSelection);
}

void SortListView::ensureItemVisible(const QTreeWidgetItem* item)
{
    if (hasItem(item))
        scrollToItem(item);
}

QRect SortListView::itemRect(const QTreeWidgetItem* item) const
{
    return hasItem(item) ? visualItemRect(item) : QRect();
}

int SortListView::height(const QTreeWidgetItem* item) const
{
    return itemRect(item).height();
}

void SortListView::setContextMenu(QMenu* menu)
{
    d->contextMenu = menu;
}

QMenu* SortListView::contextMenu() const
{
    return d->contextMenu;
}

// --- Slots ---------------------------------------------------------------------------------------

void SortListView::slotContextMenuRequested(SortListViewItem*, QPoint pos, int)
{
    if (d->contextMenu)
        d->contextMenu->exec(pos);
}

void SortListView::slotHeaderClicked(int column)
{
    // Where the toolkit's own sorting is on, it has sorted.
    const auto* const ownHeader = dynamic_cast<const ListHeader*>(header());
    if (ownHeader != nullptr && ownHeader->isInClick() && d->sorter.maySort())
        return;
    const Qt::SortOrder order = d->sorter.orderAfterClick(column);
    const QPointer<SortListView> self(this);
    sortByColumn(column, order);
    if (self)
        header()->setSortIndicator(column, order);
}

/// Null for none and for several. Like selectedItems(), which would list all of them, regardless of
/// hidden rows.
QTreeWidgetItem* SortListView::onlySelectedItem() const
{
    QTreeWidgetItem* only = nullptr;
    const QItemSelection ranges = selectionModel()->selection();
    for (const QItemSelectionRange& range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            QTreeWidgetItem* const item = itemFromIndex(model()->index(row, 0, range.parent()));
            if (item == nullptr || item == only || item->isHidden())
                continue;
            if (only != nullptr)
                return nullptr;
            only = item;
        }
    }
    return only;
}

void SortListView::slotSelectionChanged()
{
    if (!isVisible())
        return;
    if (SortListViewItem* const item = cast(onlySelectedItem()))
        Q_EMIT selectionChanged(item);
}

void SortListView::slotDoubleClicked(QTreeWidgetItem* item, int)
{
    Q_EMIT doubleClicked(cast(item));
}

void SortListView::slotClicked(QTreeWidgetItem* item, int)
{
    SortListViewItem* const listItem = cast(item);
    // Whoever hears of it may delete the row, or the view.
    const QPointer<SortListView> self(this);
    const QPersistentModelIndex index(indexFromItem(item));
    Q_EMIT clicked(listItem);
    if (self && listItem != nullptr && index.isValid() && itemFromIndex(index) == listItem)
        listItem->activate();
}

void SortListView::slotExpanded(QTreeWidgetItem* item)
{
    if (auto* const listItem = cast(item))
        listItem->setOpen(true);
}

void SortListView::slotCollapsed(QTreeWidgetItem* item)
{
    if (auto* const listItem = cast(item))
        listItem->setOpen(false);
}

// --- Events --------------------------------------------------------------------------------------

void SortListView::showEvent(QShowEvent* event)
{
    QTreeWidget::showEvent(event);
    if (d->sorter.isAllowed())
        sort();
}

void SortListView::hideEvent(QHideEvent* event)
{
    QTreeWidget::hideEvent(event);
    saveColumnStatus();
}

void SortListView::contextMenuEvent(QContextMenuEvent* event)
{
    QTreeWidgetItem* const current = QTreeWidget::currentItem();
    if (event->reason() == QContextMenuEvent::Keyboard && current != nullptr) {
        const QPoint middle = visualItemRect(current).intersected(viewport()->rect()).center();
        Q_EMIT contextMenuRequested(cast(current), viewport()->mapToGlobal(middle),
                                    currentColumn());
        return;
    }
    Q_EMIT contextMenuRequested(cast(itemAt(event->pos())), event->globalPos(),
                                columnAt(event->pos().x()));
}

void SortListView::keyPressEvent(QKeyEvent* event)
{
    const std::optional<ListColumnKeys::Command> command = ListColumnKeys::commandOf(*event);
    if (!command || (*command == ListColumnKeys::OpenMenu && !d->columns.hasMenu()))
        QTreeWidget::keyPressEvent(event);
    else if (*command == ListColumnKeys::OpenMenu)
        slotHeaderContextMenuRequested(QPoint(0, header()->height()));
    else
        d->columnKeys.perform(*command);
}

void SortListView::rowsInserted(const QModelIndex& parent, int first, int last)
{
    // First the sorter: its step then comes before the view's layout, which need not run twice.
    d->sorter.rowsInserted(parent, last);
    QTreeWidget::rowsInserted(parent, first, last);
    const QTreeWidgetItem* const owner =
        parent.isValid() ? itemFromIndex(parent) : invisibleRootItem();
    for (int row = first; row <= last && owner != nullptr; ++row) {
        QTreeWidgetItem* const item = owner->child(row);
        if (item != nullptr && item->childCount() == 0)
            arrive(*item);
        else if (item != nullptr)
            ItemWalk::visitAll(*item, arrive);
    }
}

void SortListView::selectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected)
{
    QTreeWidget::selectionChanged(selected, deselected);
}
