// SPDX-License-Identifier: MIT
#include "colorcircle.h"

#include "colorcirclegeometry_p.h"

#include <jtbase/wheelnotches.h>

#include <QConicalGradient>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr int usual = 180; ///< Diameter, in pixels.
constexpr int smallest = 80;
constexpr double shadeStep = 0.05;
constexpr double fineShadeStep = 0.01;
constexpr double hueStep = 10.0 / 360;
constexpr double fineHueStep = 1.0 / 360;

/// Kept apart from the colour: black has no hue of its own.
struct Hsv
{
    double hue = 0; ///< From 0 to, but without, 1.
    double saturation = 1;
    double value = 1;

    friend bool operator==(const Hsv&, const Hsv&) = default;
};

QColor pureColor(double hue)
{
    return QColor::fromHsvF(static_cast<float>(hue), 1, 1);
}

/// Black and white around it, to be seen on any colour.
void paintMark(QPainter& painter, const QPointF& place, double radius)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 3));
    painter.drawEllipse(place, radius, radius);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.drawEllipse(place, radius, radius);
}

} // namespace

struct ColorCircle::Private
{
    struct Drag
    {
        ColorCircleGeometry::Part part;
        Hsv from;
    };

    explicit Private(ColorCircle& circle)
        : q(circle)
    {}

    ColorCircleGeometry geometry() const { return ColorCircleGeometry(q.size()); }
    QColor colorOf(const Hsv& hsv) const;
    void choose(const Hsv& other);
    void turn(double hue);
    void shade(double saturation, double value);
    void dragTo(const QPointF& place);
    void paintRing(QPainter& painter) const;
    void paintSquare(QPainter& painter) const;
    void describe();

    ColorCircle& q;
    Hsv hsv;
    float alpha = 1;
    std::optional<Drag> drag;
    WheelNotches wheel;
};

QColor ColorCircle::Private::colorOf(const Hsv& of) const
{
    const QColor exact =
        QColor::fromHsvF(static_cast<float>(of.hue), static_cast<float>(of.saturation),
                         static_cast<float>(of.value), alpha);
    return QColor::fromRgba(exact.rgba()); // as colours are entered
}

void ColorCircle::Private::choose(const Hsv& other)
{
    if (other == hsv)
        return;
    const bool isOtherColor = colorOf(other).rgba() != colorOf(hsv).rgba();
    hsv = other;
    q.update();
    if (!isOtherColor)
        return;
    describe();
    Q_EMIT q.colorChanged(q.color());
}

void ColorCircle::Private::turn(double hue)
{
    choose({hue - std::floor(hue), hsv.saturation, hsv.value});
}

void ColorCircle::Private::shade(double saturation, double value)
{
    choose({hsv.hue, std::clamp(saturation, 0.0, 1.0), std::clamp(value, 0.0, 1.0)});
}

void ColorCircle::Private::dragTo(const QPointF& place)
{
    if (drag->part == ColorCircleGeometry::Ring) {
        turn(geometry().hueAt(place));
    } else {
        const auto [saturation, value] = geometry().shadeAt(place);
        shade(saturation, value);
    }
}

void ColorCircle::Private::describe()
{
    const auto percent = [](double part) { return qRound(part * 100); };
    q.setAccessibleDescription(tr("Hue %1°, saturation %2 %, brightness %3 %")
                                   .arg(qRound(hsv.hue * 360))
                                   .arg(percent(hsv.saturation))
                                   .arg(percent(hsv.value)));
}

