// SPDX-License-Identifier: MIT
#pragma once

#include "signaldetector.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace bandmonitor {

/// A signal that was followed over sweeps.
struct SignalTrack
{
    static constexpr std::size_t keptCentres = 8;

    std::uint32_t id = 0; ///< From 1; never used twice by one tracker.
    Signal signal;        ///< As it was last seen.
    quint64 firstSeenUs = 0;
    quint64 lastSeenUs = 0;
    char type = 'a'; ///< The letter of its signal type, see SignalTracker.

    int age = 0;                ///< Sweeps since it was first seen, that one included.
    std::uint64_t presence = 0; ///< Bit n tells whether it was there n sweeps ago.
    double driftHz = 0;         ///< How far it moves from sweep to sweep.
    bool hasMoved = false;      ///< It once moved steadily.
    std::array<double, keptCentres> centres{}; ///< Of the sweeps with it, newest first.

    bool isPresent() const { return (presence & 1) != 0; }
    /// The part of the sweeps (64 at most) with it since it was first seen, 0 to 1.
    double share() const;
    /// The most sweeps on end with it, among the last 64.
    int longestRun() const;
};

/// Follows the signals of a recording from sweep to sweep and tells their types, which the last 64
/// sweeps show. The rules stand in docs/decisions/0061-signals-and-their-types.md.
class SignalTracker
{
public:
    static constexpr std::size_t maximumTracks = 200;
    static constexpr int knownAfterSweeps = 8;
    /// The letters of the types that it tells.
    static constexpr std::array types{'a', 'h', 'i', 'j', 'k'};

    /// Forgets all tracks. Numbers go on.
    void clear();
    /// Takes the signals of the next sweep. The same calls always give the same tracks.
    void add(quint64 timeUs, std::span<const Signal> found);

    /// In order of frequency. Valid until the next add() or clear().
    std::span<const SignalTrack> tracks() const { return m_tracks; }
    /// The number of the track that was made last; 0 at first.
    std::uint32_t lastId() const { return m_lastId; }

private:
    struct Pair
    {
        double distance = 0;
        std::size_t track = 0;
        std::size_t signal = 0;
    };

    void ageAll();
    void match(quint64 timeUs, std::span<const Signal> found);
    void collectPairs(std::span<const Signal> found);
    void start(quint64 timeUs, const Signal& signal);
    void dropSurplus();
    void classifyAll();

    std::vector<SignalTrack> m_tracks;
    std::vector<Pair> m_pairs;
    std::vector<std::size_t> m_order;
    std::vector<bool> m_signalTaken;
    std::vector<std::size_t> m_brief;
    std::uint32_t m_lastId = 0;
};

} // namespace bandmonitor
