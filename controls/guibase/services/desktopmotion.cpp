// SPDX-License-Identifier: MIT
#include "desktopmotion.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStyle>
#include <QWidget>

namespace {

/// What the desktop has stored for its user; `fallback` without a file or the key.
QVariant desktopSetting(const char* file, const char* key, const QVariant& fallback)
{
    const QString path =
        QStandardPaths::locate(QStandardPaths::GenericConfigLocation, QLatin1String(file));
    if (path.isEmpty())
        return fallback;
    return QSettings(path, QSettings::IniFormat).value(QLatin1String(key), fallback);
}

} // namespace

/// Only some styles know the setting of the desktop, whose own place differs with the desktop.
bool DesktopMotion::isWanted(const QWidget& widget)
{
    return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0 &&
           desktopSetting("kdeglobals", "KDE/AnimationDurationFactor", 1).toDouble() > 0 &&
           desktopSetting("gtk-4.0/settings.ini", "Settings/gtk-enable-animations", true)
               .toBool() &&
           desktopSetting("gtk-3.0/settings.ini", "Settings/gtk-enable-animations", true).toBool();
}
