// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/lists/sortlistviewitem.h>

#include <QTreeWidgetItemIterator>

/// Walks over the rows of a tree and yields them as SortListViewItems. Tree and item must not be
/// null.
class SortListViewItemIterator : public QTreeWidgetItemIterator
{
public:
    using QTreeWidgetItemIterator::QTreeWidgetItemIterator;

    /// Null at the end, and for a row of another kind.
    SortListViewItem* current() const { return dynamic_cast<SortListViewItem*>(**this); }
};
