// SPDX-License-Identifier: MIT
#pragma once

#include "checksortlistviewitem.h"

#include <QTreeWidgetItem>

#include <vector>

namespace ItemWalk {

/// Calls `visit(QTreeWidgetItem&)` with the item and all items below it, those above first.
template <typename Visit>
void visitAll(QTreeWidgetItem& item, Visit visit)
{
    visit(item);
    std::vector<QTreeWidgetItem*> items;
    QTreeWidgetItem* visited = &item;
    while (true) {
        for (int i = 0; i < visited->childCount(); ++i)
            items.push_back(visited->child(i));
        if (items.empty())
            return;
        visited = items.back();
        items.pop_back();
        visit(*visited);
    }
}

/// Gives the item and those below it the check boxes that they lost.
inline void restoreCheckBoxes(QTreeWidgetItem& item)
{
    visitAll(item, [](QTreeWidgetItem& visited) {
        if (auto* const checkItem = dynamic_cast<CheckSortListViewItem*>(&visited))
            checkItem->restoreCheckBox();
    });
}

} // namespace ItemWalk
