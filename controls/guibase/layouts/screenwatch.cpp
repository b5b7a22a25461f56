// SPDX-License-Identifier: MIT
#include "screenwatch_p.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>

ScreenWatch::ScreenWatch(std::function<void()> changed)
    : m_changed(std::move(changed))
{
    m_changed.setDelay(milliseconds);
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens)
        watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
        watch(screen);
        m_changed.request();
    });
    for (const auto signal :
         {&QGuiApplication::screenRemoved, &QGuiApplication::primaryScreenChanged})
        connect(qGuiApp, signal, this, [this] { m_changed.request(); });
}

ScreenWatch::~ScreenWatch() = default;

void ScreenWatch::watch(QScreen* screen)
{
    const auto request = [this] { m_changed.request(); };
    connect(screen, &QScreen::availableGeometryChanged, this, request);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, request);
}
