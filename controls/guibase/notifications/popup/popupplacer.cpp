// SPDX-License-Identifier: MIT
#include "popupplacer_p.h"

#include "screenplacer_p.h"
#include "windowplacer_p.h"

#include <jtbase/windowsystem.h>

PopupPlacer::PopupPlacer() = default;
PopupPlacer::~PopupPlacer() = default;

Notifications::Placement PopupPlacer::placementFor(Notifications::Placement wanted)
{
    if (wanted != Notifications::Placement::Automatic)
        return wanted;
    return WindowSystem::placesWindows() ? Notifications::Placement::OnScreen
                                         : Notifications::Placement::InWindow;
}

std::unique_ptr<PopupPlacer> PopupPlacer::create(Notifications::Placement placement)
{
    if (placement == Notifications::Placement::InWindow)
        return std::make_unique<WindowPlacer>();
    return std::make_unique<ScreenPlacer>();
}
