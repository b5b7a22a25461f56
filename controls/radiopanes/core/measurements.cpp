// SPDX-License-Identifier: MIT
#include "measurements.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace RadioPanes {

namespace {

BinLevel binOf(const Segment& hop, std::size_t index)
{
    return {hop.startHz + (static_cast<double>(index) + 0.5) * hop.stepHz, hop.stepHz,
            hop.levels[index]};
}

/// The bins of a hop whose centres lie from `lowHz` to `highHz`: first and end.
std::pair<std::size_t, std::size_t> binsBetween(const Segment& hop, double lowHz, double highHz)
{
    const auto count = static_cast<double>(hop.levels.size());
    const double first = std::ceil((lowHz - hop.startHz) / hop.stepHz - 0.5);
    const double end = std::floor((highHz - hop.startHz) / hop.stepHz - 0.5) + 1;
    if (!(end > first))
        return {0, 0};
    return {static_cast<std::size_t>(std::clamp(first, 0.0, count)),
            static_cast<std::size_t>(std::clamp(end, 0.0, count))};
}

/// Finds the peaks of the levels that it is told one after the other.
class PeakFinder
{
public:
    explicit PeakFinder(float excursion)
        : m_excursion(excursion)
    {}

    /// True when the highest level so far, at peak(), turns out to be a peak.
    bool next(std::size_t index, float level)
    {
        if (m_rises && !(level >= m_highest - m_excursion)) { // also without a level
            m_rises = false;
            m_lowest = level != level ? nothing : level;
            return true;
        }
        if (m_rises ? level > m_highest : level >= m_lowest + m_excursion) {
            m_rises = true;
            m_highest = level;
            m_peak = index;
        } else if (!m_rises)
            m_lowest = level != level ? nothing : std::min(m_lowest, level);
        return false;
    }
    std::size_t peak() const { return m_peak; }
    /// Behind the last level it falls: whether that made a peak.
    bool end() const { return m_rises; }

private:
    static constexpr float nothing = -std::numeric_limits<float>::infinity();

    float m_excursion;
    bool m_rises = false;
    float m_highest = 0;
    float m_lowest = nothing;
    std::size_t m_peak = 0;
};

/// Calls `found(index)` for each peak of the hop, from its one end to the other, until it says
/// true.
template <typename Found>
void forEachPeak(const Segment& hop, Direction direction, float excursion, Found found)
{
    PeakFinder finder(excursion);
    const std::size_t count = hop.levels.size();
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t index = direction == Direction::Up ? i : count - 1 - i;
        if (finder.next(index, hop.levels[index]) && found(finder.peak()))
            return;
    }
    if (finder.end())
        found(finder.peak());
}

double powerOf(float level)
{
    return level != level ? 0 : std::pow(10, static_cast<double>(level) / 10);
}

constexpr int stepsPerDecibel = 10;
constexpr int levelLimit = 500 * stepsPerDecibel;

/// How many bins have each level from -levelLimit to levelLimit, in steps; those beyond count
/// there.
std::vector<std::size_t> countLevels(std::span<const Sweep> sweeps)
{
    constexpr float limit = levelLimit;
    std::vector<std::size_t> counts(2 * levelLimit + 1);
    for (const Sweep& sweep : sweeps) {
        for (const Segment& hop : sweep.segments) {
            for (const float level : hop.levels) {
                if (level != level)
                    continue;
                const float step = std::clamp(level * stepsPerDecibel, -limit, limit);
                ++counts[static_cast<std::size_t>(std::lround(step) + levelLimit)];
            }
        }
    }
    return counts;
}

} // namespace

std::optional<BinLevel> binAt(const Sweep& sweep, double hertz)
{
    const std::optional<BinPlace> place = sweep.placeOf(hertz);
    if (!place || std::isnan(place->segment->levels[place->index]))
        return std::nullopt;
    return binOf(*place->segment, place->index);
}

std::optional<BinLevel> highestNear(const Sweep& sweep, double hertz, double reachHz)
{
    std::optional<BinLevel> highest;
    for (const Segment& hop : sweep.segments) {
        const auto [first, end] = binsBetween(hop, hertz - reachHz, hertz + reachHz);
        for (std::size_t i = first; i < end; ++i) {
            const BinLevel bin = binOf(hop, i);
            const auto isNearer = [&] {
                return std::abs(bin.hertz - hertz) < std::abs(highest->hertz - hertz);
            };
            if (std::isnan(bin.levelDb))
                continue;
            if (!highest || bin.levelDb > highest->levelDb ||
                (bin.levelDb == highest->levelDb && isNearer()))
                highest = bin;
        }
    }
    return highest;
}

std::optional<BinLevel> nextPeak(const Sweep& sweep, double hertz, Direction direction,
                                 const PeakLimits& limits)
{
    std::optional<BinLevel> nearest;
    const bool up = direction == Direction::Up;
    for (const Segment& hop : sweep.segments) {
        if (up ? hop.endHz() <= hertz : hop.startHz >= hertz)
            continue;
        forEachPeak(hop, direction, limits.excursionDb, [&](std::size_t index) {
            const BinLevel bin = binOf(hop, index);
            // The bin that covers the frequency is no next one.
            if (bin.levelDb < limits.levelDb ||
                (up ? bin.hertz - hertz : hertz - bin.hertz) <= bin.stepHz / 2)
                return false;
            if (!nearest || (up ? bin.hertz < nearest->hertz : bin.hertz > nearest->hertz))
                nearest = bin;
            return true;
        });
    }
    return nearest;
}

