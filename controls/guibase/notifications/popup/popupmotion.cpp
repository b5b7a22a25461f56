// SPDX-License-Identifier: MIT
#include "popupmotion_p.h"

#include <QPropertyAnimation>
#include <QStyle>
#include <QWidget>

#include <algorithm>

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

bool wantsMotion(const QWidget& popup)
{
    return popup.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &popup) > 0;
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
    if (popup.isVisible() && wantsMotion(popup)) {
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
