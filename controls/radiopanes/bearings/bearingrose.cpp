// SPDX-License-Identifier: MIT
#include "bearingrose_p.h"

#include <guibase/services/guibase.h>

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolTip>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace RadioPanes {

namespace {

constexpr double reach = 8; ///< Pixels between the mouse and a line that still hit it.
constexpr int smallestExtent = 180;
constexpr int standardExtent = 320;

int wholeDegrees(double degrees)
{
    return static_cast<int>(normalizedDegrees(std::round(degrees)));
}

} // namespace

BearingRose::BearingRose(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<BearingRosePrivate>(this))
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
    if (d->find(d->selected) == nullptr)
        d->selected = 0;
    showChange();
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

QPointF BearingRose::lineEnd(double bearing) const
{
    return d->pointAt(d->screenAngle(bearing), d->innerRadius());
}

std::uint32_t BearingRose::signalAt(QPointF point) const
{
    const QPointF offset = point - d->centre();
    const double distance = std::hypot(offset.x(), offset.y());
    // In the centre all lines meet.
    if (distance < reach || distance > d->outerRadius())
        return 0;
    const double angle = qRadiansToDegrees(std::atan2(offset.x(), -offset.y()));
    std::uint32_t nearest = 0;
    double smallest = qRadiansToDegrees(std::asin(std::min(1.0, reach / distance)));
    for (const Bearing& bearing : d->bearings) {
        const double between = angleBetween(angle, d->screenAngle(bearing.degrees));
        if (between > smallest)
            continue;
        smallest = between;
        nearest = bearing.id;
    }
    return nearest;
}

// --- Selection -----------------------------------------------------------------------------------

const Bearing* BearingRosePrivate::find(std::uint32_t id) const
{
    const auto found = std::ranges::find(bearings, id, &Bearing::id);
    return found == bearings.end() ? nullptr : &*found;
}

std::vector<const Bearing*> BearingRosePrivate::ordered() const
{
    std::vector<const Bearing*> result;
    for (const Bearing& bearing : bearings)
        result.push_back(&bearing);
    std::ranges::stable_sort(
        result, {}, [this](const Bearing* bearing) { return screenAngle(bearing->degrees); });
    return result;
}

void BearingRose::select(std::uint32_t id)
{
    if (id == d->selected || (id != 0 && d->find(id) == nullptr))
        return;
    d->selected = id;
    showChange();
}

void BearingRose::selectStep(int step)
{
    const std::vector<const Bearing*> all = d->ordered();
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
    const Bearing* bearing = d->find(id);
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
    if (const Bearing* bearing = d->find(d->selected))
        return textOf(*bearing);
    return tr("Signals: %1, none selected").arg(d->bearings.size());
}

// --- Events --------------------------------------------------------------------------------------

bool BearingRose::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const Bearing* bearing = d->find(signalAt(help->pos()));
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

void BearingRose::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setLayoutDirection(Qt::LeftToRight); // numbers keep their sign in front
    d->paint(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace RadioPanes
