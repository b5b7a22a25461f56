// SPDX-License-Identifier: MIT
#pragma once

#include "colormap.h"

#include <cstddef>
#include <span>

namespace RadioPanes {

/// The colours of levels between two ends; those beyond have the colour of the end.
class RADIOPANES_EXPORT LevelColors
{
public:
    /// Black for all levels.
    LevelColors();
    /// The levels of the first and the last colour, in dB.
    LevelColors(const ColorRamp& ramp, double lowDb, double highDb);

    /// The levels of the ends.
    double lowDb() const { return m_lowDb; }
    double highDb() const { return m_highDb; }
    /// All colours, from the lowest level to the highest one.
    const ColorRamp& ramp() const { return m_ramp; }
    /// The first colour also where there is no level.
    QRgb of(float level) const
    {
        const float index = (level - m_low) * m_colorsPerDecibel;
        constexpr auto last = static_cast<float>(std::tuple_size_v<ColorRamp> - 1);
        return m_ramp[index > 0 ? static_cast<std::size_t>(index < last ? index : last) : 0];
    }
    /// The same for many levels. Both spans are of one size.
    void apply(std::span<const float> levels, std::span<QRgb> colors) const;

private:
    ColorRamp m_ramp{};
    double m_lowDb = 0;
    double m_highDb = 1;
    float m_low = 0;
    float m_colorsPerDecibel = 1;
};

} // namespace RadioPanes
