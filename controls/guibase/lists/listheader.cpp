// SPDX-License-Identifier: MIT
#include "listheader_p.h"

#include "sortlistview.h"

#include <QMouseEvent>
#include <QPointer>

ListHeader::ListHeader(SortListView& view)
    : QHeaderView(Qt::Horizontal, &view)
    , m_view(view)
{
    // As in the header that a tree makes for itself.
    setSectionsMovable(true);
    setStretchLastSection(true);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void ListHeader::mouseReleaseEvent(QMouseEvent* event)
{
    const int section = logicalIndexAt(event->position().toPoint());
    QTreeWidgetItem* const titles = m_view.headerItem();
    if (!m_view.isSortingEnabled() || section < 0 || titles == nullptr) {
        QHeaderView::mouseReleaseEvent(event);
        return;
    }
    const QVariant former = titles->data(section, Qt::InitialSortOrderRole);
    titles->setData(section, Qt::InitialSortOrderRole, int(m_view.GetColumnSortingOrder()));
    const QPointer<ListHeader> self(this);
    m_isInClick = true;
    QHeaderView::mouseReleaseEvent(event);
    if (!self)
        return;
    m_isInClick = false;
    if (m_view.headerItem() == titles)
        titles->setData(section, Qt::InitialSortOrderRole, former);
}
