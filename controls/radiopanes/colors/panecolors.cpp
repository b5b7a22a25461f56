// SPDX-License-Identifier: MIT
#include "panecolors.h"

#include <guibase/colors/colorset.h>

#include <algorithm>
#include <cmath>

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

ColorRamp waterfallRamp()
{
    const QColor background = paneColor(PaneSlot::BackgroundLow);
    std::array stops{background, paneColor(PaneSlot::Hold), paneColor(PaneSlot::Curve),
                     paneColor(PaneSlot::Peak)};
    // The nearer to the background, the lower the level: also right for a bright background.
    std::stable_sort(stops.begin() + 1, stops.end(), [&](const QColor& left, const QColor& right) {
        const auto distance = [&](const QColor& color) {
            return std::abs(qGray(color.rgb()) - qGray(background.rgb()));
        };
        return distance(left) < distance(right);
    });
    ColorRamp ramp{};
    constexpr int sections = static_cast<int>(stops.size()) - 1;
    for (size_t i = 0; i < ramp.size(); ++i) {
        const float place = static_cast<float>(i) / (ramp.size() - 1) * sections;
        const int section = std::min(static_cast<int>(place), sections - 1);
        const float share = place - static_cast<float>(section);
        const QColor& from = stops[static_cast<size_t>(section)];
        const QColor& to = stops[static_cast<size_t>(section) + 1];
        const auto mix = [share](float a, float b) { return a + share * (b - a); };
        ramp[i] = QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                                   mix(from.blueF(), to.blueF()))
                      .rgb();
    }
    return ramp;
}

} // namespace RadioPanes
