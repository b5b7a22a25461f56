// SPDX-License-Identifier: MIT
#include "signaltracker.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace bandmonitor {

namespace {

constexpr int windowSweeps = 64;
constexpr double toleranceBins = 4;
constexpr double toleranceBandwidths = 0.5;

constexpr double chirpBins = 4;
constexpr double chirpBandwidths = 0.5;
constexpr double chirpStraightness = 0.8;
constexpr double chirpLargestStep = 0.5;
constexpr double fixedShare = 0.8;
constexpr double hopperShare = 1.0 / 3;
constexpr double burstShare = 0.2;
constexpr int briefRun = 3;
constexpr int hopperPartners = 3;
constexpr double likeLevelDb = 6;
constexpr double likeBandwidthFactor = 2;
constexpr double likeBandwidthBins = 2;

double expectedHz(const SignalTrack& track)
{
    return track.signal.centreHz + track.driftHz;
}

double toleranceHz(const SignalTrack& track, const Signal& signal)
{
    return std::max(toleranceBins * signal.stepHz,
                    toleranceBandwidths *
                        std::max(track.signal.bandwidthHz(), signal.bandwidthHz()));
}

void continueTrack(SignalTrack& track, quint64 timeUs, const Signal& signal)
{
    const bool wasThere = (track.presence & 2) != 0;
    const double moved = signal.centreHz - track.signal.centreHz;
    track.driftHz = wasThere ? (track.driftHz + moved) / 2 : 0;
    track.signal = signal;
    track.lastSeenUs = timeUs;
    track.presence |= 1;
    std::copy_backward(track.centres.begin(), track.centres.end() - 1, track.centres.end());
    track.centres.front() = signal.centreHz;
}

bool movesSteadily(const SignalTrack& track)
{
    constexpr std::uint64_t onEnd = (std::uint64_t{1} << SignalTrack::keptCentres) - 1;
    if ((track.presence & onEnd) != onEnd)
        return false;
    double path = 0;
    double largestStep = 0;
    for (std::size_t i = 1; i < track.centres.size(); ++i) {
        const double step = std::abs(track.centres[i] - track.centres[i - 1]);
        path += step;
        largestStep = std::max(largestStep, step);
    }
    const double distance = std::abs(track.centres.front() - track.centres.back());
    return distance >= chirpBins * track.signal.stepHz &&
           distance >= chirpBandwidths * track.signal.bandwidthHz() &&
           distance >= chirpStraightness * path && largestStep <= chirpLargestStep * distance;
}

/// Comes for short times only; as far as is known, for a young one.
bool isBrief(const SignalTrack& track)
{
    return !track.hasMoved && track.longestRun() <= briefRun &&
           (track.age < SignalTracker::knownAfterSweeps || track.share() <= hopperShare);
}

bool isLike(const SignalTrack& a, const SignalTrack& b)
{
    const double wide = std::max(a.signal.bandwidthHz(), b.signal.bandwidthHz());
    const double narrow = std::min(a.signal.bandwidthHz(), b.signal.bandwidthHz());
    const int together = std::popcount(a.presence & b.presence);
    return std::abs(a.signal.peakDb - b.signal.peakDb) <= likeLevelDb &&
           (wide <= likeBandwidthFactor * narrow ||
            wide - narrow <= likeBandwidthBins * a.signal.stepHz) &&
           4 * together <= std::min(std::popcount(a.presence), std::popcount(b.presence));
}

} // namespace

double SignalTrack::share() const
{
    return static_cast<double>(std::popcount(presence)) / std::clamp(age, 1, windowSweeps);
}

int SignalTrack::longestRun() const
{
    int run = 0;
    for (std::uint64_t left = presence; left != 0; left &= left << 1)
        ++run;
    return run;
}

void SignalTracker::clear()
{
    m_tracks.clear();
}

void SignalTracker::add(quint64 timeUs, std::span<const Signal> found)
{
    ageAll();
    match(timeUs, found);
    dropSurplus();
    std::sort(m_tracks.begin(), m_tracks.end(), [](const SignalTrack& a, const SignalTrack& b) {
        return a.signal.centreHz < b.signal.centreHz ||
               (a.signal.centreHz == b.signal.centreHz && a.id < b.id);
    });
    classifyAll();
}

