// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointF>
#include <QSize>

/// Where boxes stand on a circle around the origin. Lengths in pixels, y downward.
namespace CirclePlan {

/// A box and the direction of its centre, a vector of length 1.
struct Item
{
    QSize size;
    QPointF direction;
};

/// Evenly spread directions; `startAngle` in degrees from the top, clockwise.
QList<QPointF> directions(qsizetype count, double startAngle, bool isClockwise);
/// The smallest radius at which no two boxes come closer than `spacing`.
double smallestRadius(const QList<Item>& items, int spacing);
/// The largest radius at which all boxes lie in an area around the origin; 0 when it is too small.
double largestRadius(const QList<Item>& items, const QSize& area);
/// The smallest area around the origin that holds all boxes.
QSize extent(const QList<Item>& items, double radius);

} // namespace CirclePlan
