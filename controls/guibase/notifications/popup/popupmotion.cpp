// SPDX-License-Identifier: MIT
#include "popupmotion_p.h"

#include <guibase/services/desktopmotion.h>

#include <QPropertyAnimation>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr int duration = 500; // milliseconds
constexpr const char* animatedProperties[] = {"pos", "windowOpacity"};

QString nameFor(const char* property)
{
    return QStringLiteral("notification ") + QLatin1String(property);
}

QPropertyAnimation* runningAnimation(const QWidget& popup, const char* property)
{
    return popup.findChild<QPropertyAnimation*>(nameFor(property), Qt::FindDirectChildrenOnly);
}

void animate(QWidget& popup, const char* property, const QVariant& end)
{
    QPropertyAnimation* former = runningAnimation(popup, property);
    if (former != nullptr && former->endValue() == end)
        return;
    delete former;
    if (popup.property(property) == end)
        return;
    auto* animation = new QPropertyAnimation(&popup, property, &popup);
    animation->setObjectName(nameFor(property));
    animation->setDuration(duration);
    animation->setEasingCurve(QEasingCurve::OutBounce);
    animation->setStartValue(popup.property(property));
    animation->setEndValue(end);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

bool isAlreadyThere(const QWidget& popup, const QPoint& position, double opacity)
{
    constexpr double opacityStep = 0.01; // A window keeps it in steps about that large.
    const bool isMoving = std::any_of(
        std::begin(animatedProperties), std::end(animatedProperties),
        [&popup](const char* each) { return runningAnimation(popup, each) != nullptr; });
    return popup.isVisible() && !isMoving && popup.pos() == position &&
           (!popup.isWindow() || std::abs(popup.windowOpacity() - opacity) < opacityStep);
}

void stop(QWidget& popup)
{
    for (const char* property : animatedProperties)
        delete runningAnimation(popup, property);
}

} // namespace

void PopupMotion::bring(QWidget& popup, const QPoint& position, double opacity)
{
    const double bounded = std::clamp(opacity, 0.0, 1.0);
    if (isAlreadyThere(popup, position, bounded))
        return;
    if (popup.isVisible() && DesktopMotion::isWanted(popup)) {
        animate(popup, "pos", position);
        if (popup.isWindow())
            animate(popup, "windowOpacity", bounded);
        return;
    }
    stop(popup);
    popup.move(position);
    if (popup.isWindow())
        popup.setWindowOpacity(bounded);
    popup.show();
}

void PopupMotion::hide(QWidget& popup)
{
    stop(popup);
    popup.hide();
}
