// SPDX-License-Identifier: MIT
#include "signaldetector.h"

#include <algorithm>
#include <cmath>

namespace bandmonitor {

namespace {

// Quantiles of the standard normal distribution.
constexpr double tenthQuantile = -1.2816;
constexpr double thirtiethQuantile = -0.5244;

constexpr std::size_t fewestLevelsOfHop = 32;
constexpr double highestHopOffsetDb = 6;

double powerOf(double levelDb)
{
    return std::pow(10.0, levelDb / 10);
}

} // namespace

void SignalDetector::appendLevels(std::span<const float> levels)
{
    std::copy_if(levels.begin(), levels.end(), std::back_inserter(m_scratch),
                 [](float level) { return std::isfinite(level); });
}

SignalDetector::Noise SignalDetector::noiseOfScratch()
{
    const auto begin = m_scratch.begin();
    const auto count = m_scratch.end() - begin;
    if (count == 0)
        return {};
    const auto thirtieth = begin + count * 3 / 10;
    const auto tenth = begin + count / 10;
    std::nth_element(begin, thirtieth, m_scratch.end());
    std::nth_element(begin, tenth, thirtieth);
    const double high = static_cast<double>(*thirtieth);
    const double low = static_cast<double>(*tenth);
    Noise noise;
    noise.deviationDb =
        std::max((high - low) / (thirtiethQuantile - tenthQuantile), smallestDeviationDb);
    noise.floorDb = high - thirtiethQuantile * noise.deviationDb;
    return noise;
}

void SignalDetector::smooth(std::span<const float> levels, const Noise& noise)
{
    m_means.assign(levels.size(), 0);
    constexpr std::size_t reach = smoothedBins / 2;
    // What sticks out alone must not widen itself: a bin counts for no more than the threshold.
    const auto excess = [&](std::size_t bin) {
        const double level = static_cast<double>(levels[bin]);
        return std::isfinite(level)
                   ? std::min((level - noise.floorDb) / noise.deviationDb, openDeviations)
                   : 0.0;
    };
    double sum = 0;
    for (std::size_t bin = 0; bin < std::min(reach, levels.size()); ++bin)
        sum += excess(bin);
    for (std::size_t bin = 0; bin < levels.size(); ++bin) {
        if (bin + reach < levels.size())
            sum += excess(bin + reach);
        // The mean of n bins deviates by a square root of n less than one bin.
        m_means[bin] = static_cast<float>(sum / std::sqrt(static_cast<double>(smoothedBins)));
        if (bin >= reach)
            sum -= excess(bin - reach);
    }
}

void SignalDetector::detectIn(const Segment& segment, const Noise& noise)
{
    if (!m_thresholdDb)
        smooth(segment.levels, noise);
    const auto reaches = [&](std::size_t bin, double deviations) {
        const double level = static_cast<double>(segment.levels[bin]);
        if (m_thresholdDb)
            return level >= *m_thresholdDb;
        return level >= noise.floorDb + deviations * noise.deviationDb ||
               static_cast<double>(m_means[bin]) >= deviations;
    };
    std::size_t first = 0;
    std::size_t last = 0;
    bool inside = false;
    bool open = false;
    for (std::size_t bin = 0; bin < segment.levels.size(); ++bin) {
        if (inside && bin - last > joinBins + 1) {
            if (open)
                addFound(segment, first, last, noise);
            inside = false;
        }
        if (!reaches(bin, closeDeviations))
            continue;
        if (!inside) {
            inside = true;
            open = false;
            first = bin;
        }
        last = bin;
        open = open || reaches(bin, openDeviations);
    }
    if (inside && open)
        addFound(segment, first, last, noise);
}

void SignalDetector::addFound(const Segment& segment, std::size_t first, std::size_t last,
                              const Noise& noise)
{
    const auto levelOf = [&](std::size_t bin) { return static_cast<double>(segment.levels[bin]); };
    LevelRange range;
    for (std::size_t bin = first; bin <= last; ++bin)
        range.add(segment.levels[bin]);
    if (range.isEmpty())
        return;
    Found found;
    Signal& signal = found.signal;
    signal.peakDb = static_cast<double>(range.maximum);
    signal.floorDb = noise.floorDb;
    signal.stepHz = segment.stepHz;
    while (!(levelOf(first) >= signal.peakDb - bandwidthDb)) // also a bin without a level
        ++first;
    while (!(levelOf(last) >= signal.peakDb - bandwidthDb))
        --last;
    const double floorPower = powerOf(noise.floorDb);
    double weighted = 0;
    for (std::size_t bin = first; bin <= last; ++bin) {
        const double level = levelOf(bin);
        if (!(level > noise.floorDb))
            continue;
        const double power = powerOf(level) - floorPower;
        found.power += power;
        weighted += power * (static_cast<double>(bin) + 0.5);
    }
    signal.lowHz = segment.startHz + static_cast<double>(first) * segment.stepHz;
    signal.highHz = segment.startHz + static_cast<double>(last + 1) * segment.stepHz;
    signal.centreHz = found.power > 0 ? segment.startHz + weighted / found.power * segment.stepHz
                                      : (signal.lowHz + signal.highHz) / 2;
    m_found.push_back(found);
}

/// Joins what was found in different hops, but is one signal.
void SignalDetector::joinAll()
{
    std::stable_sort(m_found.begin(), m_found.end(), [](const Found& a, const Found& b) {
        return a.signal.lowHz < b.signal.lowHz;
    });
    std::size_t kept = 0;
    for (const Found& found : m_found) {
        Found* const before = kept > 0 ? &m_found[kept - 1] : nullptr;
        if (before == nullptr ||
            found.signal.lowHz - before->signal.highHz >
                (joinBins + 0.5) * std::min(before->signal.stepHz, found.signal.stepHz)) {
            m_found[kept++] = found;
            continue;
        }
        Signal& signal = before->signal;
        const double power = before->power + found.power;
        if (power > 0)
            signal.centreHz =
                (signal.centreHz * before->power + found.signal.centreHz * found.power) / power;
        before->power = power;
        signal.highHz = std::max(signal.highHz, found.signal.highHz);
        signal.peakDb = std::max(signal.peakDb, found.signal.peakDb);
    }
    m_found.resize(kept);
}

std::span<const Signal> SignalDetector::detect(const Sweep& sweep)
{
    m_found.clear();
    m_scratch.clear();
    for (const Segment& segment : sweep.segments)
        appendLevels(segment.levels);
    const Noise whole = noiseOfScratch();
    for (const Segment& segment : sweep.segments) {
        m_scratch.clear();
        appendLevels(segment.levels);
        Noise noise = whole;
        if (m_scratch.size() >= fewestLevelsOfHop) {
            noise = noiseOfScratch();
            if (noise.floorDb > whole.floorDb + highestHopOffsetDb)
                noise = whole;
        }
        detectIn(segment, noise);
    }
    joinAll();
    if (m_found.size() > maximumSignals) {
        std::nth_element(m_found.begin(), m_found.begin() + maximumSignals, m_found.end(),
                         [](const Found& a, const Found& b) {
                             return a.signal.peakDb > b.signal.peakDb ||
                                    (a.signal.peakDb == b.signal.peakDb &&
                                     a.signal.lowHz < b.signal.lowHz);
                         });
        m_found.resize(maximumSignals);
        std::sort(m_found.begin(), m_found.end(),
                  [](const Found& a, const Found& b) { return a.signal.lowHz < b.signal.lowHz; });
    }
    m_signals.clear();
    for (const Found& found : m_found)
        m_signals.push_back(found.signal);
    return m_signals;
}

} // namespace bandmonitor
