// SPDX-License-Identifier: MIT
#include "sortlistviewitem.h"

#include "itemwalk_p.h"
#include "listsorter_p.h"
#include "sortlistview.h"

#include <QIcon>
#include <QList>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <algorithm>
#include <vector>

namespace {

constexpr QSize largestPixmap(22, 22);

SortListViewItem* cast(QTreeWidgetItem* item)
{
    return dynamic_cast<SortListViewItem*>(item);
}

/// What the tree forgets of a row that is taken out.
struct RowState
{
    QTreeWidgetItem* item;
    bool isSelected;
    bool isExpanded;
    bool isCurrent;
};

} // namespace

struct SortListViewItem::Extras
{
    QList<QString> sortKeys;
    QPixmap pixmap;
    int childCursor = 0;
};

SortListViewItem::SortListViewItem(QTreeWidget* tree, const QString& text1, const QString& text2,
                                   const QString& text3, const QString& text4, const QString& text5,
                                   const QString& text6, const QString& text7, const QString& text8,
                                   bool insertOnTop)
    : QTreeWidgetItem(Type)
{
    setTexts({&text1, &text2, &text3, &text4, &text5, &text6, &text7, &text8});
    insertInto(tree, insertOnTop || tree == nullptr ? 0 : tree->topLevelItemCount());
}

SortListViewItem::SortListViewItem(QTreeWidgetItem* parent, const QString& text1,
                                   const QString& text2, const QString& text3, const QString& text4,
                                   const QString& text5, const QString& text6, const QString& text7,
                                   const QString& text8)
    : SortListViewItem(parent,
                       parent == nullptr ? nullptr : parent->child(parent->childCount() - 1), text1,
                       text2, text3, text4, text5, text6, text7, text8)
{}

SortListViewItem::SortListViewItem(QTreeWidget* tree, QTreeWidgetItem* after, const QString& text1,
                                   const QString& text2, const QString& text3, const QString& text4,
                                   const QString& text5, const QString& text6, const QString& text7,
                                   const QString& text8)
    : QTreeWidgetItem(Type)
{
    setTexts({&text1, &text2, &text3, &text4, &text5, &text6, &text7, &text8});
    insertInto(tree, tree == nullptr ? 0 : tree->indexOfTopLevelItem(after) + 1);
}

SortListViewItem::SortListViewItem(QTreeWidgetItem* parent, QTreeWidgetItem* after,
                                   const QString& text1, const QString& text2, const QString& text3,
                                   const QString& text4, const QString& text5, const QString& text6,
                                   const QString& text7, const QString& text8)
    : QTreeWidgetItem(Type)
{
    setTexts({&text1, &text2, &text3, &text4, &text5, &text6, &text7, &text8});
    if (parent == nullptr)
        return;
    if (const auto* const list = qobject_cast<SortListView*>(parent->treeWidget()))
        list->applyAlignment(this);
    parent->insertChild(parent->indexOfChild(after) + 1, this);
}

SortListViewItem::SortListViewItem(QTreeWidget* tree, const QStringList& texts, bool insertOnTop)
    : QTreeWidgetItem(texts, Type)
{
    insertInto(tree, insertOnTop || tree == nullptr ? 0 : tree->topLevelItemCount());
}

SortListViewItem::~SortListViewItem() = default;

void SortListViewItem::setTexts(std::initializer_list<const QString*> texts)
{
    int column = 0;
    for (const QString* text : texts) {
        if (column > 0 && text->isNull())
            return;
        setText(column++, *text);
    }
}

void SortListViewItem::insertInto(QTreeWidget* tree, int row)
{
    if (tree == nullptr)
        return;
    if (const auto* const list = qobject_cast<SortListView*>(tree))
        list->applyAlignment(this);
    tree->insertTopLevelItem(row, this);
}

bool SortListViewItem::operator<(const QTreeWidgetItem& other) const
{
    if (const std::optional<bool> isLess = ListSorter::isLess(*this, other))
        return *isLess;
    const QTreeWidget* const tree = treeWidget();
    const int column = tree == nullptr ? 0 : tree->sortColumn();
    const SortListView* const list = listView();
    if (list == nullptr)
        return text(column) < other.text(column);
    if (!list->sorter().maySort())
        return false;
    const auto* const otherItem = dynamic_cast<const SortListViewItem*>(&other);
    if (otherItem != nullptr && HasSortKey(column) && otherItem->HasSortKey(column))
        return list->SortFunction(column, GetSortKey(column), otherItem->GetSortKey(column)) < 0;
    return list->SortFunction(column, text(column), other.text(column)) < 0;
}

