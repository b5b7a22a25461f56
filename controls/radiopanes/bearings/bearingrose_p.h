// SPDX-License-Identifier: MIT
#pragma once

#include "bearingrose.h"

#include <radiopanes/panes/frequencytext.h>

#include <vector>

class QPainter;

namespace RadioPanes {

/// What a BearingRose shows, where on the widget that lies, and the painting of it. Angles on the
/// widget are in degrees, clockwise from the top.
class BearingRosePrivate
{
public:
    explicit BearingRosePrivate(const BearingRose* rose)
        : q(rose)
    {}

    /// Null when the signal is not among those that are shown.
    const Bearing* find(std::uint32_t id) const;
    /// By their angle from the top, clockwise.
    std::vector<const Bearing*> ordered() const;

    double screenAngle(double bearing) const;
    QPointF centre() const;
    QPointF pointAt(double angle, double radius) const;
    double outerRadius() const;
    double innerRadius() const;

    /// All but the frame of the focus.
    void paint(QPainter& painter) const;

    const BearingRose* q;
    std::vector<Bearing> bearings;
    FrequencyText text;
    double heading = 0;
    bool headingUp = false;
    std::uint32_t selected = 0;

private:
    double ringWidth() const;
    void paintRing(QPainter& painter) const;
    void paintScale(QPainter& painter) const;
    void paintMark(QPainter& painter) const;
    void paintBearing(QPainter& painter, const Bearing& bearing) const;
    void paintHint(QPainter& painter) const;
};

} // namespace RadioPanes
