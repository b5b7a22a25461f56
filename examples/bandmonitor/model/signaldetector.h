// SPDX-License-Identifier: MIT
#pragma once

#include "recording.h"

#include <optional>
#include <span>
#include <vector>

namespace bandmonitor {

/// A signal that stands out of the noise of one sweep. Frequencies in hertz, levels in dB.
struct Signal
{
    double centreHz = 0; ///< Where its power has its centre of gravity.
    double lowHz = 0;    ///< The occupied band: from the start of its first bin
    double highHz = 0;   ///< to the end of its last one.
    double peakDb = 0;   ///< The highest level of its bins.
    double floorDb = 0;  ///< The noise that it was found in.
    double stepHz = 1;   ///< Width of a bin.

    double bandwidthHz() const { return highHz - lowHz; }
    bool operator==(const Signal&) const = default;
};

/// Finds the signals of a sweep, in a time that follows its bins: what stands out of the noise or,
/// with a threshold, what reaches that level. docs/decisions/0061-signals-and-their-types.md tells
/// how, and what the numbers below are for.
class SignalDetector
{
public:
    static constexpr double openDeviations = 5;
    static constexpr double closeDeviations = 2.5;
    static constexpr int smoothedBins = 9;
    static constexpr int joinBins = 3;
    static constexpr double bandwidthDb = 26;
    /// Recordings without noise get this deviation.
    static constexpr double smallestDeviationDb = 0.2;
    /// A sweep with more signals keeps the strongest ones.
    static constexpr std::size_t maximumSignals = 500;

    /// In dB, of the recorded levels; nothing at first: what stands out of the noise counts.
    void setThreshold(std::optional<double> levelDb) { m_thresholdDb = levelDb; }
    std::optional<double> threshold() const { return m_thresholdDb; }

    /// In order of the lower ends. Valid until the next call.
    std::span<const Signal> detect(const Sweep& sweep);

private:
    struct Noise
    {
        double floorDb = 0;
        double deviationDb = smallestDeviationDb;
    };
    struct Found
    {
        Signal signal;
        double power = 0;
    };

    Noise noiseOfScratch();
    void appendLevels(std::span<const float> levels);
    void smooth(std::span<const float> levels, const Noise& noise);
    void detectIn(const Segment& segment, const Noise& noise);
    void addFound(const Segment& segment, std::size_t first, std::size_t last, const Noise& noise);
    void joinAll();

    std::optional<double> m_thresholdDb;
    std::vector<float> m_scratch;
    std::vector<float> m_means; ///< In deviations above the floor.
    std::vector<Found> m_found;
    std::vector<Signal> m_signals;
};

} // namespace bandmonitor
