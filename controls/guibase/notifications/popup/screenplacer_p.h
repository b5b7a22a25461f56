// SPDX-License-Identifier: MIT
#pragma once

#include "popupplacer_p.h"

#include <QPointer>
#include <QScreen>

/// Puts pop-ups on the screen with the active window of this process; on the primary screen until
/// there is one.
class ScreenPlacer : public PopupPlacer
{
    Q_OBJECT
public:
    ScreenPlacer();
    ~ScreenPlacer() override;

    bool isShared() const override { return true; }
    QRect area() override;
    void adopt(QWidget& popup) override;

private:
    void followFocus();

    QPointer<QScreen> m_screen;
};
