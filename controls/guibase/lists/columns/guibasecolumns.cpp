// SPDX-License-Identifier: MIT
// The members of GuiBase that keep the columns of lists.
#include "columntable.h"
#include "listcolumnkeys.h"

#include <guibase/services/guibase.h>
#include <guibase/services/guibase_p.h>

void GuiBase::ApplyColumnWidth4(const QString& name, SortListView* list, int firstColumn)
{
    d->columns.apply(name, list, firstColumn);
}

void GuiBase::KeepColumnWidth4(const QString& name, SortListView* list)
{
    d->columns.noteChange(name, list);
}

void GuiBase::StoreColumnWidth4(const QString& name, SortListView* list)
{
    d->columns.store(name, list);
}

void GuiBase::ShowListHotKeys()
{
    ListColumnKeys::showInOverview(*this);
}

void GuiBase::StoreColumnSizes2Cfg()
{
    d->columns.storeChanges();
}
