// SPDX-License-Identifier: MIT
#include "colorcirclegeometry_p.h"

#include <QLineF>

#include <algorithm>
#include <numbers>

namespace {

constexpr double margin = 3;      // for the mark and the frame of the focus, in pixels
constexpr double ringPart = 0.16; // of the radius

} // namespace

ColorCircleGeometry::ColorCircleGeometry(const QSizeF& size)
{
    const double diameter = std::max(0.0, std::min(size.width(), size.height()) - 2 * margin);
    m_ring =
        QRectF((size.width() - diameter) / 2, (size.height() - diameter) / 2, diameter, diameter);
    const double gap = ringWidth() / 3;
    const double side = std::max(0.0, (hole().width() - 2 * gap) / std::numbers::sqrt2);
    m_square = QRectF(0, 0, side, side);
    m_square.moveCenter(m_ring.center());
}

double ColorCircleGeometry::ringWidth() const
{
    return m_ring.width() / 2 * ringPart;
}

QRectF ColorCircleGeometry::hole() const
{
    const double width = ringWidth();
    return m_ring.adjusted(width, width, -width, -width);
}

ColorCircleGeometry::Part ColorCircleGeometry::partAt(const QPointF& place) const
{
    if (m_square.contains(place))
        return Square;
    const double distance = QLineF(m_ring.center(), place).length();
    return distance >= hole().width() / 2 && distance <= m_ring.width() / 2 ? Ring : Nowhere;
}

double ColorCircleGeometry::hueAt(const QPointF& place) const
{
    return QLineF(m_ring.center(), place).angle() / 360;
}

QPointF ColorCircleGeometry::placeOf(double hue) const
{
    return m_ring.center() + QLineF::fromPolar((m_ring.width() - ringWidth()) / 2, hue * 360).p2();
}

ColorCircleGeometry::Shade ColorCircleGeometry::shadeAt(const QPointF& place) const
{
    if (m_square.isEmpty())
        return {0, 0};
    return {std::clamp((place.x() - m_square.left()) / m_square.width(), 0.0, 1.0),
            std::clamp((m_square.bottom() - place.y()) / m_square.height(), 0.0, 1.0)};
}

QPointF ColorCircleGeometry::placeOf(const Shade& shade) const
{
    return {m_square.left() + shade.saturation * m_square.width(),
            m_square.bottom() - shade.value * m_square.height()};
}
