// SPDX-License-Identifier: MIT
#include "applicationcolors_p.h"

#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/usercolors.h>

#include <QGuiApplication>
#include <QPalette>

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
    constexpr double darkest = 0.5;
    const ColorSet& colors = ColorSet::Instance();
    const bool isUntouched =
        !colors.GetDirty() && colors.GetName() == QLatin1String(ColorSet::factoryDefaultName);
    if (isUntouched &&
        QGuiApplication::palette().color(QPalette::Window).lightnessF() < darkest)
        ColorSet::Instance().Load(nullptr, QString::fromLatin1(ColorSet::darkDesktopName));
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
