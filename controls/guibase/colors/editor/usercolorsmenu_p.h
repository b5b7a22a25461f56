// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

/// The user colours, each of which opens a colour dialog that redefines it. A change is announced
/// (GuiBase::signalColorsChanged()) and kept.
class UserColorsMenu : public QMenu
{
    Q_OBJECT
public:
    explicit UserColorsMenu(QWidget* parent);

private:
    void populate();
    void redefine(int id);
};
