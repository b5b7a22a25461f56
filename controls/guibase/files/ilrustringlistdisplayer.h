// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QString>

/// Shows the strings of an LruStringListController, which calls it.
class GUIBASE_EXPORT ILruStringListDisplayer
{
public:
    /// Takes back the entry that was shown with this index. Entries go from the last to the first.
    virtual void RemoveItem(int index) = 0;
    /// Shows an entry; they come from the first, 0, to the last.
    virtual void InsertItem(int index, const QString& text) = 0;

    virtual ~ILruStringListDisplayer();
};
