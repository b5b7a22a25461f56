// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace bandmonitor {

/// The menu for the colours of the panes: the editor, the known colour sets, files.
class ColorsMenu : public QMenu
{
    Q_OBJECT
public:
    explicit ColorsMenu(QWidget* parent);
    ~ColorsMenu() override;

private:
    void listSets();
    void edit();
    void load();
    void save();
    void restoreFactory();

    QMenu* m_sets;
};

} // namespace bandmonitor
