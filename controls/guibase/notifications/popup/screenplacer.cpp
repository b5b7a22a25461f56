// SPDX-License-Identifier: MIT
#include "screenplacer_p.h"

#include <QGuiApplication>
#include <QWindow>

ScreenPlacer::ScreenPlacer()
{
    const auto watch = [this](QScreen* screen) {
        connect(screen, &QScreen::availableGeometryChanged, this, &PopupPlacer::areaChanged);
    };
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens)
        watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, watch);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &PopupPlacer::areaChanged);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PopupPlacer::areaChanged);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &ScreenPlacer::followFocus);
    followFocus();
}

ScreenPlacer::~ScreenPlacer() = default;

QRect ScreenPlacer::area()
{
    const QScreen* screen =
        m_screen != nullptr ? m_screen.data() : QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->availableGeometry() : QRect();
}

void ScreenPlacer::adopt(QWidget& popup)
{
    Qt::WindowFlags flags = popup.windowFlags() | Qt::Tool | Qt::WindowStaysOnTopHint;
    // Not every window manager leaves a window where it was put, and the focus where it was.
    const bool isOnX11 = QGuiApplication::platformName() == QLatin1String("xcb");
    if (isOnX11 && popup.testAttribute(Qt::WA_ShowWithoutActivating))
        flags |= Qt::BypassWindowManagerHint;
    if (popup.windowFlags() != flags)
        popup.setWindowFlags(flags);
}

void ScreenPlacer::followFocus()
{
    const QWindow* window = QGuiApplication::focusWindow();
    if (window == nullptr || (window->type() != Qt::Window && window->type() != Qt::Dialog))
        return;
    connect(window, &QWindow::screenChanged, this, &ScreenPlacer::followFocus,
            Qt::UniqueConnection);
    if (m_screen == window->screen())
        return;
    m_screen = window->screen();
    Q_EMIT areaChanged();
}
