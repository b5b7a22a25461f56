// SPDX-License-Identifier: MIT
#include "columntable.h"

#include "headerarrangement.h"

#include <guibase/lists/sortlistview.h>

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>

void ColumnTable::noteChange(const QString& name, SortListView* list)
{
    if (list == nullptr || list == m_applied || !list->isVisible())
        return;
    m_changed[name] = list;
    m_store.noteChange();
}

void ColumnTable::setWriteDelay(int milliseconds)
{
    m_store.setWriteDelay(milliseconds);
}

void ColumnTable::storeChanges()
{
    const auto changed = m_changed;
    for (const auto& [name, list] : changed)
        store(name, list);
    m_changed.clear();
}

/// Nothing for a damaged text, which is kept aside.
std::optional<QList<ColumnRecord>> ColumnTable::known(const QString& name) const
{
    return m_store.read(name, QStringLiteral("the columns are damaged"), ColumnText::parse);
}

void ColumnTable::store(const QString& name, const SortListView* list)
{
    const auto changed = m_changed.find(name);
    const bool hasChanged = changed != m_changed.end() && changed->second == list;
    if (list == nullptr || list == m_applied || (!list->isVisible() && !hasChanged))
        return;
    if (hasChanged)
        m_changed.erase(changed);
    const auto former = known(name);
    const QList<ColumnRecord> columns =
        HeaderArrangement::of(*list->header(), former.value_or(QList<ColumnRecord>()));
    if (columns != former)
        m_store.write(name, ColumnText::format(columns));
}

void ColumnTable::apply(const QString& name, SortListView* list, int firstColumn)
{
    const auto columns = list != nullptr ? known(name) : std::nullopt;
    if (!columns)
        return;
    const QScopedValueRollback applied(m_applied, static_cast<const SortListView*>(list));
    HeaderArrangement::apply(*list->header(), *columns, std::max(firstColumn, 0));
}
