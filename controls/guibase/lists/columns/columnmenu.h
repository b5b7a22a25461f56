// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

class QHeaderView;

/// The menu with which the user hides and shows the sections of a header. It is a child of its
/// parent, and may go with it while it is open. The last visible section cannot be hidden.
class ColumnMenu : public QMenu
{
    Q_OBJECT
public:
    explicit ColumnMenu(QWidget* parent);
    ~ColumnMenu() override;

    enum class ShowAll { No, Offered };
    static constexpr int nothing = -1;
    static constexpr int allSections = -2;
    /// Runs the menu at the place on the screen. Returns the section that the user wants hidden or
    /// shown, `allSections` for all of them shown, or `nothing`, also when the menu is gone.
    int choose(const QHeaderView& header, QPoint place, ShowAll showAll = ShowAll::No);

private:
    void fill(const QHeaderView& header);
};
