// SPDX-License-Identifier: MIT
#include "bearingrose_p.h"

#include <radiopanes/colors/contrast.h>
#include <radiopanes/colors/panecolors.h>

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace RadioPanes {

namespace {

constexpr double margin = 4;
constexpr double ringPadding = 12;
constexpr int labelStep = 30;
constexpr int tickStep = 10;
constexpr double aheadHalfWidth = 8; ///< Degrees of the ring around 0 and 180.
constexpr double smallestShownSpread = 1;

/// From clockwise degrees from the top to the painter's sixteenths, against the clock from the
/// right.
void drawSector(QPainter& painter, const QRectF& circle, double from, double span)
{
    constexpr double sixteenths = 16;
    painter.drawPie(circle, qRound((90 - from) * sixteenths), qRound(-span * sixteenths));
}

QRectF circleAround(QPointF centre, double radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

QColor ringColor(int relative)
{
    switch (sideOf(relative)) {
    case BearingSide::Starboard:
        return paneColor(IColorBase::RelativeBearingStarboard);
    case BearingSide::Portside:
        return paneColor(IColorBase::RelativeBearingPortside);
    case BearingSide::Ahead:
    case BearingSide::Astern:
        break;
    }
    return paneColor(IColorBase::RelativeBearingZeroAnd180);
}

} // namespace

double BearingRosePrivate::screenAngle(double bearing) const
{
    return headingUp ? relativeBearing(bearing, heading) : normalizedDegrees(bearing);
}

double BearingRosePrivate::ringWidth() const
{
    return std::max(q->fontMetrics().height(),
                    q->fontMetrics().horizontalAdvance(QStringLiteral("000"))) +
           ringPadding;
}

double BearingRosePrivate::outerRadius() const
{
    return std::max(std::min(q->width(), q->height()) / 2.0 - margin, ringWidth() + 1);
}

double BearingRosePrivate::innerRadius() const
{
    return outerRadius() - ringWidth();
}

QPointF BearingRosePrivate::centre() const
{
    return QRectF(q->rect()).center();
}

QPointF BearingRosePrivate::pointAt(double angle, double radius) const
{
    const double turn = qDegreesToRadians(angle);
    return centre() + radius * QPointF(std::sin(turn), -std::cos(turn));
}

void BearingRosePrivate::paint(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    paintRing(painter);
    paintScale(painter);
    const Bearing* chosen = find(selected);
    for (const Bearing& bearing : bearings) {
        if (&bearing != chosen)
            paintBearing(painter, bearing);
    }
    if (chosen != nullptr)
        paintBearing(painter, *chosen);
    paintMark(painter);
    if (bearings.empty())
        paintHint(painter);
}

void BearingRosePrivate::paintRing(QPainter& painter) const
{
    const QRectF ring = circleAround(centre(), outerRadius());
    painter.setPen(Qt::NoPen);
    if (headingUp) {
        painter.setBrush(ringColor(90));
        drawSector(painter, ring, 0, 180);
        painter.setBrush(ringColor(270));
        drawSector(painter, ring, 180, 180);
        painter.setBrush(ringColor(0));
        for (const double ahead : {0, 180})
            drawSector(painter, ring, ahead - aheadHalfWidth, 2 * aheadHalfWidth);
    } else {
        painter.setBrush(axisColor(PaneSlot::LevelAxisBackground, q->palette()));
        painter.drawEllipse(ring);
    }
    painter.setBrush(paneColor(PaneSlot::BackgroundLow));
    painter.drawEllipse(circleAround(centre(), innerRadius()));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(paneColor(PaneSlot::Grid));
    for (const double share : {1.0 / 3, 2.0 / 3})
        painter.drawEllipse(circleAround(centre(), innerRadius() * share));
    painter.setPen(readableOn(q->palette().color(QPalette::Window),
                              q->palette().color(QPalette::Mid), lineContrast));
    painter.drawEllipse(ring);
}

void BearingRosePrivate::paintScale(QPainter& painter) const
{
    constexpr const char* winds[] = {
        QT_TRANSLATE_NOOP("RadioPanes::BearingRose", "N"),
        QT_TRANSLATE_NOOP("RadioPanes::BearingRose", "E"),
        QT_TRANSLATE_NOOP("RadioPanes::BearingRose", "S"),
        QT_TRANSLATE_NOOP("RadioPanes::BearingRose", "W"),
    };
    constexpr double tickLength = 4;
    for (int angle = 0; angle < 360; angle += tickStep) {
        const QColor background =
            headingUp ? ringColor(angle) : axisColor(PaneSlot::LevelAxisBackground, q->palette());
        const QColor ink = headingUp ? paneColor(IColorBase::RelativeBearingText)
                                     : axisColor(PaneSlot::LevelAxisText, q->palette());
        painter.setPen(readableOn(background, ink));
        painter.drawLine(pointAt(angle, innerRadius()), pointAt(angle, innerRadius() + tickLength));
        if (angle % labelStep != 0)
            continue;
        // To both sides of the bow the scale goes up to 180.
        QString label = QString::number(headingUp ? std::min(angle, 360 - angle) : angle);
        if (!headingUp && angle % 90 == 0)
            label = BearingRose::tr(winds[angle / 90]);
        const double extent = 2 * ringWidth();
        const QPointF middle = pointAt(angle, (innerRadius() + tickLength + outerRadius()) / 2);
        painter.drawText(circleAround(middle, extent / 2), Qt::AlignCenter, label);
    }
}

void BearingRosePrivate::paintMark(QPainter& painter) const
{
    // Heading up north is marked, north up the heading.
    const double angle = headingUp ? screenAngle(0) : heading;
    const QColor background = paneColor(PaneSlot::BackgroundLow);
    const QColor color =
        readableOn(background, paneColor(IColorBase::RelativeBearingZeroAnd180), lineContrast);
    constexpr double length = 12;
    constexpr double halfWidth = 3.5;
    const double base = innerRadius() - length;
    const double turn = qRadiansToDegrees(halfWidth / std::max(base, 1.0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF(
        {pointAt(angle, innerRadius()), pointAt(angle - turn, base), pointAt(angle + turn, base)}));
    painter.setPen(color);
    const double extent = q->fontMetrics().height();
    const QPointF middle = pointAt(angle, base - extent * 0.6);
    painter.drawText(circleAround(middle, extent), Qt::AlignCenter,
                     headingUp ? BearingRose::tr("N")
                               : BearingRose::tr("H", "Mark of the heading"));
}

void BearingRosePrivate::paintBearing(QPainter& painter, const Bearing& bearing) const
{
    constexpr float spreadOpacity = 0.25F;
    const bool isSelected = bearing.id == selected;
    const QColor background = paneColor(PaneSlot::BackgroundLow);
    const QColor color =
        readableOn(background, paneColor(signalTypeSlot(bearing.type)), lineContrast);
    const double angle = screenAngle(bearing.degrees);
    QColor area = color;
    area.setAlphaF(bearing.isPresent ? spreadOpacity : spreadOpacity / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(area);
    const double spread = std::max(bearing.spread, smallestShownSpread);
    drawSector(painter, circleAround(centre(), innerRadius()), angle - spread, 2 * spread);
    QPen pen(color, isSelected ? 3 : 1.5);
    pen.setStyle(bearing.isPresent ? Qt::SolidLine : Qt::DotLine);
    painter.setPen(pen);
    const QPointF end = pointAt(angle, innerRadius());
    painter.drawLine(centre(), end);
    if (!isSelected)
        return;
    constexpr double knob = 5;
    painter.setPen(QPen(readableOn(color, Qt::black, lineContrast), 1));
    painter.setBrush(color);
    painter.drawEllipse(pointAt(angle, innerRadius() - knob), knob, knob);
}

void BearingRosePrivate::paintHint(QPainter& painter) const
{
    const QColor background = paneColor(PaneSlot::BackgroundLow);
    painter.setPen(readableOn(background, paneColor(PaneSlot::ReadOut)));
    const double extent = innerRadius() * std::numbers::sqrt2;
    painter.drawText(circleAround(centre(), extent / 2), Qt::AlignCenter | Qt::TextWordWrap,
                     BearingRose::tr("No signals. Their bearings appear here."));
}

} // namespace RadioPanes
