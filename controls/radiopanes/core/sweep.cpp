// SPDX-License-Identifier: MIT
#include "sweep.h"

#include "columnreducer.h"

#include <algorithm>
#include <cmath>

namespace RadioPanes {

std::optional<BinPlace> Sweep::placeOf(double hz) const
{
    if (!(hz >= lowHz && hz < highHz))
        return std::nullopt;
    auto segment =
        std::upper_bound(segments.begin(), segments.end(), hz,
                         [](double value, const Segment& s) { return value < s.startHz; });
    while (segment != segments.begin()) {
        --segment;
        const double bin = std::floor((hz - segment->startHz) / segment->stepHz);
        if (bin < static_cast<double>(segment->levels.size()))
            return BinPlace{&*segment, static_cast<std::size_t>(bin)};
    }
    return std::nullopt;
}

std::optional<float> Sweep::levelAt(double hz) const
{
    const std::optional<BinPlace> place = placeOf(hz);
    const float level = place ? place->segment->levels[place->index] : noLevel;
    return std::isnan(level) ? std::nullopt : std::optional(level);
}

Sweep makeSweep(quint64 timeUs, std::span<const Segment> segments)
{
    Sweep sweep;
    sweep.timeUs = timeUs;
    sweep.segments = segments;
    if (segments.empty())
        return sweep;
    sweep.lowHz = segments.front().startHz;
    sweep.highHz = sweep.lowHz;
    for (const Segment& segment : segments) {
        sweep.highHz = std::max(sweep.highHz, segment.endHz());
        sweep.binCount += segment.levels.size();
    }
    return sweep;
}

SweepHistory::~SweepHistory() = default;

quint64 SweepHistory::timeOf(qsizetype index) const
{
    return sweep(index).timeUs;
}

void SweepHistory::addMaxima(qsizetype begin, qsizetype end, const ColumnView& view,
                             std::span<float> columns) const
{
    end = std::min(end, count());
    for (qsizetype index = std::max(begin, first()); index < end; ++index)
        RadioPanes::addMaxima(sweep(index), view, columns);
}

} // namespace RadioPanes
