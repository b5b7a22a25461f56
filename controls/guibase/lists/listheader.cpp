// SPDX-License-Identifier: MIT
#include "listheader_p.h"

#include "sortlistview.h"

#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionHeader>

ListHeader::ListHeader(SortListView& view)
    : QHeaderView(Qt::Horizontal, &view)
    , m_view(view)
{
    // As in the header that a tree makes for itself.
    setSectionsMovable(true);
    setStretchLastSection(true);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

/// The toolkit measures titles in bold, as it shows them when it highlights sections. Otherwise
/// there is no need to load a bold font: only the height counts here.
QSize ListHeader::sizeHint() const
{
    const QScopedValueRollback measuring(m_isMeasuringHeight, !highlightSections());
    return QHeaderView::sizeHint();
}

QSize ListHeader::sectionSizeFromContents(int logicalIndex) const
{
    const auto has = [this, logicalIndex](int role) {
        return model()->headerData(logicalIndex, Qt::Horizontal, role).isValid();
    };
    if (!m_isMeasuringHeight || has(Qt::SizeHintRole) || has(Qt::FontRole) ||
        has(Qt::DecorationRole))
        return QHeaderView::sectionSizeFromContents(logicalIndex);
    ensurePolished();
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.section = logicalIndex;
    option.text = model()->headerData(logicalIndex, Qt::Horizontal, Qt::DisplayRole).toString();
    return style()->sizeFromContents(QStyle::CT_HeaderSection, &option, QSize(), this);
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
