// SPDX-License-Identifier: MIT
#pragma once

#include "traceprocessor.h"

#include <QDateTime>

#include <optional>

namespace bandmonitor {

/// What the user sets in the receiver panel. The defaults change nothing of what is shown.
struct ReceiverSettings
{
    static constexpr qint64 highestHz = 9'999'999'999'999;
    static constexpr double largestGainDb = 100;
    static constexpr qint8 largestAttenuationDb = 100;
    static constexpr double largestThresholdDb = 1000;

    qint64 centreHz = 0;
    qint64 spanHz = 0;       ///< 0: the whole band.
    qint64 resolutionHz = 0; ///< 0: as recorded.
    double gainDb = 0;
    qint8 attenuationDb = 0; ///< Below 0 it amplifies.
    quint64 samples = 0;     ///< 0: the current sweep only.
    quint32 address = 0;     ///< 0: not told.
    bool isAddressHexadecimal = true;
    QDateTime startTime;               ///< Invalid: the beginning.
    std::optional<double> thresholdDb; ///< Of the shown levels; nothing: signals as they stand out.

    bool operator==(const ReceiverSettings&) const = default;

    /// The nearest settings within the limits; NaN becomes the default.
    ReceiverSettings clamped() const;
    /// What is added to the recorded levels.
    double offsetDb() const { return gainDb - attenuationDb; }
    TraceSettings trace() const;
    /// The threshold of the recorded levels.
    std::optional<double> recordedThresholdDb() const;
    /// Empty for no address.
    QString addressText() const;
};

} // namespace bandmonitor
