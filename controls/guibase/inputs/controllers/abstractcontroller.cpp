// SPDX-License-Identifier: MIT
#include "abstractcontroller.h"

#include "accessiblecontroller_p.h"
#include "controllerscale_p.h"

#include <guibase/formats/realnumberdisplayformat.h>

#include <jtbase/wheelnotches.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace {

constexpr int automaticDecimals = -1;

std::unique_ptr<ValueDisplayFormatBase<double>> numberFormat()
{
    return std::make_unique<RealNumberDisplayFormat<double>>();
}

bool isFine(const QInputEvent& event)
{
    return event.modifiers().testFlag(Qt::ControlModifier);
}

} // namespace

struct AbstractController::Private
{
    struct Drag
    {
        double from;  ///< The value before it.
        double exact; ///< Where it has led, not rounded.
    };

    ControllerScale scale;
    double value = 0;
    double defaultValue = 0;
    std::unique_ptr<ValueDisplayFormatBase<double>> format = numberFormat();
    int decimals = automaticDecimals;
    bool isTextVisible = true;
    std::optional<Drag> drag;
    WheelNotches wheel;
};

AbstractController::AbstractController(QWidget* parent)
    : QWidget(parent)
    , m_d(std::make_unique<Private>())
{
    AccessibleController::install();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    adoptText();
}

AbstractController::~AbstractController() = default;

const ControllerScale& AbstractController::scale() const
{
    return m_d->scale;
}

double AbstractController::value() const
{
    return m_d->value;
}

double AbstractController::minimum() const
{
    return m_d->scale.minimum;
}

double AbstractController::maximum() const
{
    return m_d->scale.maximum;
}

void AbstractController::setValue(double value)
{
    if (std::isnan(value))
        return;
    const double taken = m_d->scale.clamped(value);
    if (taken == m_d->value)
        return;
    m_d->value = taken;
    update();
    AccessibleController::tellValue(*this);
    Q_EMIT valueChanged(taken);
}

void AbstractController::setRange(double first, double second)
{
    if (!m_d->scale.setRange(first, second))
        return;
    const QPointer<QObject> survivor(this);
    adoptText();
    setValue(m_d->value);
    if (survivor)
        Q_EMIT rangeChanged(minimum(), maximum());
}

double AbstractController::singleStep() const
{
    return m_d->scale.step;
}

void AbstractController::setSingleStep(double step)
{
    if (!std::isfinite(step) || step <= 0)
        return;
    m_d->scale.step = step;
    adoptText();
}

double AbstractController::fineStep() const
{
    return m_d->scale.stepSize(true);
}

void AbstractController::setFineStep(double step)
{
    if (!std::isfinite(step) || step < 0)
        return;
    m_d->scale.fineStep = step;
    adoptText();
}

double AbstractController::defaultValue() const
{
    return m_d->defaultValue;
}

void AbstractController::setDefaultValue(double value)
{
    if (std::isnan(value))
        return;
    m_d->defaultValue = value;
    update();
}

void AbstractController::reset()
{
    setValue(m_d->defaultValue);
}

QString AbstractController::unit() const
{
    return m_d->format->suffix();
}

void AbstractController::setUnit(const QString& unit)
{
    m_d->format->setSuffix(unit);
    adoptText();
}

int AbstractController::decimals() const
{
    return m_d->decimals;
}

void AbstractController::setDecimals(int decimals)
{
    m_d->decimals = std::max(decimals, automaticDecimals);
    adoptText();
}

void AbstractController::setDisplayFormat(std::unique_ptr<ValueDisplayFormatBase<double>> format)
{
    const bool isOwn = format == nullptr;
    m_d->format = isOwn ? numberFormat() : std::move(format);
    const auto* number = dynamic_cast<NumberDisplayFormatBase<double>*>(m_d->format.get());
    m_d->decimals = isOwn || number == nullptr ? automaticDecimals : number->precision();
    adoptText();
}

