// SPDX-License-Identifier: MIT
#include "listcolumnkeys.h"

#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>

#include <QHeaderView>
#include <QKeyEvent>

#include <array>

namespace {

struct CommandKey
{
    QKeyCombination key;
    const char* comment;
};

// In the order of the commands.
constexpr std::array commandKeys{
    CommandKey{Qt::ALT | Qt::Key_Left, QT_TRANSLATE_NOOP("SortListView", "Column to the left")},
    CommandKey{Qt::ALT | Qt::Key_Right, QT_TRANSLATE_NOOP("SortListView", "Column to the right")},
    CommandKey{Qt::ALT | Qt::SHIFT | Qt::Key_Left,
               QT_TRANSLATE_NOOP("SortListView", "Move column to the left")},
    CommandKey{Qt::ALT | Qt::SHIFT | Qt::Key_Right,
               QT_TRANSLATE_NOOP("SortListView", "Move column to the right")},
    CommandKey{Qt::ALT | Qt::SHIFT | Qt::Key_Up,
               QT_TRANSLATE_NOOP("SortListView", "Sort by column, ascending")},
    CommandKey{Qt::ALT | Qt::SHIFT | Qt::Key_Down,
               QT_TRANSLATE_NOOP("SortListView", "Sort by column, descending")},
    CommandKey{Qt::CTRL | Qt::ALT | Qt::Key_H,
               QT_TRANSLATE_NOOP("SortListView", "Show or hide columns")},
};

constexpr const char* overviewScope = QT_TRANSLATE_NOOP("SortListView", "Lists");

/// In the hot-key overview; 0 for keys that are not in it.
std::array<int, commandKeys.size()> hotKeyIds{};

QKeyCombination keyOf(size_t command)
{
    return hotKeyIds[command] != 0 ? GuiBase::Instance().GetHotKey(hotKeyIds[command])
                                   : commandKeys[command].key;
}

/// The next visual place with a visible section; -1 at the end.
int nextVisiblePlace(const QHeaderView& header, int place, int step)
{
    do
        place += step;
    while (place >= 0 && place < header.count() &&
           header.isSectionHidden(header.logicalIndex(place)));
    return place < header.count() ? place : -1;
}

} // namespace

ListColumnKeys::ListColumnKeys(SortListView& view)
    : m_view(view)
{}

std::optional<ListColumnKeys::Command> ListColumnKeys::commandOf(const QKeyEvent& event)
{
    const QKeyCombination pressed(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key()));
    for (size_t command = 0; command < commandKeys.size(); ++command) {
        if (keyOf(command) == pressed && event.key() != 0)
            return static_cast<Command>(command);
    }
    return std::nullopt;
}

void ListColumnKeys::perform(Command command)
{
    const int column = chosenColumn();
    const int place = m_view.header()->visualIndex(column);
    const bool isToTheLeft = command == ChooseLeft || command == MoveLeft;
    const int step = isToTheLeft == m_view.isRightToLeft() ? 1 : -1;
    switch (command) {
    case ChooseLeft:
    case ChooseRight:
        chooseColumn(nextVisiblePlace(*m_view.header(), place, step));
        break;
    case MoveLeft:
    case MoveRight:
        moveColumn(column, step);
        break;
    case SortUp:
    case SortDown:
        if (place >= 0)
            m_view.setSorting(column, command == SortUp);
        break;
    case OpenMenu:
        break;
    }
}

void ListColumnKeys::showInOverview(GuiBase& services)
{
    if (hotKeyIds[0] != 0)
        return;
    for (size_t command = 0; command < commandKeys.size(); ++command) {
        const auto& [key, comment] = commandKeys[command];
        hotKeyIds[command] =
            services.ShowHotKey(key.key(), static_cast<int>(key.keyboardModifiers().toInt()),
                                SortListView::tr(comment), SortListView::tr(overviewScope));
    }
}

int ListColumnKeys::chosenColumn() const
{
    // The row need not be a SortListViewItem.
    if (m_view.QTreeWidget::currentItem() != nullptr)
        return m_view.currentColumn();
    const QHeaderView& header = *m_view.header();
    const bool isShown =
        header.visualIndex(m_chosenColumn) >= 0 && !header.isSectionHidden(m_chosenColumn);
    const int first = nextVisiblePlace(header, -1, 1);
    return isShown || first < 0 ? m_chosenColumn : header.logicalIndex(first);
}

void ListColumnKeys::chooseColumn(int place)
{
    if (place < 0)
        return;
    m_chosenColumn = m_view.header()->logicalIndex(place);
    const QModelIndex current = m_view.currentIndex();
    if (!current.isValid())
        return;
    const QModelIndex index = current.siblingAtColumn(m_chosenColumn);
    m_view.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_view.scrollTo(index);
}

void ListColumnKeys::moveColumn(int column, int step)
{
    QHeaderView& header = *m_view.header();
    const int from = header.visualIndex(column);
    if (from < 0 || !header.sectionsMovable())
        return;
    const int place = nextVisiblePlace(header, from, step);
    if (place >= 0)
        header.moveSection(from, place);
}
