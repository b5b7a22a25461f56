// SPDX-License-Identifier: MIT
#include "animationwidget.h"

#include <guibase/services/desktopmotion.h>

#include <QElapsedTimer>
#include <QPainter>
#include <QStyle>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int dots = 12;
constexpr int shortestTurn = 300;  // milliseconds
constexpr int standardTurn = 1200; // milliseconds
constexpr double faintest = 0.15;
constexpr double dotShare = 0.09; // radius of a dot, of the whole side

} // namespace

struct AnimationWidget::Private
{
    bool isRunning = false;
    bool moves = true;
    int turnTime = standardTurn;
    QElapsedTimer clock;
    QTimer nextStep;

    int head() const;
};

int AnimationWidget::Private::head() const
{
    return moves ? static_cast<int>(clock.elapsed() % turnTime * dots / turnTime) : 0;
}

AnimationWidget::AnimationWidget(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->nextStep.setSingleShot(true);
    d->nextStep.callOnTimeout(this, qOverload<>(&QWidget::update));
}

AnimationWidget::~AnimationWidget() = default;

bool AnimationWidget::isRunning() const
{
    return d->isRunning;
}

void AnimationWidget::setTurnTime(int milliseconds)
{
    d->turnTime = std::max(milliseconds, shortestTurn);
    update();
}

int AnimationWidget::turnTime() const
{
    return d->turnTime;
}

QSize AnimationWidget::sizeHint() const
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    return {side, side};
}

QSize AnimationWidget::minimumSizeHint() const
{
    return sizeHint();
}

void AnimationWidget::start()
{
    setRunning(true);
}

void AnimationWidget::stop()
{
    setRunning(false);
}

void AnimationWidget::setRunning(bool running)
{
    if (running == d->isRunning)
        return;
    d->isRunning = running;
    d->moves = DesktopMotion::isWanted(*this);
    d->clock.start();
    d->nextStep.stop();
    setAccessibleDescription(running ? tr("Busy") : QString());
    update();
    Q_EMIT runningChanged(running);
}

void AnimationWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    d->moves = DesktopMotion::isWanted(*this);
}

void AnimationWidget::paintEvent(QPaintEvent*)
{
    if (!d->isRunning)
        return;
    // The next step is due only when this one was painted: nothing wakes up for what is not seen.
    if (d->moves && isVisible() && !d->nextStep.isActive())
        d->nextStep.start(d->turnTime / dots);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.translate(QRectF(rect()).center());
    const double side = std::min(width(), height());
    const double radius = side * dotShare;
    const int head = d->head();
    QColor color = palette().color(foregroundRole());
    for (int dot = 0; dot < dots; ++dot) {
        const int age = (head - dot + dots) % dots;
        color.setAlphaF(static_cast<float>(std::max(faintest, 1.0 - double(age) / (dots - 2))));
        painter.setBrush(color);
        painter.save();
        painter.rotate(360.0 * dot / dots);
        painter.drawEllipse(QPointF(0, radius - side / 2), radius, radius);
        painter.restore();
    }
}
