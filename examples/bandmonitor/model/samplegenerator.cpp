// SPDX-License-Identifier: MIT
#include "samplegenerator.h"

#include "recordingwriter.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace bandmonitor {

namespace {

constexpr double noiseFloorDb = -72;
constexpr int noiseSpreadTerms = 4;
constexpr double noiseSpreadDb = 1.2;
constexpr int stationCount = 9;
constexpr double hopperLevelDb = -48;
constexpr double drifterLevelDb = -55;
constexpr int hopperChannels = 12;

double powerOf(double levelDb)
{
    return std::pow(10.0, levelDb / 10);
}

/// A line of about `width` around 0: 1 in the middle, falling steeply outside.
double lineShape(double distance, double width)
{
    const double square = distance / width * (distance / width);
    return 1 / (1 + square * square * square);
}

} // namespace

SampleGenerator::SampleGenerator(const SampleSettings& settings)
    : m_settings(settings)
    , m_random(settings.seed)
{
    m_stations.resize(stationCount);
    for (int i = 0; i < stationCount; ++i) {
        Station& station = m_stations[static_cast<std::size_t>(i)];
        station.centre = (i + 0.2 + 0.6 * uniform()) / stationCount;
        station.power = powerOf(-58 + 34 * uniform());
        station.width = 0.002 + 0.002 * uniform();
    }
}

/// Steele, Lea and Flood, "Fast splittable pseudorandom number generators" (2014); 0 to 1.
double SampleGenerator::uniform()
{
    m_random += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = m_random;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    mixed ^= mixed >> 31;
    return static_cast<double>(mixed >> 11) * 0x1p-53;
}

double SampleGenerator::noiseDb()
{
    double sum = 0;
    for (int i = 0; i < noiseSpreadTerms; ++i)
        sum += uniform() - 0.5;
    return noiseFloorDb + noiseSpreadDb * sum * std::sqrt(12.0 / noiseSpreadTerms);
}

double SampleGenerator::stationPower(const Station& station, double place) const
{
    const double distance = std::abs(place - station.centre);
    if (distance > 20 * station.width)
        return 0;
    const double carrier = lineShape(distance, station.width / 8);
    const double sidebandWidth = station.width * (0.2 + 0.8 * station.modulation);
    const double sideband = lineShape(distance - station.width, sidebandWidth);
    return station.power * (carrier + 0.05 * (0.2 + station.modulation) * sideband);
}

double SampleGenerator::level(double place, double hopper, double drifter)
{
    double power = powerOf(noiseDb());
    for (const Station& station : m_stations)
        power += stationPower(station, place);
    power += powerOf(hopperLevelDb) * lineShape(place - hopper, 0.0015);
    power += powerOf(drifterLevelDb) * lineShape(place - drifter, 0.001);
    return 10 * std::log10(power);
}

QByteArray SampleGenerator::nextSweep()
{
    return nextSweep(m_settings.startTimeUs +
                     static_cast<quint64>(m_sweep) * m_settings.sweepIntervalUs);
}

QByteArray SampleGenerator::nextSweep(quint64 timeUs)
{
    if (atEnd())
        return {};
    for (Station& station : m_stations)
        station.modulation = std::clamp(station.modulation + 0.5 * (uniform() - 0.5), 0.0, 1.0);
    const double hopper = (std::floor(hopperChannels * uniform()) + 0.5) / hopperChannels;
    const double drifter = 0.6 + 0.05 * std::sin(m_sweep * 0.04);

    const int hops = std::max(m_settings.hops, 0);
    const auto bins = static_cast<std::size_t>(std::max(m_settings.binsPerHop, 0));
    const double allBins = static_cast<double>(hops) * static_cast<double>(bins);
    std::vector<float> levels(static_cast<std::size_t>(hops) * bins);
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const double place = (static_cast<double>(i) + 0.5) / allBins;
        levels[i] = static_cast<float>(std::round(level(place, hopper, drifter) * 100) / 100);
    }
    std::vector<Segment> segments(bins > 0 ? static_cast<std::size_t>(hops) : 0);
    for (std::size_t hop = 0; hop < segments.size(); ++hop) {
        Segment& segment = segments[hop];
        segment.startHz = m_settings.lowHz + static_cast<double>(hop * bins) * m_settings.stepHz;
        segment.stepHz = m_settings.stepHz;
        segment.samples = 64;
        segment.levels = std::span(levels).subspan(hop * bins, bins);
    }
    ++m_sweep;
    return sweepText(makeSweep(timeUs, segments));
}

QByteArray SampleGenerator::remaining()
{
    QByteArray text;
    while (!atEnd())
        text += nextSweep();
    return text;
}

} // namespace bandmonitor
