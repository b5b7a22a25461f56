// SPDX-License-Identifier: MIT
#include "bearings.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace bandmonitor {

Bearings::Bearings(QObject* parent)
    : QObject(parent)
{}

Bearings::~Bearings() = default;

double Bearings::simulatedDegrees(double hertz)
{
    // Steps of the golden ratio spread the signals of a band evenly over the circle.
    constexpr double hertzPerStep = 1e6;
    constexpr double fullCircle = 360;
    return normalizedDegrees(hertz / hertzPerStep / std::numbers::phi * fullCircle);
}

double Bearings::simulatedSpread(double signalToNoiseDb)
{
    constexpr double atEqualAmplitudes = 30;
    constexpr double smallest = 0.5;
    constexpr double decibelsPerDecade = 20;
    if (!std::isfinite(signalToNoiseDb))
        return atEqualAmplitudes;
    return std::clamp(atEqualAmplitudes * std::pow(10, -signalToNoiseDb / decibelsPerDecade),
                      smallest, atEqualAmplitudes);
}

void Bearings::update(std::span<const SignalTrack> tracks)
{
    std::unordered_map<std::uint32_t, double> degrees;
    m_bearings.clear();
    for (const SignalTrack& track : tracks) {
        const Signal& signal = track.signal;
        const auto known = m_degrees.find(track.id);
        const double direction =
            known != m_degrees.end() ? known->second : simulatedDegrees(signal.centreHz);
        degrees.emplace(track.id, direction);
        m_bearings.push_back({track.id, signal.centreHz, direction,
                              simulatedSpread(signal.peakDb - signal.floorDb), track.type,
                              track.isPresent()});
    }
    m_degrees = std::move(degrees);
    Q_EMIT changed();
}

const Bearing* Bearings::find(std::uint32_t trackId) const
{
    const auto found = std::ranges::find(m_bearings, trackId, &Bearing::id);
    return found == m_bearings.end() ? nullptr : &*found;
}

} // namespace bandmonitor
