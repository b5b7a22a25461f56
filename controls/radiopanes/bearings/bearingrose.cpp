// SPDX-License-Identifier: MIT
#include "bearingrose.h"

#include <radiopanes/colors/contrast.h>
#include <radiopanes/colors/panecolors.h>
#include <radiopanes/panes/frequencytext.h>

#include <guibase/services/guibase.h>

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace RadioPanes {

namespace {

constexpr double margin = 4;
constexpr double ringPadding = 12;
constexpr double reach = 8; ///< Pixels between the mouse and a line that still hit it.
constexpr int labelStep = 30;
constexpr int tickStep = 10;
constexpr double aheadHalfWidth = 8; ///< Degrees of the ring around 0 and 180.
constexpr double smallestShownSpread = 1;
constexpr int smallestExtent = 180;
constexpr int standardExtent = 320;

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

int wholeDegrees(double degrees)
{
    return static_cast<int>(normalizedDegrees(std::round(degrees)));
}

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

class BearingRosePrivate
{
public:
    std::vector<Bearing> bearings;
    FrequencyText text;
    double heading = 0;
    bool headingUp = false;
    std::uint32_t selected = 0;
};

BearingRose::BearingRose(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<BearingRosePrivate>())
{
    setObjectName(QStringLiteral("bearingRose"));
    setAccessibleName(tr("Compass rose of the bearings"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, this,
            qOverload<>(&QWidget::update));
    showChange();
}

BearingRose::~BearingRose() = default;

QSize BearingRose::sizeHint() const
{
    return {standardExtent, standardExtent};
}

QSize BearingRose::minimumSizeHint() const
{
    return {smallestExtent, smallestExtent};
}

double BearingRose::heading() const
{
    return d->heading;
}

bool BearingRose::isHeadingUp() const
{
    return d->headingUp;
}

std::uint32_t BearingRose::selected() const
{
    return d->selected;
}

void BearingRose::setHeading(double degrees)
{
    d->heading = normalizedDegrees(degrees);
    showChange();
}

void BearingRose::setHeadingUp(bool on)
{
    d->headingUp = on;
    showChange();
}

void BearingRose::refreshTexts()
{
    d->text.refresh();
    showChange();
}

void BearingRose::setBearings(std::span<const Bearing> bearings)
{
    d->bearings.assign(bearings.begin(), bearings.end());
    if (find(d->selected) == nullptr)
        d->selected = 0;
    showChange();
}

const Bearing* BearingRose::find(std::uint32_t id) const
{
    const auto found = std::ranges::find(d->bearings, id, &Bearing::id);
    return found == d->bearings.end() ? nullptr : &*found;
}

void BearingRose::showChange()
{
    const QString description = selectedText();
    if (description != accessibleDescription())
        setAccessibleDescription(description);
    update();
    Q_EMIT selectionShown();
}

// --- Places --------------------------------------------------------------------------------------

double BearingRose::screenAngle(double bearing) const
{
    return d->headingUp ? relativeBearing(bearing, d->heading) : normalizedDegrees(bearing);
}

double BearingRose::ringWidth() const
{
    return std::max(fontMetrics().height(),
                    fontMetrics().horizontalAdvance(QStringLiteral("000"))) +
           ringPadding;
}

double BearingRose::outerRadius() const
{
    return std::max(std::min(width(), height()) / 2.0 - margin, ringWidth() + 1);
}

double BearingRose::innerRadius() const
{
    return outerRadius() - ringWidth();
}

QPointF BearingRose::pointAt(double angle, double radius) const
{
    const QPointF centre = QRectF(rect()).center();
    return {centre.x() + radius * std::sin(radians(angle)),
            centre.y() - radius * std::cos(radians(angle))};
}

QPointF BearingRose::lineEnd(double bearing) const
{
    return pointAt(screenAngle(bearing), innerRadius());
}

std::uint32_t BearingRose::signalAt(QPointF point) const
{
    const QPointF offset = point - QRectF(rect()).center();
    const double distance = std::hypot(offset.x(), offset.y());
    // In the centre all lines meet.
    if (distance < reach || distance > outerRadius())
        return 0;
    const double angle = std::atan2(offset.x(), -offset.y()) * 180 / std::numbers::pi;
    std::uint32_t nearest = 0;
    double smallest =
        std::min(90.0, std::asin(std::min(1.0, reach / distance)) * 180 / std::numbers::pi);
    for (const Bearing& bearing : d->bearings) {
        const double between = angleBetween(angle, screenAngle(bearing.degrees));
        if (between > smallest)
            continue;
        smallest = between;
        nearest = bearing.id;
    }
    return nearest;
}

// --- Selection -----------------------------------------------------------------------------------

std::vector<const Bearing*> BearingRose::ordered() const
{
    std::vector<const Bearing*> result;
    for (const Bearing& bearing : d->bearings)
        result.push_back(&bearing);
    std::ranges::stable_sort(
        result, {}, [this](const Bearing* bearing) { return screenAngle(bearing->degrees); });
    return result;
}

void BearingRose::select(std::uint32_t id)
{
    if (id == d->selected || (id != 0 && find(id) == nullptr))
        return;
    d->selected = id;
    showChange();
}

void BearingRose::selectStep(int step)
{
    const std::vector<const Bearing*> all = ordered();
    if (all.empty())
        return;
    const auto count = static_cast<std::ptrdiff_t>(all.size());
    const auto found = std::ranges::find_if(
        all, [this](const Bearing* bearing) { return bearing->id == d->selected; });
    std::ptrdiff_t index = step > 0 ? 0 : count - 1;
    if (found != all.end())
        index = (found - all.begin() + step + count) % count;
    select(all[static_cast<std::size_t>(index)]->id);
}

void BearingRose::choose(std::uint32_t id)
{
    const Bearing* bearing = find(id);
    if (bearing == nullptr)
        return;
    const double hertz = bearing->hertz;
    select(id);
    Q_EMIT signalChosen(hertz);
}

QString BearingRose::textOf(const Bearing& bearing) const
{
    QString side;
    const int relative = wholeDegrees(relativeBearing(bearing.degrees, d->heading));
    switch (sideOf(relative)) {
    case BearingSide::Ahead:
        side = tr("ahead");
        break;
    case BearingSide::Astern:
        side = tr("astern");
        break;
    case BearingSide::Starboard:
        side = tr("%1° to starboard").arg(relative);
        break;
    case BearingSide::Portside:
        side = tr("%1° to portside").arg(360 - relative);
        break;
    }
    return tr("%1: bearing %2° ± %3°, %4")
        .arg(d->text.full(bearing.hertz))
        .arg(wholeDegrees(bearing.degrees), 3, 10, QLatin1Char('0'))
        .arg(bearing.spread, 0, 'f', 1)
        .arg(side);
}

QString BearingRose::selectedText() const
{
    if (const Bearing* bearing = find(d->selected))
        return textOf(*bearing);
    return tr("Signals: %1, none selected").arg(d->bearings.size());
}

// --- Events --------------------------------------------------------------------------------------

bool BearingRose::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const Bearing* bearing = find(signalAt(help->pos()));
    if (bearing != nullptr)
        QToolTip::showText(help->globalPos(), textOf(*bearing), this);
    else
        QToolTip::hideText();
    return true;
}

void BearingRose::mousePressEvent(QMouseEvent* event)
{
    const std::uint32_t hit = signalAt(event->position());
    if (event->button() == Qt::LeftButton && hit != 0)
        choose(hit);
    else
        QWidget::mousePressEvent(event);
}

void BearingRose::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return selectStep(1);
    case Qt::Key_Left:
    case Qt::Key_Up:
        return selectStep(-1);
    case Qt::Key_Home:
        select(0);
        return selectStep(1);
    case Qt::Key_End:
        select(0);
        return selectStep(-1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return choose(d->selected);
    default:
        QWidget::keyPressEvent(event);
    }
}

// --- Painting ------------------------------------------------------------------------------------

void BearingRose::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintRing(painter);
    paintScale(painter);
    const Bearing* selected = find(d->selected);
    for (const Bearing& bearing : d->bearings) {
        if (&bearing != selected)
            paintBearing(painter, bearing);
    }
    if (selected != nullptr)
        paintBearing(painter, *selected);
    paintMark(painter);
    if (d->bearings.empty())
        paintHint(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void BearingRose::paintRing(QPainter& painter) const
{
    const QPointF centre = QRectF(rect()).center();
    const QRectF ring = circleAround(centre, outerRadius());
    painter.setPen(Qt::NoPen);
    if (d->headingUp) {
        painter.setBrush(ringColor(90));
        drawSector(painter, ring, 0, 180);
        painter.setBrush(ringColor(270));
        drawSector(painter, ring, 180, 180);
        painter.setBrush(ringColor(0));
        for (const double ahead : {0, 180})
            drawSector(painter, ring, ahead - aheadHalfWidth, 2 * aheadHalfWidth);
    } else {
        painter.setBrush(axisColor(PaneSlot::LevelAxisBackground, palette()));
        painter.drawEllipse(ring);
    }
    const QColor background = paneColor(PaneSlot::BackgroundLow);
    painter.setBrush(background);
    painter.drawEllipse(circleAround(centre, innerRadius()));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(paneColor(PaneSlot::Grid));
    for (const double share : {1.0 / 3, 2.0 / 3})
        painter.drawEllipse(circleAround(centre, innerRadius() * share));
    painter.setPen(readableOn(palette().color(QPalette::Window), palette().color(QPalette::Mid),
                              lineContrast));
    painter.drawEllipse(ring);
}

void BearingRose::paintScale(QPainter& painter) const
{
    constexpr const char* winds[] = {
        QT_TRANSLATE_NOOP("bandmonitor::BearingRose", "N"),
        QT_TRANSLATE_NOOP("bandmonitor::BearingRose", "E"),
        QT_TRANSLATE_NOOP("bandmonitor::BearingRose", "S"),
        QT_TRANSLATE_NOOP("bandmonitor::BearingRose", "W"),
    };
    constexpr double tickLength = 4;
    for (int angle = 0; angle < 360; angle += tickStep) {
        const QColor background =
            d->headingUp ? ringColor(angle) : axisColor(PaneSlot::LevelAxisBackground, palette());
        const QColor text = d->headingUp ? paneColor(IColorBase::RelativeBearingText)
                                         : axisColor(PaneSlot::LevelAxisText, palette());
        painter.setPen(readableOn(background, text));
        painter.drawLine(pointAt(angle, innerRadius()), pointAt(angle, innerRadius() + tickLength));
        if (angle % labelStep != 0)
            continue;
        // To both sides of the bow the scale goes up to 180.
        QString label = QString::number(d->headingUp ? std::min(angle, 360 - angle) : angle);
        if (!d->headingUp && angle % 90 == 0)
            label = tr(winds[angle / 90]);
        const double extent = 2 * ringWidth();
        const QPointF middle = pointAt(angle, (innerRadius() + tickLength + outerRadius()) / 2);
        painter.drawText(circleAround(middle, extent / 2), Qt::AlignCenter, label);
    }
}

void BearingRose::paintMark(QPainter& painter) const
{
    // Heading up north is marked, north up the heading.
    const double angle = d->headingUp ? screenAngle(0) : d->heading;
    const QColor background = paneColor(PaneSlot::BackgroundLow);
    const QColor color =
        readableOn(background, paneColor(IColorBase::RelativeBearingZeroAnd180), lineContrast);
    constexpr double length = 12;
    constexpr double halfWidth = 3.5;
    const double base = innerRadius() - length;
    const double turn = halfWidth / std::max(base, 1.0) * 180 / std::numbers::pi;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF(
        {pointAt(angle, innerRadius()), pointAt(angle - turn, base), pointAt(angle + turn, base)}));
    painter.setPen(color);
    const double extent = fontMetrics().height();
    const QPointF middle = pointAt(angle, base - extent * 0.6);
    painter.drawText(circleAround(middle, extent), Qt::AlignCenter,
                     d->headingUp ? tr("N") : tr("H", "Mark of the heading"));
}

void BearingRose::paintBearing(QPainter& painter, const Bearing& bearing) const
{
    constexpr float spreadOpacity = 0.25F;
    const bool isSelected = bearing.id == d->selected;
    const QColor background = paneColor(PaneSlot::BackgroundLow);
    const QColor color =
        readableOn(background, paneColor(signalTypeSlot(bearing.type)), lineContrast);
    const double angle = screenAngle(bearing.degrees);
    const QPointF centre = QRectF(rect()).center();
    QColor area = color;
    area.setAlphaF(bearing.isPresent ? spreadOpacity : spreadOpacity / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(area);
    const double spread = std::max(bearing.spread, smallestShownSpread);
    drawSector(painter, circleAround(centre, innerRadius()), angle - spread, 2 * spread);
    QPen pen(color, isSelected ? 3 : 1.5);
    pen.setStyle(bearing.isPresent ? Qt::SolidLine : Qt::DotLine);
    painter.setPen(pen);
    const QPointF end = pointAt(angle, innerRadius());
    painter.drawLine(centre, end);
    if (!isSelected)
        return;
    constexpr double knob = 5;
    painter.setPen(QPen(readableOn(color, Qt::black, lineContrast), 1));
    painter.setBrush(color);
    painter.drawEllipse(pointAt(angle, innerRadius() - knob), knob, knob);
}

void BearingRose::paintHint(QPainter& painter) const
{
    const QColor background = paneColor(PaneSlot::BackgroundLow);
    painter.setPen(readableOn(background, paneColor(PaneSlot::ReadOut)));
    const double extent = innerRadius() * std::numbers::sqrt2;
    painter.drawText(circleAround(QRectF(rect()).center(), extent / 2),
                     Qt::AlignCenter | Qt::TextWordWrap,
                     tr("No signals. Their bearings appear here."));
}

} // namespace RadioPanes