void ColorCircle::Private::paintRing(QPainter& painter) const
{
    constexpr int stops = 12;
    const ColorCircleGeometry now = geometry();
    QConicalGradient hues(now.ring().center(), 0);
    for (int i = 0; i <= stops; ++i)
        hues.setColorAt(double(i) / stops, pureColor(double(i % stops) / stops));
    QPainterPath ring;
    ring.addEllipse(now.ring());
    ring.addEllipse(now.hole());
    painter.fillPath(ring, hues);
    paintMark(painter, now.placeOf(hsv.hue), now.ringWidth() / 2 - 1);
    if (!q.hasFocus())
        return;
    painter.setPen(QPen(q.palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(now.ring().adjusted(-1.5, -1.5, 1.5, 1.5));
}

void ColorCircle::Private::paintSquare(QPainter& painter) const
{
    const ColorCircleGeometry now = geometry();
    const QRectF& square = now.square();
    QLinearGradient saturations(square.topLeft(), square.topRight());
    saturations.setColorAt(0, Qt::white);
    saturations.setColorAt(1, pureColor(hsv.hue));
    QLinearGradient values(square.topLeft(), square.bottomLeft());
    values.setColorAt(0, Qt::transparent);
    values.setColorAt(1, Qt::black);
    painter.fillRect(square, saturations);
    painter.fillRect(square, values);
    constexpr double markRadius = 5;
    paintMark(painter, now.placeOf({hsv.saturation, hsv.value}), markRadius);
}

ColorCircle::ColorCircle(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(*this))
{
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    d->describe();
}

ColorCircle::~ColorCircle() = default;

QColor ColorCircle::color() const
{
    return d->colorOf(d->hsv);
}

void ColorCircle::setColor(const QColor& color)
{
    if (!color.isValid() || color.rgba() == this->color().rgba())
        return;
    const QColor other = color.toHsv();
    Hsv hsv{other.hueF(), other.hsvSaturationF(), other.valueF()};
    if (hsv.value == 0)
        hsv.saturation = d->hsv.saturation;
    if (other.hueF() < 0)
        hsv.hue = d->hsv.hue;
    d->hsv = hsv;
    d->alpha = color.alphaF();
    update();
    d->describe();
    Q_EMIT colorChanged(this->color());
}

QSize ColorCircle::sizeHint() const
{
    return {usual, usual};
}

QSize ColorCircle::minimumSizeHint() const
{
    return {smallest, smallest};
}

bool ColorCircle::hasHeightForWidth() const
{
    return true;
}

int ColorCircle::heightForWidth(int width) const
{
    return width;
}

void ColorCircle::paintEvent(QPaintEvent*)
{
    constexpr double pale = 0.35;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : pale);
    d->paintRing(painter);
    d->paintSquare(painter);
}

void ColorCircle::mousePressEvent(QMouseEvent* event)
{
    const auto part = d->geometry().partAt(event->position());
    if (event->button() != Qt::LeftButton || part == ColorCircleGeometry::Nowhere) {
        event->ignore();
        return;
    }
    d->drag = Private::Drag{part, d->hsv};
    d->dragTo(event->position());
}

void ColorCircle::mouseMoveEvent(QMouseEvent* event)
{
    if (d->drag)
        d->dragTo(event->position());
}

void ColorCircle::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        d->drag.reset();
}

void ColorCircle::keyPressEvent(QKeyEvent* event)
{
    const bool isFine = event->modifiers().testFlag(Qt::ControlModifier);
    const double step = isFine ? fineShadeStep : shadeStep;
    const Hsv& now = d->hsv;
    switch (event->key()) {
    case Qt::Key_Left:
        return d->shade(now.saturation - step, now.value);
    case Qt::Key_Right:
        return d->shade(now.saturation + step, now.value);
    case Qt::Key_Up:
        return d->shade(now.saturation, now.value + step);
    case Qt::Key_Down:
        return d->shade(now.saturation, now.value - step);
    case Qt::Key_PageUp:
        return d->turn(now.hue + (isFine ? fineHueStep : hueStep));
    case Qt::Key_PageDown:
        return d->turn(now.hue - (isFine ? fineHueStep : hueStep));
    default:
        break;
    }
    if (event->key() == Qt::Key_Escape && d->drag) {
        const Hsv former = d->drag->from;
        d->drag.reset();
        d->choose(former);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ColorCircle::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    const int notches = d->wheel.add(wheelAngle(*event));
    const bool isFine = event->modifiers().testFlag(Qt::ControlModifier);
    event->accept();
    d->turn(d->hsv.hue + notches * (isFine ? fineHueStep : hueStep));
}

bool ColorCircle::event(QEvent* event)
{
    if (event->type() == QEvent::Hide || event->type() == QEvent::EnabledChange)
        d->drag.reset();
    // Escape ends a drag here, whatever else the window does with it.
    if (event->type() == QEvent::ShortcutOverride && d->drag &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}