SortListView* SortListViewItem::listView() const
{
    return qobject_cast<SortListView*>(treeWidget());
}

SortListViewItem::Extras& SortListViewItem::extras() const
{
    if (!m_extras)
        m_extras = std::make_unique<Extras>();
    return *m_extras;
}

// --- Sort keys ----------------------------------------------------------------------------------

void SortListViewItem::SetColCount(int count)
{
    extras().sortKeys.resize(std::max(count, 0));
}

void SortListViewItem::SetSortKey(int column, const QString& key)
{
    if (m_extras && column >= 0 && column < m_extras->sortKeys.size())
        m_extras->sortKeys[column] = key;
}

QString SortListViewItem::GetSortKey(int column) const
{
    return m_extras ? m_extras->sortKeys.value(column) : QString();
}

bool SortListViewItem::HasSortKey(int column) const
{
    return !GetSortKey(column).isEmpty();
}

// --- Hooks --------------------------------------------------------------------------------------

void SortListViewItem::setOpen(bool) {}

void SortListViewItem::activate() {}

void SortListViewItem::sortChildItems(int column, bool ascending)
{
    const Qt::SortOrder order = ascending ? Qt::AscendingOrder : Qt::DescendingOrder;
    if (SortListView* const list = listView())
        list->sorter().sortChildren(*this, column, order);
    else
        sortChildren(column, order);
}

// --- Pictures -----------------------------------------------------------------------------------

void SortListViewItem::setPixmap(int column, const QPixmap& pixmap)
{
    setIcon(column, QIcon(pixmap));
}

const QPixmap* SortListViewItem::pixmap(int column) const
{
    const QIcon picture = icon(column);
    QPixmap& cache = extras().pixmap;
    cache = picture.isNull() ? QPixmap() : picture.pixmap(picture.actualSize(largestPixmap));
    return &cache;
}

// --- The older navigation interface -------------------------------------------------------------

void SortListViewItem::moveItem(QTreeWidgetItem* after)
{
    QTreeWidget* const tree = treeWidget();
    const int row = tree == nullptr ? -1 : tree->indexOfTopLevelItem(after);
    if (row < 0 || after == this)
        return;
    std::vector<RowState> states;
    const QTreeWidgetItem* const current = tree->currentItem();
    const int currentColumn = tree->currentColumn();
    ItemWalk::visitAll(*this, [&](QTreeWidgetItem& item) {
        states.push_back({&item, item.isSelected(), item.isExpanded(), &item == current});
    });
    if (SortListView* const list = listView())
        list->sorter().forgetOrder();
    // Selection and current item are the same afterwards; nobody shall see, and act on, what they
    // are while the row is away.
    const QSignalBlocker blocker(tree);
    if (parent() != nullptr)
        parent()->removeChild(this);
    else
        tree->takeTopLevelItem(tree->indexOfTopLevelItem(this));
    tree->insertTopLevelItem(std::min(row, tree->topLevelItemCount()), this);
    ItemWalk::restoreCheckBoxes(*this);
    for (const RowState& state : states) {
        state.item->setExpanded(state.isExpanded);
        state.item->setSelected(state.isSelected);
        if (state.isCurrent)
            tree->setCurrentItem(state.item, currentColumn, QItemSelectionModel::NoUpdate);
    }
}

SortListViewItem* SortListViewItem::firstChild()
{
    extras().childCursor = 0;
    return cast(child(0));
}

SortListViewItem* SortListViewItem::nextChild()
{
    int& cursor = extras().childCursor;
    cursor = std::min(cursor + 1, childCount());
    return cast(child(cursor));
}

SortListViewItem* SortListViewItem::nextSibling()
{
    if (parent() == nullptr)
        return itemBelow();
    if (auto* const owner = cast(parent()))
        return owner->nextChild();
    return cast(parent()->child(parent()->indexOfChild(this) + 1));
}

SortListViewItem* SortListViewItem::itemAbove() const
{
    return treeWidget() == nullptr ? nullptr : cast(treeWidget()->itemAbove(this));
}

SortListViewItem* SortListViewItem::itemBelow() const
{
    return treeWidget() == nullptr ? nullptr : cast(treeWidget()->itemBelow(this));
}

bool SortListViewItem::isOpen() const
{
    return isExpanded();
}

int SortListViewItem::height() const
{
    return treeWidget() == nullptr ? 0 : treeWidget()->visualItemRect(this).height();
}

void SortListViewItem::setExpandable(bool expandable)
{
    setChildIndicatorPolicy(expandable ? ShowIndicator : DontShowIndicator);
}