float noiseCeiling(const Sweep& sweep)
{
    const std::vector<std::size_t> counts = countLevels({&sweep, 1});
    const std::size_t total = std::reduce(counts.begin(), counts.end());
    if (total == 0)
        return -std::numeric_limits<float>::infinity();
    const auto percentile = [&](std::size_t percent) {
        std::size_t sum = 0;
        const auto level = std::ranges::find_if(
            counts, [&](std::size_t count) { return (sum += count) * 100 > total * percent; });
        return static_cast<double>(level - counts.begin() - levelLimit) / stepsPerDecibel;
    };
    // As if it were normally distributed in dB. Noise of a single look is skewed: its few highest
    // bins are not as far above its mean as its lower half is wide.
    constexpr double deviation10 = 1.2816;
    constexpr double deviation30 = 0.5244;
    constexpr double deviations = 4;
    constexpr double highest = 12;
    const double p30 = percentile(30);
    const double deviation = (p30 - percentile(10)) / (deviation10 - deviation30);
    return static_cast<float>(p30 + deviation30 * deviation +
                              std::min(deviations * deviation, highest));
}

std::optional<Extent> widthBelow(const Sweep& sweep, double hertz, float dropDb)
{
    const std::optional<BinPlace> place = sweep.placeOf(hertz);
    if (!place || std::isnan(place->segment->levels[place->index]))
        return std::nullopt;
    const Segment& hop = *place->segment;
    const std::span<const float> levels = hop.levels;
    const float edge = levels[place->index] - dropDb;
    std::size_t first = place->index;
    std::size_t last = place->index;
    while (first > 0 && levels[first - 1] >= edge)
        --first;
    while (last + 1 < levels.size() && levels[last + 1] >= edge)
        ++last;
    if (first == 0 || last + 1 == levels.size())
        return std::nullopt;
    const auto edgeHz = [&](std::size_t index) {
        return hop.startHz + static_cast<double>(index) * hop.stepHz;
    };
    return Extent{edgeHz(first), edgeHz(last + 1)};
}

std::optional<Extent> occupiedWidth(const Sweep& sweep, const Extent& range, double share)
{
    struct Bin
    {
        Extent extent;
        double power;
    };
    std::vector<Bin> bins;
    double total = 0;
    for (const Segment& hop : sweep.segments) {
        const auto [first, end] = binsBetween(hop, range.lowHz, range.highHz);
        for (std::size_t i = first; i < end; ++i) {
            const double low = hop.startHz + static_cast<double>(i) * hop.stepHz;
            bins.push_back({{low, low + hop.stepHz}, powerOf(hop.levels[i])});
            total += bins.back().power;
        }
    }
    if (!(total > 0) || !std::isfinite(total))
        return std::nullopt;
    const double outside = total * (1 - std::clamp(share, 0.0, 1.0)) / 2;
    std::size_t first = 0;
    for (double sum = 0; first + 1 < bins.size(); ++first) {
        sum += bins[first].power;
        if (sum > outside)
            break;
    }
    std::size_t last = bins.size() - 1;
    for (double sum = 0; last > first; --last) {
        sum += bins[last].power;
        if (sum > outside)
            break;
    }
    return Extent{bins[first].extent.lowHz, bins[last].extent.highHz};
}

LevelRange usualLevels(std::span<const Sweep> sweeps, double outside)
{
    constexpr std::size_t leastIgnored = 2;
    constexpr std::ptrdiff_t widest = std::ptrdiff_t{100} * stepsPerDecibel;
    const std::vector<std::size_t> counts = countLevels(sweeps);
    const std::size_t total = std::reduce(counts.begin(), counts.end());
    if (total == 0)
        return {};
    const auto share = static_cast<std::size_t>(static_cast<double>(total) * outside);
    const std::size_t ignored = std::min(std::max(share, leastIgnored), (total - 1) / 2);
    const auto levelBehind = [ignored](auto first, auto end) {
        std::size_t sum = 0;
        return std::find_if(first, end,
                            [&](std::size_t count) { return (sum += count) > ignored; });
    };
    const auto levelOf = [](std::ptrdiff_t index) {
        return static_cast<float>(index - levelLimit) / stepsPerDecibel;
    };
    const auto lowest = levelBehind(counts.begin(), counts.end()) - counts.begin();
    auto highest = counts.rend() - levelBehind(counts.rbegin(), counts.rend()) - 1;
    const auto end = std::min(lowest + widest + 1, std::ssize(counts));
    for (auto index = highest + 1; index < end; ++index) {
        if (counts[static_cast<std::size_t>(index)] > 0)
            highest = index;
    }
    return {levelOf(lowest), levelOf(highest)};
}

} // namespace RadioPanes
