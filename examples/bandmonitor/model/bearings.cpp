// SPDX-License-Identifier: MIT
#include "bearings.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace bandmonitor {

namespace {
constexpr double fullCircle = 360;
constexpr double halfCircle = 180;
} // namespace

double normalizedDegrees(double degrees)
{
    if (!std::isfinite(degrees))
        return 0;
    const double rest = std::fmod(degrees, fullCircle);
    const double positive = rest < 0 ? rest + fullCircle : rest;
    // A tiny negative angle is rounded up to the full circle.
    return positive < fullCircle ? positive : 0;
}

double relativeBearing(double bearing, double heading)
{
    return normalizedDegrees(bearing - heading);
}

double angleBetween(double a, double b)
{
    const double difference = normalizedDegrees(a - b);
    return std::min(difference, fullCircle - difference);
}

BearingSide sideOf(double relative)
{
    const double rounded = normalizedDegrees(std::round(normalizedDegrees(relative)));
    if (rounded == 0)
        return BearingSide::Ahead;
    if (rounded == halfCircle)
        return BearingSide::Astern;
    return rounded < halfCircle ? BearingSide::Starboard : BearingSide::Portside;
}

Bearings::Bearings(QObject* parent)
    : QObject(parent)
{}

Bearings::~Bearings() = default;

double Bearings::simulatedDegrees(double hertz)
{
    // Steps of the golden ratio spread the signals of a band evenly over the circle.
    constexpr double hertzPerStep = 1e6;
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
        m_bearings.push_back({track, direction, simulatedSpread(signal.peakDb - signal.floorDb)});
    }
    m_degrees = std::move(degrees);
    Q_EMIT changed();
}

const Bearing* Bearings::find(std::uint32_t trackId) const
{
    const auto found = std::ranges::find(m_bearings, trackId,
                                         [](const Bearing& bearing) { return bearing.track.id; });
    return found == m_bearings.end() ? nullptr : &*found;
}

} // namespace bandmonitor
