// SPDX-License-Identifier: MIT
#pragma once

#include "panenames.h"
#include "signaltracker.h"

#include <radiopanes/bearings/bearing.h>

#include <QObject>

#include <span>
#include <unordered_map>
#include <vector>

namespace bandmonitor {

/// A simulated direction finder: a recording holds levels only, so that nothing in it tells where a
/// signal comes from. Each signal gets a direction that follows from the frequency at which it was
/// first seen, and stays with it as long as it is followed; nearly the same frequency gives nearly
/// the same direction. The spread is that of a real finder, whose error falls with the ratio of
/// signal to noise amplitude: 30 degrees at 0 dB, 3 degrees at 20 dB, 0.5 degrees at least.
class Bearings : public QObject
{
    Q_OBJECT
public:
    explicit Bearings(QObject* parent = nullptr);
    ~Bearings() override;

    /// Replaces all bearings by those of these signals.
    void update(std::span<const SignalTrack> tracks);
    /// In the order of the signals. Good until the next update().
    const std::vector<Bearing>& all() const { return m_bearings; }
    /// Null when the signal is not (any more) among them.
    const Bearing* find(std::uint32_t trackId) const;

    static double simulatedDegrees(double hertz);
    static double simulatedSpread(double signalToNoiseDb);

Q_SIGNALS:
    /// update() has replaced the bearings.
    void changed();

private:
    std::vector<Bearing> m_bearings;
    std::unordered_map<std::uint32_t, double> m_degrees; ///< By the number of the track.
};

} // namespace bandmonitor
