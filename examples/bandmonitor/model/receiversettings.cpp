// SPDX-License-Identifier: MIT
#include "receiversettings.h"

#include <algorithm>
#include <cmath>

namespace bandmonitor {

namespace {

double clampedNumber(double value, double largest)
{
    return std::isnan(value) ? 0 : std::clamp(value, -largest, largest);
}

} // namespace

ReceiverSettings ReceiverSettings::clamped() const
{
    ReceiverSettings result = *this;
    for (qint64* frequency : {&result.centreHz, &result.spanHz, &result.resolutionHz})
        *frequency = std::clamp<qint64>(*frequency, 0, highestHz);
    result.gainDb = clampedNumber(gainDb, largestGainDb);
    result.attenuationDb =
        std::clamp<qint8>(attenuationDb, -largestAttenuationDb, largestAttenuationDb);
    if (thresholdDb && std::isnan(*thresholdDb))
        result.thresholdDb.reset();
    else if (thresholdDb)
        result.thresholdDb = clampedNumber(*thresholdDb, largestThresholdDb);
    return result;
}

TraceSettings ReceiverSettings::trace() const
{
    return {static_cast<double>(resolutionHz), offsetDb(), samples};
}

std::optional<double> ReceiverSettings::recordedThresholdDb() const
{
    return thresholdDb ? std::optional(*thresholdDb - offsetDb()) : std::nullopt;
}

QString ReceiverSettings::addressText() const
{
    if (address == 0)
        return QString();
    return isAddressHexadecimal ? QStringLiteral("0x") + QString::number(address, 16).toUpper()
                                : QString::number(address);
}

} // namespace bandmonitor
