// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/docklayout.h>

#include <QDockWidget>
#include <QPointer>

#include <vector>

class QMainWindow;

/// Dock layouts of main windows, in the version that records hold.
namespace DockRestore {

inline constexpr int stateVersion = 1;

/// Whether docks that hide at the edge go where the layout says, which ends their hiding, or stay
/// as they are: at program start they have come back by themselves, and the layout may be from a
/// window system on which such docks are in another place.
enum class EdgeDocks { Move, Stay };

/// Docks that are still maximized as in the former layout keep the place that they had there, and
/// floating ones too where programs do not place windows.
DockLayout save(const QMainWindow& window, const DockLayout& former = {});
/// Applies the layout. Docks and tool bars that it does not know stay where they are: in their
/// area, tabs and line. Floating docks come back whole on a screen of today, or maximized. A state
/// that DockStateCheck refuses changes nothing.
void restore(QMainWindow& window, const DockLayout& layout, EdgeDocks edgeDocks = EdgeDocks::Move);

/// Where a dock is in its window, regardless of sizes.
struct Place
{
    QPointer<QDockWidget> dock;
    Qt::DockWidgetArea area;
    bool isFloating;
    bool isHidden;
    qsizetype tabs; ///< How many other docks it shares its place with.

    bool operator==(const Place&) const = default;
};
using Places = std::vector<Place>;

Places places(const QMainWindow& window);
/// Whether one of the docks is at another place by now. Docks that are gone do not count.
bool isRearranged(const Places& places);

} // namespace DockRestore
