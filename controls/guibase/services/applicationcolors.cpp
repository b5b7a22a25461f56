// SPDX-License-Identifier: MIT
#include "applicationcolors_p.h"

#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/usercolors.h>

#include <QGuiApplication>
#include <QPalette>

namespace {

bool isDesktopDark()
{
    constexpr double darkest = 0.5;
    return QGuiApplication::palette().color(QPalette::Window).lightnessF() < darkest;
}

/// Whether the set is active as it comes with the library.
bool isActive(const char* name)
{
    const ColorSet& colors = ColorSet::Instance();
    return !colors.GetDirty() && colors.GetName() == QLatin1String(name);
}

} // namespace

void ApplicationColors::ensure()
{
    ColorSet::Instance();
}

void ApplicationColors::readSystemColors()
{
    Colors::Instance().RestoreSystemColors();
}

void ApplicationColors::readUserColors()
{
    UserColors::read();
}

void ApplicationColors::chooseByDesktop()
{
    if (isActive(ColorSet::factoryDefaultName) && isDesktopDark())
        ColorSet::Instance().Load(nullptr, QString::fromLatin1(ColorSet::darkDesktopName));
}

void ApplicationColors::followDesktop()
{
    ColorSet::Instance().slotRestoreSystemColors();
    if (isActive(ColorSet::darkDesktopName) && !isDesktopDark())
        restoreFactoryColors();
    else
        chooseByDesktop();
}

void ApplicationColors::restoreFactoryColors()
{
    ColorSet::Instance().slotRestoreFactoryColors();
}

QString ApplicationColors::load(const QString& fileName)
{
    if (!fileName.isEmpty())
        ColorSet::Instance().Load(nullptr, fileName);
    return activeName();
}

QString ApplicationColors::activeName()
{
    return ColorSet::Instance().GetName();
}

int ApplicationColors::signalTypeIndex(char letter)
{
    ensure();
    return ColorSet::Type2Index(letter);
}
