// SPDX-License-Identifier: MIT
// The members of GuiBase that keep the positions of splitters.
#include "splittertable.h"

#include <guibase/services/guibase.h>
#include <guibase/services/guibase_p.h>

void GuiBase::ApplySplitterSizes4(const QString& key, Splitter* splitter)
{
    d->splitters.apply(key, splitter);
}

void GuiBase::StoreSplitterSizes4(const QString& key, Splitter* splitter)
{
    d->splitters.store(key, splitter);
}

void GuiBase::ForgetSplitterSizes4(const QString& key)
{
    d->splitters.forget(key);
}

/// What is stored is in the configuration at once.
void GuiBase::StoreSplitterSizes2Cfg() {}
