// SPDX-License-Identifier: MIT
#include "listcolumnkeys.h"

#include <guibase/lists/sortlistview.h>

#include <QHeaderView>

namespace {

/// The next visual place with a visible section; -1 at the end.
int nextVisiblePlace(const QHeaderView& header, int place, int step)
{
    do
        place += step;
    while (place >= 0 && place < header.count() &&
           header.isSectionHidden(header.logicalIndex(place)));
    return place < header.count() ? place : -1;
}

} // namespace

ListColumnKeys::ListColumnKeys(SortListView& view)
    : m_view(view)
{}

bool ListColumnKeys::handle(int key, Qt::KeyboardModifiers modifiers)
{
    const bool choose = modifiers == Qt::AltModifier;
    const bool change = modifiers == (Qt::AltModifier | Qt::ShiftModifier);
    const bool isSideways = key == Qt::Key_Left || key == Qt::Key_Right;
    const int step = (key == Qt::Key_Left) == m_view.isRightToLeft() ? 1 : -1;
    const int column = chosenColumn();
    const QHeaderView& header = *m_view.header();
    if (choose && isSideways)
        chooseColumn(nextVisiblePlace(header, header.visualIndex(column), step));
    else if (change && isSideways)
        moveColumn(column, step);
    else if (change && (key == Qt::Key_Up || key == Qt::Key_Down) &&
             header.visualIndex(column) >= 0)
        m_view.setSorting(column, key == Qt::Key_Up);
    else
        return false;
    return true;
}

int ListColumnKeys::chosenColumn() const
{
    // The row need not be a SortListViewItem.
    if (m_view.QTreeWidget::currentItem() != nullptr)
        return m_view.currentColumn();
    const QHeaderView& header = *m_view.header();
    const bool isShown =
        header.visualIndex(m_chosenColumn) >= 0 && !header.isSectionHidden(m_chosenColumn);
    const int first = nextVisiblePlace(header, -1, 1);
    return isShown || first < 0 ? m_chosenColumn : header.logicalIndex(first);
}

void ListColumnKeys::chooseColumn(int place)
{
    if (place < 0)
        return;
    m_chosenColumn = m_view.header()->logicalIndex(place);
    const QModelIndex current = m_view.currentIndex();
    if (!current.isValid())
        return;
    const QModelIndex index = current.siblingAtColumn(m_chosenColumn);
    m_view.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_view.scrollTo(index);
}

void ListColumnKeys::moveColumn(int column, int step)
{
    QHeaderView& header = *m_view.header();
    const int from = header.visualIndex(column);
    if (from < 0 || !header.sectionsMovable())
        return;
    const int place = nextVisiblePlace(header, from, step);
    if (place >= 0)
        header.moveSection(from, place);
}
