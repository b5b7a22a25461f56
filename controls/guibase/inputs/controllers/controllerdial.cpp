// SPDX-License-Identifier: MIT
#include "controllerdial.h"

#include "controllerscale_p.h"

#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace {

constexpr int notches = 10;
constexpr int usual = 72; ///< Diameter, in pixels.
constexpr int smallest = 32;
constexpr double lowestAngle = 240; ///< Of the toolkit's dials, against the clock from the right.
constexpr double sweep = 300;

/// The line of the text, below; empty while it is not visible.
QRect textRectOf(const ControllerDial& dial)
{
    const int height = dial.isTextVisible() ? dial.fontMetrics().height() : 0;
    return {0, dial.height() - height, dial.width(), height};
}

/// In degrees against the clock; nothing near the centre, where the pointer has no direction.
std::optional<double> angleOf(const QRectF& dial, const QPointF& pointer)
{
    const QLineF line(dial.center(), pointer);
    const double nearCentre = dial.width() / 10;
    return line.length() > nearCentre ? std::optional(line.angle()) : std::nullopt;
}

} // namespace

struct ControllerDial::Private
{
    std::optional<double> angle; ///< Of the pointer while dragging.
};

ControllerDial::ControllerDial(QWidget* parent)
    : AbstractController(parent)
    , m_d(std::make_unique<Private>())
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

ControllerDial::~ControllerDial() = default;

QRect ControllerDial::dialRect() const
{
    const int room = textRectOf(*this).top();
    const int diameter = std::max(0, std::min(width(), room));
    return {(width() - diameter) / 2, (room - diameter) / 2, diameter, diameter};
}

QSize ControllerDial::sizeFor(int diameter) const
{
    ensurePolished();
    const QSize text = textSize();
    return {std::max(diameter, text.width()), diameter + text.height()};
}

QSize ControllerDial::sizeHint() const
{
    return sizeFor(usual);
}

QSize ControllerDial::minimumSizeHint() const
{
    return sizeFor(smallest);
}

void ControllerDial::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QStyleOptionSlider option;
    option.initFrom(this);
    option.rect = dialRect();
    option.maximum = ControllerScale::wholeRange;
    option.sliderPosition = option.sliderValue = scale().wholeOf(value());
    option.upsideDown = false;
    option.notchTarget = 1;
    option.tickInterval = ControllerScale::wholeRange / notches;
    option.subControls = QStyle::SC_DialGroove | QStyle::SC_DialHandle | QStyle::SC_DialTickmarks;
    if (isSliderDown())
        option.state |= QStyle::State_Sunken;
    style()->drawComplexControl(QStyle::CC_Dial, &option, &painter, this);

    // The default value, on the rim.
    const QRectF dial = option.rect;
    QLineF mark = QLineF::fromPolar(dial.width() / 2,
                                    lowestAngle - sweep * scale().fractionOf(defaultValue()));
    mark.translate(dial.center());
    const QPointF inner = mark.pointAt(0.88);
    painter.setPen(QPen(palette().color(foregroundRole()), 2));
    painter.drawLine(inner, mark.p2());
    painter.setLayoutDirection(Qt::LeftToRight); // numbers keep their sign in front
    if (const QRect text = textRectOf(*this); !text.isEmpty())
        style()->drawItemText(&painter, text, Qt::AlignCenter, palette(), isEnabled(), textValue(),
                              foregroundRole());
}

void ControllerDial::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_d->angle = angleOf(dialRect(), event->position());
    beginDrag();
}

void ControllerDial::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        reset();
}

void ControllerDial::mouseMoveEvent(QMouseEvent* event)
{
    if (!isSliderDown())
        return;
    const auto angle = angleOf(dialRect(), event->position());
    const auto former = std::exchange(m_d->angle, angle);
    if (angle && former)
        dragBy(std::remainder(*former - *angle, 360.0) / sweep,
               event->modifiers().testFlag(Qt::ControlModifier), false);
}
