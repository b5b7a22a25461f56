// SPDX-License-Identifier: MIT
#include "sortlistview.h"

#include "checksortlistviewitem.h"
#include "isortcallback.h"
#include "itemwalk_p.h"
#include "listsorter_p.h"
#include "sortlistviewitem.h"

#include <guibase/lists/columns/listcolumnkeys.h>
#include <guibase/services/guibase.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPersistentModelIndex>
#include <QTreeWidgetItemIterator>

#include <algorithm>
#include <typeinfo>

namespace {

constexpr unsigned maximumColumns = 4096;

SortListViewItem* cast(QTreeWidgetItem* item)
{
    return dynamic_cast<SortListViewItem*>(item);
}

/// f(x, y) of the numeric compare functions, on what `part` cuts from the texts.
template <typename Part>
int compareNumbers(const QString& x, const QString& y, Part part)
{
    bool xIsNumber = false;
    bool yIsNumber = false;
    const double xNumber = part(x).toDouble(&xIsNumber);
    const double yNumber = part(y).toDouble(&yIsNumber);
    if (!xIsNumber || !yIsNumber)
        return 0;
    if (xNumber > yNumber)
        return -1;
    return xNumber != yNumber ? 1 : 0;
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

ISortCallback::~ISortCallback() = default;

SortListView::SortListView(QWidget* parent, const char* name)
    : QTreeWidget(parent)
    , m_headerMenu(new QMenu(this))
    , m_columnKeys(std::make_unique<ListColumnKeys>(*this))
    , m_sorter(std::make_unique<ListSorter>(*this))
{
    if (name != nullptr)
        setObjectName(QString::fromUtf8(name));
    setRootIsDecorated(false);
    header()->setSectionsClickable(true);
    header()->setContextMenuPolicy(Qt::CustomContextMenu);
    m_headerMenu->setObjectName(QStringLiteral("HeaderContextMenu"));
    connectSignals();
}

void SortListView::connectSignals()
{
    connect(header(), &QHeaderView::sectionClicked, this, &SortListView::slotHeaderClicked);
    connect(header(), &QHeaderView::sectionResized, this, &SortListView::keepColumns);
    connect(header(), &QHeaderView::sectionMoved, this, &SortListView::keepColumns);
    connect(header(), &QHeaderView::sectionCountChanged, this, &SortListView::applyColumns);
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
    qDeleteAll(std::exchange(m_columnActions, {}));
}

bool SortListView::hasColumn(int column) const
{
    return column >= 0 && column < columnCount();
}

bool SortListView::hasItem(const QTreeWidgetItem* item) const
{
    return item != nullptr && item->treeWidget() == this;
}

// --- Columns
// ---------------------------------------------------------------------------------------

int SortListView::addColumn(const QString& text)
{
    m_labels.append(text);
    setColumnCount(static_cast<int>(m_labels.size()));
    setHeaderLabels(m_labels);
    QAction* const action = m_headerMenu->addAction(text);
    action->setCheckable(true);
    m_columnActions.append(action);
    return columnCount();
}

int SortListView::columns() const
{
    return columnCount();
}

QString SortListView::columnText(int column) const
{
    return hasColumn(column) ? headerItem()->text(column) : QString();
}

void SortListView::setColumnText(int column, const QString& text)
{
    if (!hasColumn(column))
        return;
    headerItem()->setText(column, text);
    if (column < m_labels.size()) {
        m_labels[column] = text;
        m_columnActions.at(column)->setText(text);
    }
}

void SortListView::setColumnAlignment(unsigned column, int alignment)
{
    if (column >= maximumColumns)
        return;
    if (column >= m_alignments.size())
        m_alignments.resize(column + std::size_t(1), alignment);
    m_alignments[column] = alignment;
}

int SortListView::columnAlignment(int column) const
{
    const bool isSet = column >= 0 && static_cast<std::size_t>(column) < m_alignments.size();
    return isSet ? m_alignments[static_cast<std::size_t>(column)] : int(Qt::AlignLeft);
}

void SortListView::applyAlignment(QTreeWidgetItem* item) const
{
    if (item == nullptr)
        return;
    int column = 0;
    for (const int alignment : m_alignments)
        item->setTextAlignment(column++, Qt::Alignment(alignment));
}

void SortListView::setColumnWidthMode(int column, QHeaderView::ResizeMode mode)
{
    if (hasColumn(column))
        header()->setSectionResizeMode(column, mode);
}

void SortListView::SetColumnWidthPersistantName(const QString& name)
{
    if (name != m_persistantName)
        saveColumnStatus();
    m_persistantName = name;
    applyColumns(0, columnCount());
}

void SortListView::applyColumns(int oldCount, int newCount)
{
    if (!m_persistantName.isEmpty() && newCount > oldCount)
        GuiBase::Instance().ApplyColumnWidth4(m_persistantName, this, oldCount);
}

void SortListView::keepColumns()
{
    if (!m_persistantName.isEmpty())
        GuiBase::Instance().KeepColumnWidth4(m_persistantName, this);
}

void SortListView::saveColumnStatus()
{
    if (!m_persistantName.isEmpty())
        GuiBase::Instance().StoreColumnWidth4(m_persistantName, this);
}

void SortListView::setColumnSelectionMenu(bool on)
{
    m_hasColumnMenu = on;
    if (on)
        connect(header(), &QWidget::customContextMenuRequested, this,
                &SortListView::slotHeaderContextMenuRequested, Qt::UniqueConnection);
    else
        disconnect(header(), &QWidget::customContextMenuRequested, this,
                   &SortListView::slotHeaderContextMenuRequested);
}

void SortListView::updateColumnActions()
{
    QAction* lastVisible = nullptr;
    int visible = 0;
    for (int column = 0; column < m_columnActions.size(); ++column) {
        QAction* const action = m_columnActions.at(column);
        const bool isShown = hasColumn(column) && !isColumnHidden(column);
        action->setVisible(hasColumn(column));
        action->setEnabled(true);
        action->setChecked(isShown);
        if (!isShown)
            continue;
        ++visible;
        lastVisible = action;
    }
    if (visible == 1)
        lastVisible->setEnabled(false);
}

void SortListView::slotHeaderContextMenuRequested(QPoint pos)
{
    updateColumnActions();
    const QPointer<SortListView> self(this);
    QAction* const chosen = m_headerMenu->exec(header()->viewport()->mapToGlobal(pos));
    if (!self || chosen == nullptr)
        return;
    const int column = static_cast<int>(m_columnActions.indexOf(chosen));
    if (!hasColumn(column))
        return;
    const bool hide = !isColumnHidden(column);
    if (hide)
        saveColumnStatus(); // the width, which a hidden column does not have
    setColumnHidden(column, hide);
    saveColumnStatus();
}

// --- Sorting
// ---------------------------------------------------------------------------------------

void SortListView::SetCompareFunctionLength(int count)
{
    m_sorter->forgetOrder();
    m_compareFunctions.resize(static_cast<std::size_t>(std::max(count, 0)), nullptr);
}

void SortListView::SetCompareFunction(int column, CompareFunction function)
{
    if (column < 0 || static_cast<std::size_t>(column) >= m_compareFunctions.size())
        return;
    m_sorter->forgetOrder();
    m_compareFunctions[static_cast<std::size_t>(column)] = function;
}

SortListView::CompareFunction SortListView::compareFunction(int column) const
{
    const bool isSet = column >= 0 && static_cast<std::size_t>(column) < m_compareFunctions.size();
    return isSet ? m_compareFunctions[static_cast<std::size_t>(column)] : nullptr;
}

bool SortListView::HasSortFunction(int column) const
{
    return m_sortCallback == nullptr && compareFunction(column) != nullptr;
}

bool SortListView::maySort() const
{
    return m_sortCallback == nullptr && m_allowSort && isVisible();
}

int SortListView::SortFunction(int column, const QString& a, const QString& b) const
{
    if (!maySort())
        return 0;
    const CompareFunction function = compareFunction(column);
    return function == nullptr ? a.compare(b) : function(b, a);
}

void SortListView::SetSortCallback(ISortCallback* callback)
{
    m_sortCallback = callback;
}

void SortListView::AllowSort(bool allow)
{
    m_allowSort = allow;
}

void SortListView::setSorting(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    sortByColumn(column, order);
}

void SortListView::setSorting(int column, bool ascending)
{
    setSorting(column, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

Qt::SortOrder SortListView::GetColumnSortingOrder() const
{
    return m_sortOrder;
}

void SortListView::sort()
{
    sortByColumn(m_sortColumn, m_sortOrder);
}

void SortListView::sortByColumn(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    m_sorter->forgetOrder();
    const QPointer<SortListView> self(this);
    if (m_sortCallback != nullptr && m_sortCallback->sort(column, order == Qt::AscendingOrder))
        return;
    if (!self || !m_allowSort)
        return;
    if (!isVisible() || !hasColumn(column))
        header()->setSortIndicator(hasColumn(column) ? column : -1, order);
    else
        m_sorter->sortAll(column, order);
}

int SortListView::_compStandardString(const QString& x, const QString& y)
{
    return y.compare(x, Qt::CaseInsensitive);
}

int SortListView::_compStandardNumeric(const QString& x, const QString& y)
{
    return compareNumbers(x, y, [](const QString& text) { return QStringView(text); });
}

int SortListView::_compNumericWithSuffix(const QString& x, const QString& y)
{
    return compareNumbers(x, y, [](const QString& text) {
        const qsizetype blank = text.indexOf(u' ');
        return QStringView(text).first(blank < 0 ? text.size() : blank);
    });
}

// --- The older navigation interface
// ------------------------------------------------------------------

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
    m_childCursor = 0;
    return cast(topLevelItem(0));
}

SortListViewItem* SortListView::nextChild()
{
    m_childCursor = std::min(m_childCursor + 1, topLevelItemCount());
    return cast(topLevelItem(m_childCursor));
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
    m_contextMenu = menu;
}

QMenu* SortListView::contextMenu() const
{
    return m_contextMenu;
}

// --- Slots
// -----------------------------------------------------------------------------------------

void SortListView::slotContextMenuRequested(SortListViewItem*, QPoint pos, int)
{
    if (m_contextMenu)
        m_contextMenu->exec(pos);
}

void SortListView::slotHeaderClicked(int column)
{
    Qt::SortOrder order = m_sortOrder;
    if (column == m_sortColumn)
        order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
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

// --- Events
// ----------------------------------------------------------------------------------------

void SortListView::showEvent(QShowEvent* event)
{
    QTreeWidget::showEvent(event);
    if (m_allowSort)
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
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (m_hasColumnMenu && event->key() == Qt::Key_H &&
        modifiers == (Qt::ControlModifier | Qt::AltModifier))
        slotHeaderContextMenuRequested(QPoint(0, header()->height()));
    else if (!m_columnKeys->handle(event->key(), modifiers))
        QTreeWidget::keyPressEvent(event);
}

void SortListView::rowsInserted(const QModelIndex& parent, int first, int last)
{
    // First the sorter: its step then comes before the view's layout, which need not run twice.
    m_sorter->rowsInserted(parent, first, last);
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
