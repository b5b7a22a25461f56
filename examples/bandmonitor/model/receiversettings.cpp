// SPDX-License-Identifier: MIT
#include "receiversettings.h"

namespace bandmonitor {

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
