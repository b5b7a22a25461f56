// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/qnamespace.h>

class SortListView;

/// The keys with which the columns of a SortListView are chosen, moved and sorted by, also while
/// the list has no rows. SortListView tells which ones they are.
class ListColumnKeys
{
public:
    explicit ListColumnKeys(SortListView& view);

    /// Whether the key is one of these; its work is done then.
    bool handle(int key, Qt::KeyboardModifiers modifiers);

private:
    int chosenColumn() const;
    void chooseColumn(int place);
    void moveColumn(int column, int step);

    SortListView& m_view;
    int m_chosenColumn = 0; ///< For the time without a current item.
};
