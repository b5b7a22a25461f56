// SPDX-License-Identifier: MIT
#include "panecolors.h"

#include <guibase/colors/colorset.h>

namespace RadioPanes {

QColor paneColor(IColorBase::ECOLOR slot)
{
    return ColorSet::Instance().GetColor(slot);
}

QColor axisColor(IColorBase::ECOLOR slot, const QPalette& palette)
{
    const ColorSet& colors = ColorSet::Instance();
    const QColor ground = palette.color(QPalette::Window);
    const QColor ink = palette.color(QPalette::WindowText);
    const bool isFactory =
        colors.GetName() == QLatin1String(ColorSet::factoryDefaultName) && !colors.GetDirty();
    if (!isFactory || ground.lightness() >= ink.lightness())
        return paneColor(slot);
    return slot == PaneSlot::FrequencyAxisText || slot == PaneSlot::LevelAxisText ? ink : ground;
}

IColorBase::ECOLOR signalTypeSlot(char letter)
{
    const int slot = IColorBase::SignalTypeA + (letter - 'a');
    return letter >= 'a' && slot <= IColorBase::SignalTypeQ ? static_cast<IColorBase::ECOLOR>(slot)
                                                            : IColorBase::SignalTypeA;
}

} // namespace RadioPanes
