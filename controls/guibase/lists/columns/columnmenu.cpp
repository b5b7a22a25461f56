// SPDX-License-Identifier: MIT
#include "columnmenu.h"

#include <QAbstractItemModel>
#include <QHeaderView>

ColumnMenu::ColumnMenu(QWidget* parent)
    : QMenu(parent)
{}

ColumnMenu::~ColumnMenu() = default;

void ColumnMenu::fill(const QHeaderView& header)
{
    clear();
    const int visible = header.count() - header.hiddenSectionCount();
    for (int section = 0; section < header.count(); ++section) {
        const QVariant title = header.model()->headerData(section, header.orientation());
        QAction* const action = addAction(title.toString());
        action->setCheckable(true);
        action->setChecked(!header.isSectionHidden(section));
        action->setEnabled(visible != 1 || header.isSectionHidden(section));
    }
}

int ColumnMenu::choose(const QHeaderView& header, QPoint place, ShowAll showAll)
{
    if (header.model() == nullptr)
        return nothing;
    fill(header);
    const QList<QAction*> sections = actions();
    const QAction* all = nullptr;
    if (showAll == ShowAll::Offered && header.hiddenSectionCount() > 0) {
        addSeparator();
        all = addAction(tr("Show All"));
    }
    const QAction* const chosen = exec(place);
    if (chosen == nullptr)
        return nothing;
    return chosen == all ? allSections : static_cast<int>(sections.indexOf(chosen));
}
