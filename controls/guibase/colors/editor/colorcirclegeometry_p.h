// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>

/// Where a ColorCircle has its hues, saturations and values; all of them from 0 to 1.
class ColorCircleGeometry
{
public:
    explicit ColorCircleGeometry(const QSizeF& size);

    enum Part { Nowhere, Ring, Square };
    Part partAt(const QPointF& place) const;

    /// Red at the right, then against the clock. Also for places beside the ring.
    double hueAt(const QPointF& place) const;
    /// The middle of the ring, at that hue.
    QPointF placeOf(double hue) const;
    /// Grows to the right and to the top. Places outside count as those at the edge.
    struct Shade
    {
        double saturation;
        double value;
    };
    Shade shadeAt(const QPointF& place) const;
    QPointF placeOf(const Shade& shade) const;

    const QRectF& ring() const { return m_ring; }
    /// The inner border of the ring.
    QRectF hole() const;
    const QRectF& square() const { return m_square; }
    double ringWidth() const;

private:
    QRectF m_ring; ///< Around its outer border.
    QRectF m_square;
};
