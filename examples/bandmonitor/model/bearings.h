// SPDX-License-Identifier: MIT
#pragma once

#include "signaltracker.h"

#include <QObject>

#include <span>
#include <unordered_map>
#include <vector>

namespace bandmonitor {

/// The same direction as an angle from 0 to below 360 degrees; 0 for what is no finite number.
double normalizedDegrees(double degrees);

/// A direction (clockwise from north) as seen from a ship or car that heads for `heading`: from 0
/// to below 360 degrees, clockwise from the bow.
double relativeBearing(double bearing, double heading);

/// The smaller angle between two directions, 0 to 180 degrees.
double angleBetween(double a, double b);

/// Where a relative bearing points.
enum class BearingSide { Ahead, Starboard, Astern, Portside };
/// Ahead and astern are the directions that are rounded to 0 and 180 degrees.
BearingSide sideOf(double relative);

/// The direction that a signal comes from.
struct Bearing
{
    SignalTrack track;  ///< As it was last seen.
    double degrees = 0; ///< Clockwise from north, 0 to below 360.
    /// Standard deviation of the direction in degrees.
    double spread = 0;
};

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

    /// Takes the directions of these signals in the place of the former ones.
    void update(std::span<const SignalTrack> tracks);
    /// In the order of the signals. Good until the next update().
    const std::vector<Bearing>& all() const { return m_bearings; }
    /// Null when the signal is not (any more) among them.
    const Bearing* find(std::uint32_t trackId) const;

    static double simulatedDegrees(double hertz);
    static double simulatedSpread(double signalToNoiseDb);

Q_SIGNALS:
    void changed();

private:
    std::vector<Bearing> m_bearings;
    std::unordered_map<std::uint32_t, double> m_degrees; ///< By the number of the track.
};

} // namespace bandmonitor
