// SPDX-License-Identifier: MIT
#include "trovapplication.h"

#include <jtbase/windowsystem.h>

#include <QCoreApplication>

void TrovApplication::ChooseWindowSystem()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    static constexpr char variable[] = "QT_QPA_PLATFORM";
    // The second one is for an X server that does not answer.
    static constexpr char choice[] = "xcb;wayland";
    const bool hasBoth =
        !qEnvironmentVariableIsEmpty("DISPLAY") && WindowSystem::isWaylandSession();
    if (!hasBoth || qEnvironmentVariableIsSet(variable) || QCoreApplication::instance() != nullptr)
        return;
    qputenv(variable, choice);
    // Called once the application object has loaded the platform.
    qAddPreRoutine([] {
        if (qgetenv(variable) == choice)
            qunsetenv(variable);
    });
#endif
}
