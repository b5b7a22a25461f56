// SPDX-License-Identifier: MIT
#pragma once

#include "notifications.h"

#include <QObject>
#include <QRect>

#include <memory>

class QWidget;

/// Where pop-ups can be put on this platform: on the screen, or inside a window of the application.
class PopupPlacer : public QObject
{
    Q_OBJECT
public:
    /// Inside a window where programs do not place windows on the screen.
    static Notifications::Placement placementFor(Notifications::Placement wanted);
    /// The placement is not Automatic.
    static std::unique_ptr<PopupPlacer> create(Notifications::Placement placement);
    ~PopupPlacer() override;

    /// True when the pop-ups of all programs share the area.
    virtual bool isShared() const = 0;
    /// The area for pop-ups, in the coordinates of their positions; null when there is none now.
    virtual QRect area() = 0;
    /// Makes the pop-up one of the area, as long as area() is not null.
    virtual void adopt(QWidget& popup) = 0;

Q_SIGNALS:
    /// The area may have changed.
    void areaChanged();

protected:
    PopupPlacer();
};
