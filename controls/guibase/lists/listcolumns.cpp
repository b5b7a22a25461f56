// SPDX-License-Identifier: MIT
#include "listcolumns_p.h"

#include "sortlistview.h"

#include <guibase/lists/columns/columnmenu.h>
#include <guibase/services/guibase.h>

#include <QHeaderView>
#include <QPointer>
#include <QTreeWidgetItem>

namespace {

constexpr unsigned maximumColumns = 4096;

} // namespace

ListColumns::ListColumns(SortListView& view)
    : m_view(view)
    , m_menu(new ColumnMenu(&view))
{
    m_menu->setObjectName(QStringLiteral("HeaderContextMenu"));
}

ListColumns::~ListColumns() = default;

bool ListColumns::has(int column) const
{
    return column >= 0 && column < m_view.columnCount();
}

void ListColumns::add(const QString& text)
{
    m_labels.append(text);
    m_view.setColumnCount(static_cast<int>(m_labels.size()));
    m_view.setHeaderLabels(m_labels);
}

QString ListColumns::text(int column) const
{
    return has(column) ? m_view.headerItem()->text(column) : QString();
}

void ListColumns::setText(int column, const QString& text)
{
    if (!has(column))
        return;
    m_view.headerItem()->setText(column, text);
    if (column < m_labels.size())
        m_labels[column] = text;
}

void ListColumns::setAlignment(unsigned column, int alignment)
{
    if (column >= maximumColumns)
        return;
    if (column >= m_alignments.size())
        m_alignments.resize(column + std::size_t(1), alignment);
    m_alignments[column] = alignment;
}

int ListColumns::alignment(int column) const
{
    const bool isSet = column >= 0 && static_cast<std::size_t>(column) < m_alignments.size();
    return isSet ? m_alignments[static_cast<std::size_t>(column)] : int(Qt::AlignLeft);
}

void ListColumns::applyAlignment(QTreeWidgetItem& item) const
{
    int column = 0;
    for (const int alignment : m_alignments)
        item.setTextAlignment(column++, Qt::Alignment(alignment));
}

void ListColumns::setName(const QString& name)
{
    if (name != m_name)
        store();
    m_name = name;
    applyFrom(0, m_view.columnCount());
}

void ListColumns::applyFrom(int firstColumn, int count)
{
    if (!m_name.isEmpty() && count > firstColumn)
        GuiBase::Instance().ApplyColumnWidth4(m_name, &m_view, firstColumn);
}

void ListColumns::keep()
{
    if (!m_name.isEmpty())
        GuiBase::Instance().KeepColumnWidth4(m_name, &m_view);
}

void ListColumns::store()
{
    if (!m_name.isEmpty())
        GuiBase::Instance().StoreColumnWidth4(m_name, &m_view);
}

void ListColumns::runMenu(QPoint pos)
{
    const QPointer<SortListView> self(&m_view);
    const int column = m_menu->choose(*m_view.header(), pos);
    if (!self || !has(column))
        return;
    const bool hide = !m_view.isColumnHidden(column);
    if (hide)
        store(); // the width, which a hidden column does not have
    m_view.setColumnHidden(column, hide);
    store();
}
