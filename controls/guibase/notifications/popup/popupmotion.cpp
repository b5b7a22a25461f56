// SPDX-License-Identifier: MIT
#include "popupmotion_p.h"

#include <QPropertyAnimation>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>
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

/// What the desktop has stored for its user; `fallback` without a file or the key.
QVariant desktopSetting(const char* file, const char* key, const QVariant& fallback)
{
    const QString path =
        QStandardPaths::locate(QStandardPaths::GenericConfigLocation, QLatin1String(file));
    if (path.isEmpty())
        return fallback;
    return QSettings(path, QSettings::IniFormat).value(QLatin1String(key), fallback);
}

/// Only some styles know the setting of the desktop, whose own place differs with the desktop.
bool wantsMotion(const QWidget& popup)
{
    return popup.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &popup) > 0 &&
           desktopSetting("kdeglobals", "KDE/AnimationDurationFactor", 1).toDouble() > 0 &&
           desktopSetting("gtk-4.0/settings.ini", "Settings/gtk-enable-animations", true)
               .toBool() &&
           desktopSetting("gtk-3.0/settings.ini", "Settings/gtk-enable-animations", true).toBool();
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
