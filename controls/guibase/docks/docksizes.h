// SPDX-License-Identifier: MIT
#pragma once

#include "updatesblocker.h"

#include <QLayout>
#include <QList>
#include <QMainWindow>
#include <QPair>
#include <QPointer>
#include <QRect>
#include <QSize>

class QDockWidget;

namespace DockSizes {

/// How the docks are made to take their sizes.
enum class Squeeze {
    FromCurrentSize, ///< From the side on which they are; their current sizes must be up to date.
    FromBothSides,   ///< From both sides, for docks that have not been laid out yet.
};

/// Holds a main window still, in size and in updates, while its docks get their sizes. Docks, and
/// the window itself, may die meanwhile.
class FrozenWindow
{
public:
    explicit FrozenWindow(QMainWindow& mainWindow);
    /// Gives the window its own bounds back and lets the layout settle.
    ~FrozenWindow();
    FrozenWindow(const FrozenWindow&) = delete;
    FrozenWindow& operator=(const FrozenWindow&) = delete;

    /// Gives the docks these sizes as far as there is room; see
    /// QMainWindowHelpers::setDockWidgetSizes().
    void giveSizes(const QList<QPair<QDockWidget*, QSize>>& sizes, Squeeze squeeze);

private:
    QPointer<QMainWindow> m_window;
    UpdatesBlocker m_blocker;
    QRect m_geometry;
    QLayout::SizeConstraint m_constraint;
};

} // namespace DockSizes
