// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

/// Sorts the rows of a SortListView in its place; see SortListView::SetSortCallback().
class GUIBASE_EXPORT ISortCallback
{
public:
    virtual ~ISortCallback();

    /// The user or the program asks for the order by this column. True: the callback has sorted, or
    /// forbids sorting, and the view does nothing; false: the view goes on. As long as a callback
    /// is set all SortListViewItems compare as equal, so that the view's own sorting moves none of
    /// them.
    virtual bool sort(int column, bool ascending) = 0;
};
