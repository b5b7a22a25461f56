// SPDX-License-Identifier: MIT
#include "windowsystem.h"

#include <QGuiApplication>

#include <optional>

namespace {

std::optional<bool> forcedAnswer()
{
    bool isNumber = false;
    const int answer = qEnvironmentVariableIntValue("GUIBASE_PLACES_WINDOWS", &isNumber);
    return isNumber ? std::optional(answer != 0) : std::nullopt;
}

bool isWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

bool WindowSystem::isWaylandSession()
{
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           qgetenv("XDG_SESSION_TYPE") == "wayland";
}

bool WindowSystem::placesWindows()
{
    return forcedAnswer().value_or(!isWayland());
}

bool WindowSystem::tellsPointerEverywhere()
{
    const bool isWithinWayland =
        QGuiApplication::platformName() == QLatin1String("xcb") && isWaylandSession();
    return forcedAnswer().value_or(!isWayland() && !isWithinWayland);
}
