// SPDX-License-Identifier: MIT
#pragma once

#include "traceprocessor.h"

#include <QString>

#include <optional>

namespace bandmonitor {

/// How the user wants the receiver to work. The defaults change nothing of what is shown.
struct ReceiverSettings
{
    static constexpr qint64 highestHz = 9'999'999'999'999;
    static constexpr double largestGainDb = 100;
    static constexpr int largestAttenuationDb = 100;
    static constexpr double largestThresholdDb = 1000;
    static constexpr double noThresholdDb = -largestThresholdDb; ///< In the place of a threshold.

    qint64 resolutionHz = 0; ///< 0: as recorded.
    double gainDb = 0;
    int attenuationDb = 0; ///< Below 0 it amplifies.
    quint64 samples = 0;   ///< 0: the current sweep only.
    quint32 address = 0;   ///< 0: not told.
    bool isAddressHexadecimal = true;
    std::optional<double> thresholdDb; ///< Of the shown levels; nothing: signals as they stand out.

    /// What is added to the recorded levels.
    double offsetDb() const { return gainDb - attenuationDb; }
    TraceSettings trace() const;
    /// The threshold of the recorded levels.
    std::optional<double> recordedThresholdDb() const;
    /// Empty for no address.
    QString addressText() const;
};

} // namespace bandmonitor
