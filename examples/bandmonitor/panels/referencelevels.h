// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Reads what a person wrote into a table of frequencies and levels.
namespace bandmonitor::ReferenceLevels {

/// A frequency in hertz: a number, and perhaps a unit ("98.1", "98,1 M", "98100 kHz"); without one
/// the application's frequency unit counts. Nothing unless it is above 0 and at most 10 THz.
std::optional<double> readFrequency(const QString& text);
/// A level in dB, behind which a unit of the family may stand ("-40", "-40,5 dB", "-40 dBm").
/// Nothing unless it is from -1000 to 1000.
std::optional<double> readLevel(const QString& text);
/// Writes the frequency so that readFrequency() reads the same, to a millihertz, in any unit.
QString writeFrequency(double hertz);

} // namespace bandmonitor::ReferenceLevels