QString AbstractController::textValue() const
{
    return m_d->format->fullTextFromValue(m_d->value);
}

bool AbstractController::isTextVisible() const
{
    return m_d->isTextVisible;
}

void AbstractController::setTextVisible(bool visible)
{
    m_d->isTextVisible = visible;
    adoptText();
}

QSize AbstractController::textSize() const
{
    if (!m_d->isTextVisible)
        return {0, 0};
    int width = 0;
    for (const double value : m_d->format->widestValues(minimum(), maximum()))
        width =
            std::max(width, fontMetrics().horizontalAdvance(m_d->format->fullTextFromValue(value)));
    return {width, fontMetrics().height()};
}

void AbstractController::adoptText()
{
    if (auto* number = dynamic_cast<NumberDisplayFormatBase<double>*>(m_d->format.get()))
        number->setPrecision(m_d->decimals == automaticDecimals ? m_d->scale.decimals()
                                                                : m_d->decimals);
    updateGeometry();
    update();
}

bool AbstractController::isSliderDown() const
{
    return m_d->drag.has_value();
}

void AbstractController::step(int steps, bool isFineStep)
{
    setValue(m_d->scale.stepped(m_d->value, steps, isFineStep));
}

void AbstractController::beginDrag()
{
    m_d->drag = Private::Drag{m_d->value, m_d->value};
    update();
    Q_EMIT sliderPressed();
}

void AbstractController::dragBy(double fraction, bool isFineDrag, bool mayOvershoot)
{
    constexpr double fineSpeed = 0.1;
    if (!m_d->drag)
        return;
    double& exact = m_d->drag->exact;
    exact += m_d->scale.widthOf(fraction) * (isFineDrag ? fineSpeed : 1);
    if (!mayOvershoot)
        exact = m_d->scale.clamped(exact);
    // A pointer that has not moved changes nothing, not even by rounding.
    if (fraction != 0)
        setValue(m_d->scale.rounded(exact, isFineDrag));
}

void AbstractController::endDrag()
{
    if (!std::exchange(m_d->drag, std::nullopt))
        return;
    update();
    Q_EMIT sliderReleased();
}

int AbstractController::stepsOf(const QKeyEvent& event) const
{
    switch (event.key()) {
    case Qt::Key_Up:
        return 1;
    case Qt::Key_Down:
        return -1;
    case Qt::Key_Right:
        return isRightToLeft() ? -1 : 1;
    case Qt::Key_Left:
        return isRightToLeft() ? 1 : -1;
    case Qt::Key_PageUp:
        return ControllerScale::pageSteps;
    case Qt::Key_PageDown:
        return -ControllerScale::pageSteps;
    default:
        return 0;
    }
}

void AbstractController::keyPressEvent(QKeyEvent* event)
{
    const auto others = event->modifiers() & ~(Qt::ControlModifier | Qt::KeypadModifier);
    const int steps = others == Qt::NoModifier ? stepsOf(*event) : 0;
    if (steps != 0) {
        step(steps, isFine(*event));
    } else if (event->key() == Qt::Key_Escape && m_d->drag) {
        const double former = m_d->drag->from;
        const QPointer<QObject> survivor(this);
        setValue(former);
        if (survivor)
            endDrag();
    } else if (const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
               isPlain && (event->key() == Qt::Key_Home || event->key() == Qt::Key_End)) {
        setValue(event->key() == Qt::Key_Home ? minimum() : maximum());
    } else if (isPlain && event->key() == Qt::Key_Delete) {
        reset();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void AbstractController::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    event->accept();
    if (const int notches = m_d->wheel.add(wheelAngle(*event)); notches != 0)
        step(notches, isFine(*event));
}

void AbstractController::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        endDrag();
}

bool AbstractController::event(QEvent* event)
{
    // Escape ends a drag here, whatever else the window does with it.
    if (event->type() == QEvent::ShortcutOverride && m_d->drag &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void AbstractController::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        endDrag();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        adoptText();
}

void AbstractController::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    endDrag();
}
