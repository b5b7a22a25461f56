// SPDX-License-Identifier: MIT
#pragma once

#include "dockstatecheck.h"
#include "maximizeddocks.h"

#include <QByteArray>

#include <optional>

/// A dock layout of a main window: what QMainWindow::saveState() gives, empty when it is not known.
struct DockLayout
{
    QByteArray state;
    /// Those in the state, when somebody has walked through it already.
    std::optional<DockStateCheck::DockNames> names;

    MaximizedDocks maximized; ///< They cover the screen in the state.

    bool operator==(const DockLayout& other) const
    {
        return state == other.state && maximized == other.maximized;
    }
};
