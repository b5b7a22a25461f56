// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/delayedcall.h>

#include <QObject>

#include <functional>

class QScreen;

/// Tells once the screens have changed: one has come or gone, or has another place, size or scale.
/// Made when there is an application object.
class ScreenWatch : public QObject
{
    Q_OBJECT
public:
    /// The function is called a while after the last of several changes.
    explicit ScreenWatch(std::function<void()> changed);
    ~ScreenWatch() override;

    /// Window managers move the windows of a screen that goes by themselves, or not.
    static constexpr int milliseconds = 1000;

private:
    void watch(QScreen* screen);

    DelayedCall m_changed;
};
