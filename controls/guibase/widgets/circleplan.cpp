// SPDX-License-Identifier: MIT
#include "circleplan_p.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace {

constexpr double endless = std::numeric_limits<double>::infinity();
constexpr double nothing = 1e-9;

/// The radius at which a distance that grows with it reaches so many pixels.
double radiusFor(double pixels, double distancePerRadius)
{
    const double distance = std::abs(distancePerRadius);
    return pixels <= 0 ? 0 : distance < nothing ? endless : pixels / distance;
}

} // namespace

QList<QPointF> CirclePlan::directions(qsizetype count, double startAngle, bool isClockwise)
{
    QList<QPointF> result;
    for (qsizetype i = 0; i < count; ++i) {
        const double turn = 360.0 * double(i) / double(count);
        const double angle = (startAngle + (isClockwise ? turn : -turn)) * std::numbers::pi / 180.0;
        result << QPointF(std::sin(angle), -std::cos(angle));
    }
    return result;
}

double CirclePlan::smallestRadius(const QList<Item>& items, int spacing)
{
    double radius = 0;
    for (qsizetype i = 0; i < items.size(); ++i) {
        for (qsizetype j = 0; j < i; ++j) {
            // Two boxes are apart when they are apart in one of the directions.
            const QSizeF room = QSizeF(items[i].size + items[j].size) / 2;
            const QPointF apart = items[i].direction - items[j].direction;
            radius = std::max(radius, std::min(radiusFor(room.width() + spacing, apart.x()),
                                               radiusFor(room.height() + spacing, apart.y())));
        }
    }
    return radius;
}

double CirclePlan::largestRadius(const QList<Item>& items, const QSize& area)
{
    double radius = endless;
    for (const Item& item : items) {
        const QSizeF room = QSizeF(area - item.size) / 2;
        if (room.width() < 0 || room.height() < 0)
            return 0;
        for (const auto& [pixels, part] : {std::pair(room.width(), item.direction.x()),
                                           std::pair(room.height(), item.direction.y())}) {
            if (std::abs(part) > nothing)
                radius = std::min(radius, pixels / std::abs(part));
        }
    }
    return items.isEmpty() ? 0 : radius;
}

QSize CirclePlan::extent(const QList<Item>& items, double radius)
{
    QSizeF result(0, 0);
    for (const Item& item : items) {
        const QSizeF reach(std::abs(item.direction.x()), std::abs(item.direction.y()));
        result = result.expandedTo(reach * 2 * radius + QSizeF(item.size));
    }
    return {static_cast<int>(std::ceil(result.width() - nothing)),
            static_cast<int>(std::ceil(result.height() - nothing))};
}
