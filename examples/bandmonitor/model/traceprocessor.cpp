// SPDX-License-Identifier: MIT
#include "traceprocessor.h"

#include <algorithm>
#include <cmath>

namespace bandmonitor {

namespace {

double powerOf(float levelDb)
{
    return std::pow(10.0, static_cast<double>(levelDb) / 10);
}

quint64 samplesOf(const Sweep& sweep)
{
    const auto fewest = std::ranges::min_element(sweep.segments, {}, &Segment::samples);
    return fewest == sweep.segments.end() ? 1 : std::max<quint64>(fewest->samples, 1);
}

bool haveSameBins(const Segment& a, const Segment& b)
{
    return a.startHz == b.startHz && a.stepHz == b.stepHz && a.levels.size() == b.levels.size();
}

/// How many bins of the resolution fill the hop.
std::size_t binsOf(const Segment& hop, double resolutionHz)
{
    const auto recorded = static_cast<double>(hop.levels.size());
    if (!(resolutionHz > hop.stepHz))
        return hop.levels.size();
    return static_cast<std::size_t>(
        std::clamp(std::round(recorded * hop.stepHz / resolutionHz), 1.0, recorded));
}

} // namespace

Sweep TraceProcessor::process(const Recording& recording, qsizetype position)
{
    const Sweep recorded = recording.sweep(position);
    if (m_settings.isNeutral() || recorded.isEmpty()) {
        m_powers.clear();
        return recorded;
    }
    const qsizetype first = firstOfAverage(recording, position);
    const auto staysAsRecorded = [this](const Segment& hop) {
        return binsOf(hop, m_settings.resolutionHz) == hop.levels.size();
    };
    if (first == position && m_settings.offsetDb == 0 &&
        std::ranges::all_of(recorded.segments, staysAsRecorded))
        return recorded;
    std::erase_if(m_powers, [first, position](const auto& entry) {
        return entry.first < first || entry.first > position;
    });
    m_segments.clear();
    m_levels.clear();
    m_levels.reserve(recorded.binCount); // the segments refer to it
    for (const Segment& hop : recorded.segments) {
        const std::size_t bins = binsOf(hop, m_settings.resolutionHz);
        const bool asRecorded = first == position && bins == hop.levels.size();
        if (!asRecorded) {
            average(recording, hop, first, position);
            combine(bins);
        }
        appendLevels(hop, asRecorded);
    }
    return makeSweep(recorded.timeUs, m_segments);
}

qsizetype TraceProcessor::firstOfAverage(const Recording& recording, qsizetype position) const
{
    const qsizetype limit = std::max(position - maximumSweeps + 1, recording.first());
    quint64 missing = m_settings.samples;
    for (qsizetype first = position;; --first) {
        const quint64 samples = samplesOf(recording.sweep(first));
        if (samples >= missing || first == limit)
            return first;
        missing -= samples;
    }
}

const TraceProcessor::Powers& TraceProcessor::powersOf(const Recording& recording,
                                                       qsizetype position)
{
    const auto [entry, isNew] = m_powers.try_emplace(position);
    if (isNew) {
        const Sweep sweep = recording.sweep(position);
        entry->second.reserve(sweep.binCount);
        for (const Segment& hop : sweep.segments)
            std::ranges::transform(hop.levels, std::back_inserter(entry->second), powerOf);
    }
    return entry->second;
}

void TraceProcessor::average(const Recording& recording, const Segment& hop, qsizetype first,
                             qsizetype last)
{
    m_row.assign(hop.levels.size(), 0);
    m_counts.assign(hop.levels.size(), 0);
    for (qsizetype position = first; position <= last; ++position)
        addTo(hop, recording.sweep(position), powersOf(recording, position));
    for (std::size_t bin = 0; bin < m_row.size(); ++bin)
        m_row[bin] /= m_counts[bin]; // NaN without any level
}

void TraceProcessor::addTo(const Segment& hop, const Sweep& sweep, const Powers& powers)
{
    std::size_t offset = 0;
    for (const Segment& other : sweep.segments) {
        if (other.startHz > hop.startHz)
            return;
        if (haveSameBins(hop, other))
            break;
        offset += other.levels.size();
    }
    if (offset == powers.size())
        return;
    for (std::size_t bin = 0; bin < m_row.size(); ++bin) {
        const double power = powers[offset + bin];
        const bool hasLevel = power == power;
        m_row[bin] += hasLevel ? power : 0;
        m_counts[bin] += hasLevel ? 1 : 0;
    }
}

void TraceProcessor::combine(std::size_t bins)
{
    if (bins == m_row.size())
        return;
    const double width = static_cast<double>(m_row.size()) / static_cast<double>(bins);
    m_combined.clear();
    for (std::size_t group = 0; group < bins; ++group) {
        const double from = static_cast<double>(group) * width;
        const double to = from + width;
        double power = 0;
        double covered = 0;
        for (auto bin = static_cast<std::size_t>(from); bin < m_row.size(); ++bin) {
            const auto low = static_cast<double>(bin);
            if (low >= to)
                break;
            const double share = std::min(to, low + 1) - std::max(from, low);
            const bool hasLevel = m_row[bin] == m_row[bin];
            power += hasLevel ? share * m_row[bin] : 0;
            covered += hasLevel ? share : 0;
        }
        m_combined.push_back(power * width / covered); // NaN without any level
    }
    m_row.swap(m_combined);
}

void TraceProcessor::appendLevels(const Segment& hop, bool asRecorded)
{
    const std::size_t begin = m_levels.size();
    if (asRecorded) {
        for (const float level : hop.levels)
            m_levels.push_back(
                static_cast<float>(static_cast<double>(level) + m_settings.offsetDb));
    } else {
        for (const double power : m_row)
            m_levels.push_back(static_cast<float>(10 * std::log10(power) + m_settings.offsetDb));
    }
    Segment& shown = m_segments.emplace_back(hop);
    shown.levels = std::span(m_levels).subspan(begin);
    shown.stepHz = hop.stepHz * static_cast<double>(hop.levels.size()) /
                   static_cast<double>(shown.levels.size());
}

} // namespace bandmonitor
