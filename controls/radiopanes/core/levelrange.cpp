// SPDX-License-Identifier: MIT
#include "levelrange.h"

#include <cstring>

namespace RadioPanes {

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

#ifdef __GNUC__

/// Several levels at a time: the compiler does not make such steps of loops with comparisons. What
/// compares false, as noLevel does, changes nothing.
using Lanes = float __attribute__((vector_size(16)));
constexpr std::size_t laneCount = sizeof(Lanes) / sizeof(float);
constexpr std::size_t stepSize = 2 * laneCount; // two that do not wait for each other

Lanes load(const float* levels)
{
    Lanes result;
    std::memcpy(&result, levels, sizeof(result));
    return result;
}

struct Lower
{
    static constexpr float nothing = infinity;
    template <typename Value>
    static Value of(Value level, Value held)
    {
        return level < held ? level : held;
    }
};

struct Higher
{
    static constexpr float nothing = -infinity;
    template <typename Value>
    static Value of(Value level, Value held)
    {
        return level > held ? level : held;
    }
};

template <typename Extreme>
class ExtremeLanes
{
public:
    void add(Lanes first, Lanes second)
    {
        m_first = Extreme::of(first, m_first);
        m_second = Extreme::of(second, m_second);
    }
    float result() const
    {
        const Lanes lanes = Extreme::of(m_first, m_second);
        float extreme = lanes[0];
        for (std::size_t lane = 1; lane < laneCount; ++lane)
            extreme = Extreme::of(lanes[lane], extreme);
        return extreme;
    }

private:
    Lanes m_first = Lanes{} + Extreme::nothing;
    Lanes m_second = m_first;
};

/// Calls `add` with all levels, the last ones perhaps twice; there must be enough for one step.
template <typename Add>
void forSteps(std::span<const float> levels, Add add)
{
    const float* level = levels.data();
    const float* last = level + (levels.size() - stepSize);
    for (; level < last; level += stepSize)
        add(load(level), load(level + laneCount));
    add(load(last), load(last + laneCount));
}

#endif

} // namespace

LevelRange rangeOf(std::span<const float> levels)
{
#ifdef __GNUC__
    if (levels.size() >= stepSize) {
        ExtremeLanes<Lower> lowest;
        ExtremeLanes<Higher> highest;
        forSteps(levels, [&](Lanes first, Lanes second) {
            lowest.add(first, second);
            highest.add(first, second);
        });
        return {lowest.result(), highest.result()};
    }
#endif
    LevelRange result;
    for (const float level : levels)
        result.add(level);
    return result;
}

float highestOf(std::span<const float> levels)
{
#ifdef __GNUC__
    if (levels.size() >= stepSize) {
        ExtremeLanes<Higher> highest;
        forSteps(levels, [&](Lanes first, Lanes second) { highest.add(first, second); });
        return highest.result();
    }
#endif
    float highest = -infinity;
    for (const float level : levels)
        highest = level > highest ? level : highest;
    return highest;
}

} // namespace RadioPanes
