// SPDX-License-Identifier: MIT
#pragma once

#include "dockstatecheck.h"

#include <QByteArray>

#include <optional>

/// A dock layout of a main window: what QMainWindow::saveState() gives, empty when it is not known.
struct DockLayout
{
    QByteArray state;
    /// Those in the state, when somebody has walked through it already.
    std::optional<DockStateCheck::DockNames> names;

    bool operator==(const DockLayout& other) const { return state == other.state; }
};
