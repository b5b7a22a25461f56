// SPDX-License-Identifier: MIT
#include "levelrange.h"

#include <array>

namespace RadioPanes {

LevelRange rangeOf(std::span<const float> levels)
{
    // Several ranges side by side: comparisons of one do not wait for those of another.
    constexpr std::size_t lanes = 8;
    LevelRange result;
    std::size_t index = 0;
    if (levels.size() >= 2 * lanes) {
        std::array<float, lanes> minimum;
        std::array<float, lanes> maximum;
        minimum.fill(result.minimum);
        maximum.fill(result.maximum);
        for (; index + lanes <= levels.size(); index += lanes) {
            for (std::size_t lane = 0; lane < lanes; ++lane) {
                const float level = levels[index + lane];
                minimum[lane] = level < minimum[lane] ? level : minimum[lane];
                maximum[lane] = level > maximum[lane] ? level : maximum[lane];
            }
        }
        for (std::size_t lane = 0; lane < lanes; ++lane)
            result.add(LevelRange{minimum[lane], maximum[lane]});
    }
    for (; index < levels.size(); ++index)
        result.add(levels[index]);
    return result;
}

} // namespace RadioPanes
