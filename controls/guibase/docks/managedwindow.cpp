// SPDX-License-Identifier: MIT
#include "managedwindow_p.h"

#include <jtbase/windowsystem.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace {

bool isOnX11()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

} // namespace

void ManagedWindow::allowStates(QDockWidget& dock)
{
    // The toolkit's X11 part puts this type in front of the one of a tool window.
    static constexpr char typeProperty[] = "_q_xcb_wm_window_type";
    static constexpr int normalType = 1;
    QWindow* window = dock.windowHandle();
    if (!isOnX11() || !dock.isFloating() || window == nullptr ||
        window->property(typeProperty).toInt() == normalType)
        return;
    window->setProperty(typeProperty, normalType);
    // It does so when the flags change.
    const Qt::WindowFlags flags = window->flags();
    window->setFlags((flags & ~Qt::WindowType_Mask) | Qt::Window);
    window->setFlags(flags);
}

bool ManagedWindow::hasRefusedState(const QDockWidget& dock, const QSize& normalSize)
{
    const QWindow* window = dock.windowHandle();
    if (!dock.isFloating() || !dock.isVisible() || window == nullptr)
        return false;
    if (dock.isMinimized())
        return !WindowSystem::placesWindows() || (isOnX11() && window->isExposed());
    return dock.isMaximized() && dock.size() == normalSize &&
           normalSize != dock.screen()->availableSize();
}
