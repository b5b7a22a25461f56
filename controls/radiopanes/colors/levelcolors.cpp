// SPDX-License-Identifier: MIT
#include "levelcolors.h"

#include <algorithm>

namespace RadioPanes {

LevelColors::LevelColors() = default;

LevelColors::LevelColors(const ColorRamp& ramp, double lowDb, double highDb)
    : m_ramp(ramp)
    , m_lowDb(lowDb)
    , m_highDb(highDb)
    , m_low(static_cast<float>(lowDb))
    , m_colorsPerDecibel(
          static_cast<float>(static_cast<double>(ramp.size() - 1) / (highDb - lowDb)))
{}

void LevelColors::apply(std::span<const float> levels, std::span<QRgb> colors) const
{
    std::ranges::transform(levels, colors.begin(), [this](float level) { return of(level); });
}

} // namespace RadioPanes
