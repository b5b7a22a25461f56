// SPDX-License-Identifier: MIT
#include "applicationcolors_p.h"

#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>

void ApplicationColors::ensure()
{
    ColorSet::Instance();
}

void ApplicationColors::readSystemColors()
{
    Colors::Instance().RestoreSystemColors();
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
