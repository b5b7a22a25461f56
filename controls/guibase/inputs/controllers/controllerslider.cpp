// SPDX-License-Identifier: MIT
#include "controllerslider.h"

#include "controllerscale_p.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>
#include <utility>

namespace {

constexpr int gap = 6;       ///< Between slider and text, in pixels.
constexpr int shortest = 48; ///< Of a groove that can be used, in pixels.
constexpr int usual = 120;

} // namespace

struct ControllerSlider::Private
{
    Qt::Orientation orientation;
    double pointer = 0; ///< Where it was last while dragging, along the groove.
};

/// Where everything is now.
struct ControllerSlider::Parts
{
    QStyleOptionSlider option; ///< Its rectangle holds groove and handle.
    QRect text;
    QRect handle;
    int span; ///< How far the handle can move, in pixels.

    bool isHorizontal() const { return option.orientation == Qt::Horizontal; }
    double along(const QPointF& place) const { return isHorizontal() ? place.x() : place.y(); }
    /// The part of the range that this way along the groove stands for.
    double fractionOf(double way) const
    {
        return (option.upsideDown ? -way : way) / std::max(span, 1);
    }
};

ControllerSlider::ControllerSlider(QWidget* parent)
    : ControllerSlider(Qt::Horizontal, parent)
{}

ControllerSlider::ControllerSlider(Qt::Orientation orientation, QWidget* parent)
    : AbstractController(parent)
    , m_d(new Private{orientation})
{
    setOrientation(orientation);
}

ControllerSlider::~ControllerSlider() = default;

Qt::Orientation ControllerSlider::orientation() const
{
    return m_d->orientation;
}

void ControllerSlider::setOrientation(Qt::Orientation orientation)
{
    m_d->orientation = orientation;
    const bool isHorizontal = orientation == Qt::Horizontal;
    setSizePolicy(isHorizontal ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                  isHorizontal ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    updateGeometry();
    update();
}

ControllerSlider::Parts ControllerSlider::parts() const
{
    Parts parts;
    QStyleOptionSlider& option = parts.option;
    option.initFrom(this);
    option.orientation = orientation();
    option.state.setFlag(QStyle::State_Horizontal, parts.isHorizontal());
    option.maximum = ControllerScale::wholeRange;
    option.sliderPosition = option.sliderValue = scale().wholeOf(value());
    option.upsideDown = parts.isHorizontal() ? isRightToLeft() : true;
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (isSliderDown()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    }
    const QSize room = textSize();
    if (!room.isEmpty() && parts.isHorizontal()) {
        parts.text = QRect(0, 0, room.width(), height());
        parts.text.moveRight(width() - 1);
        option.rect.setRight(parts.text.left() - gap);
        parts.text = QStyle::visualRect(layoutDirection(), rect(), parts.text);
        option.rect = QStyle::visualRect(layoutDirection(), rect(), option.rect);
    } else if (!room.isEmpty()) {
        parts.text = QRect(0, height() - room.height(), width(), room.height());
        option.rect.setBottom(parts.text.top() - gap);
    }
    const auto rectOf = [&](QStyle::SubControl part) {
        return style()->subControlRect(QStyle::CC_Slider, &option, part, this);
    };
    parts.handle = rectOf(QStyle::SC_SliderHandle);
    const QRect groove = rectOf(QStyle::SC_SliderGroove);
    parts.span = parts.isHorizontal() ? groove.width() - parts.handle.width()
                                      : groove.height() - parts.handle.height();
    return parts;
}

QSize ControllerSlider::sizeFor(int length) const
{
    ensurePolished();
    const Parts now = parts();
    const bool isHorizontal = now.isHorizontal();
    const int thickness = style()->pixelMetric(QStyle::PM_SliderThickness, &now.option, this);
    const QSize content = isHorizontal ? QSize(length, thickness) : QSize(thickness, length);
    const QSize slider = style()->sizeFromContents(QStyle::CT_Slider, &now.option, content, this);
    const QSize text = textSize();
    const int between = text.isEmpty() ? 0 : gap;
    if (isHorizontal)
        return {slider.width() + between + text.width(), std::max(slider.height(), text.height())};
    return {std::max(slider.width(), text.width()), slider.height() + between + text.height()};
}

QSize ControllerSlider::sizeHint() const
{
    return sizeFor(usual);
}

QSize ControllerSlider::minimumSizeHint() const
{
    return sizeFor(shortest);
}

void ControllerSlider::paintEvent(QPaintEvent*)
{
    const Parts now = parts();
    QPainter painter(this);
    // The default value, beside the groove.
    const int offset = QStyle::sliderPositionFromValue(
        0, now.option.maximum, scale().wholeOf(defaultValue()), now.span, now.option.upsideDown);
    constexpr int pale = 110; // of 255
    QColor color = palette().color(foregroundRole());
    color.setAlpha(pale);
    painter.setPen(color);
    const QRect& area = now.option.rect;
    if (now.isHorizontal()) {
        const int x = area.left() + offset + now.handle.width() / 2;
        painter.drawLine(x, now.handle.top() - 1, x, now.handle.bottom() + 1);
    } else {
        const int y = area.top() + offset + now.handle.height() / 2;
        painter.drawLine(now.handle.left() - 1, y, now.handle.right() + 1, y);
    }
    style()->drawComplexControl(QStyle::CC_Slider, &now.option, &painter, this);
    if (now.text.isEmpty())
        return;
    const Qt::Alignment alignment =
        Qt::AlignVCenter | (now.isHorizontal() ? Qt::AlignTrailing : Qt::AlignHCenter);
    painter.setLayoutDirection(Qt::LeftToRight); // numbers keep their sign in front
    style()->drawItemText(&painter, now.text,
                          static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment)),
                          palette(), isEnabled(), textValue(), foregroundRole());
}

void ControllerSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const Parts now = parts();
    const QPoint place = event->position().toPoint();
    if (now.handle.contains(place)) {
        m_d->pointer = now.along(event->position());
        beginDrag();
    } else if (now.option.rect.contains(place)) {
        constexpr int page = ControllerScale::pageSteps;
        const double way = now.along(event->position()) - now.along(now.handle.center());
        step(now.fractionOf(way) > 0 ? page : -page,
             event->modifiers().testFlag(Qt::ControlModifier));
    }
}

void ControllerSlider::mouseDoubleClickEvent(QMouseEvent* event)
{
    const Parts now = parts();
    const QPoint place = event->position().toPoint();
    // Two quick clicks beside the handle are two clicks.
    if (event->button() == Qt::LeftButton &&
        (now.handle.contains(place) || now.text.contains(place)))
        reset();
    else
        mousePressEvent(event);
}

void ControllerSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!isSliderDown())
        return;
    const Parts now = parts();
    const double pointer = now.along(event->position());
    const double way = pointer - std::exchange(m_d->pointer, pointer);
    dragBy(now.fractionOf(way), event->modifiers().testFlag(Qt::ControlModifier), true);
}
