// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

class GuiBase;
class QKeyEvent;
class SortListView;

/// The keys with which the columns of a SortListView are chosen, moved and sorted by, also while
/// the list has no rows. SortListView tells which ones they are; once they are in the hot-key
/// overview the operator can change them, for all lists.
class ListColumnKeys
{
public:
    enum Command { ChooseLeft, ChooseRight, MoveLeft, MoveRight, SortUp, SortDown, OpenMenu };

    explicit ListColumnKeys(SortListView& view);

    /// Nothing for another key.
    static std::optional<Command> commandOf(const QKeyEvent& event);
    /// Does what the command says; the menu is the list's business.
    void perform(Command command);
    /// Enters the keys in the hot-key overview; a second time changes nothing.
    static void showInOverview(GuiBase& services);

private:
    int chosenColumn() const;
    void chooseColumn(int place);
    void moveColumn(int column, int step);

    SortListView& m_view;
    int m_chosenColumn = 0; ///< For the time without a current item.
};