void SignalTracker::ageAll()
{
    for (SignalTrack& track : m_tracks) {
        track.presence <<= 1;
        track.age = std::min(track.age + 1, windowSweeps);
    }
    std::erase_if(m_tracks, [](const SignalTrack& track) { return track.presence == 0; });
}

/// The nearest signal on either side of each track, when it is near enough.
void SignalTracker::collectPairs(std::span<const Signal> found)
{
    m_order.resize(found.size());
    for (std::size_t i = 0; i < found.size(); ++i)
        m_order[i] = i;
    std::sort(m_order.begin(), m_order.end(),
              [&](std::size_t a, std::size_t b) { return found[a].centreHz < found[b].centreHz; });
    m_pairs.clear();
    for (std::size_t track = 0; track < m_tracks.size(); ++track) {
        const double expected = expectedHz(m_tracks[track]);
        const auto above = std::lower_bound(
            m_order.begin(), m_order.end(), expected,
            [&](std::size_t signal, double hertz) { return found[signal].centreHz < hertz; });
        const auto consider = [&](std::size_t signal) {
            const double distance = std::abs(found[signal].centreHz - expected);
            if (distance <= toleranceHz(m_tracks[track], found[signal]))
                m_pairs.push_back({distance, track, signal});
        };
        if (above != m_order.end())
            consider(*above);
        if (above != m_order.begin())
            consider(*(above - 1));
    }
    std::sort(m_pairs.begin(), m_pairs.end(), [this](const Pair& a, const Pair& b) {
        return a.distance < b.distance ||
               (a.distance == b.distance && m_tracks[a.track].id < m_tracks[b.track].id);
    });
}

void SignalTracker::match(quint64 timeUs, std::span<const Signal> found)
{
    collectPairs(found);
    m_signalTaken.assign(found.size(), false);
    for (const Pair& pair : m_pairs) {
        SignalTrack& track = m_tracks[pair.track];
        if (track.isPresent() || m_signalTaken[pair.signal])
            continue;
        m_signalTaken[pair.signal] = true;
        continueTrack(track, timeUs, found[pair.signal]);
    }
    for (SignalTrack& track : m_tracks) {
        if (!track.isPresent())
            track.driftHz = 0;
        track.hasMoved = track.hasMoved || movesSteadily(track);
    }
    for (const std::size_t signal : m_order) {
        if (!m_signalTaken[signal])
            start(timeUs, found[signal]);
    }
}

void SignalTracker::start(quint64 timeUs, const Signal& signal)
{
    SignalTrack track;
    track.id = ++m_lastId;
    track.signal = signal;
    track.firstSeenUs = timeUs;
    track.lastSeenUs = timeUs;
    track.age = 1;
    track.presence = 1;
    track.centres.fill(signal.centreHz);
    m_tracks.push_back(track);
}

void SignalTracker::dropSurplus()
{
    if (m_tracks.size() <= maximumTracks)
        return;
    // Those seen last come first, the older ones of them before the newer.
    const auto keepsRather = [](const SignalTrack& a, const SignalTrack& b) {
        const int unseenA = std::countr_zero(a.presence);
        const int unseenB = std::countr_zero(b.presence);
        return unseenA < unseenB || (unseenA == unseenB && a.id < b.id);
    };
    std::nth_element(m_tracks.begin(), m_tracks.begin() + maximumTracks, m_tracks.end(),
                     keepsRather);
    m_tracks.resize(maximumTracks);
}

void SignalTracker::classifyAll()
{
    m_brief.clear();
    for (std::size_t i = 0; i < m_tracks.size(); ++i) {
        SignalTrack& track = m_tracks[i];
        if (isBrief(track))
            m_brief.push_back(i);
        track.type = track.hasMoved                                                 ? 'i'
                     : track.age >= knownAfterSweeps && track.share() >= fixedShare ? 'h'
                                                                                    : 'a';
    }
    for (const std::size_t i : m_brief) {
        SignalTrack& track = m_tracks[i];
        if (track.age < knownAfterSweeps)
            continue;
        const auto partners = std::count_if(m_brief.begin(), m_brief.end(), [&](std::size_t other) {
            return other != i && isLike(track, m_tracks[other]);
        });
        if (partners >= hopperPartners)
            track.type = 'j';
        else if (track.share() <= burstShare)
            track.type = 'k';
    }
}

} // namespace bandmonitor
