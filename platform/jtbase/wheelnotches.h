// SPDX-License-Identifier: MIT
#pragma once

#include <QWheelEvent>

/// How far the wheel has turned. Some systems turn it sideways while a key is held.
inline int wheelAngle(const QWheelEvent& event)
{
    const QPoint delta = event.angleDelta();
    return delta.y() != 0 ? delta.y() : delta.x();
}

/// Makes whole notches of what a wheel or touchpad reports: many tell of parts of a notch.
class WheelNotches
{
public:
    /// The notches that are full with this angle (eighths of a degree, away from the user above 0).
    int add(int angle)
    {
        m_angle += angle;
        const int notches = m_angle / QWheelEvent::DefaultDeltasPerStep;
        m_angle %= QWheelEvent::DefaultDeltasPerStep;
        return notches;
    }

private:
    int m_angle = 0; ///< Of the notch that is not full.
};
