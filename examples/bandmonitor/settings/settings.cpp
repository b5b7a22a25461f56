// SPDX-License-Identifier: MIT
#include "settings/settings.h"

#include <jtbase/numberhelpers.h>
#include <trovappstartup/cfgcenter.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace bandmonitor::Settings {

namespace {

std::unique_ptr<ICfg> section()
{
    return CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("Bandmonitor"));
}

UnitPrefix::ESuffix readUnit(const QString& key, UnitPrefix::ESuffix standard,
                             UnitPrefix::ESuffix largest)
{
    const int value = section()->GetInt(key, standard);
    return value >= UnitPrefix::BaseUnit && value <= largest
               ? static_cast<UnitPrefix::ESuffix>(value)
               : standard;
}

double readDegrees(const QString& key, const QString& standard)
{
    bool ok = false;
    const QString text = CfgCenter::GetAppCfg(SettingsView)->GetString(key, standard);
    const double degrees = Trov::toDoubleEx(text, &ok);
    return ok ? degrees : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

UnitPrefix::ESuffix frequencyUnit()
{
    return readUnit(QStringLiteral("FrequencyUnit"), UnitPrefix::Mega, UnitPrefix::Giga);
}

void setFrequencyUnit(UnitPrefix::ESuffix unit)
{
    section()->SetInt(QStringLiteral("FrequencyUnit"), unit);
}

UnitPrefix::ESuffix frequencyResolution()
{
    return readUnit(QStringLiteral("FrequencyResolution"), UnitPrefix::BaseUnit, UnitPrefix::Kilo);
}

void setFrequencyResolution(UnitPrefix::ESuffix resolution)
{
    section()->SetInt(QStringLiteral("FrequencyResolution"), resolution);
}

bool isHoldVisible()
{
    return section()->GetBool(QStringLiteral("HoldMaximum"), true);
}

void setHoldVisible(bool visible)
{
    section()->SetBool(QStringLiteral("HoldMaximum"), visible);
}

QString lastFolder()
{
    return section()->GetString(QStringLiteral("LastFolder"));
}

void setLastFolder(const QString& folder)
{
    section()->SetString(QStringLiteral("LastFolder"), folder);
}

QString referenceLevels()
{
    return section()->GetString(QStringLiteral("ReferenceLevels"));
}

void setReferenceLevels(const QString& rows)
{
    if (rows != referenceLevels())
        section()->SetString(QStringLiteral("ReferenceLevels"), rows);
}

int mode(int standard)
{
    return section()->GetInt(QStringLiteral("Mode"), standard);
}

void setMode(int mode)
{
    section()->SetInt(QStringLiteral("Mode"), mode);
}

bool isWaterfallShown(const QString& mode, bool standard)
{
    return section()->GetBool(QStringLiteral("Waterfall") + mode, standard);
}

void setWaterfallShown(const QString& mode, bool shown)
{
    section()->SetBool(QStringLiteral("Waterfall") + mode, shown);
}

int jobOrder()
{
    return section()->GetInt(QStringLiteral("JobOrder"));
}

void setJobOrder(int order)
{
    section()->SetInt(QStringLiteral("JobOrder"), order);
}

ReceiverSettings receiver()
{
    const std::unique_ptr<ICfg> kept = section()->OpenSubCfg(QStringLiteral("Receiver"));
    const auto text = [&kept](const char* key) { return kept->GetString(QLatin1String(key)); };
    ReceiverSettings result;
    result.centreHz = text("Centre").toLongLong();
    result.spanHz = text("Span").toLongLong();
    result.resolutionHz = text("Resolution").toLongLong();
    result.gainDb = text("Gain").toDouble();
    result.attenuationDb =
        static_cast<qint8>(std::clamp(text("Attenuation").toInt(), INT8_MIN, INT8_MAX));
    result.samples = text("Samples").toULongLong();
    result.address = text("Address").toUInt();
    result.isAddressHexadecimal = text("AddressBase") != QLatin1String("10");
    result.startTime = QDateTime::fromString(text("StartTime"), Qt::ISODateWithMs);
    bool hasThreshold = false;
    const double threshold = text("Threshold").toDouble(&hasThreshold);
    if (hasThreshold)
        result.thresholdDb = threshold;
    return result.clamped();
}

void setReceiver(const ReceiverSettings& settings)
{
    const std::unique_ptr<ICfg> kept = section()->OpenSubCfg(QStringLiteral("Receiver"));
    const auto set = [&kept](const char* key, const QString& text) {
        const QLatin1String name(key);
        if (kept->GetString(name) != text)
            kept->SetString(name, text);
    };
    const auto exactly = [](double number) { return QString::number(number, 'g', 17); };
    set("Centre", QString::number(settings.centreHz));
    set("Span", QString::number(settings.spanHz));
    set("Resolution", QString::number(settings.resolutionHz));
    set("Gain", exactly(settings.gainDb));
    set("Attenuation", QString::number(settings.attenuationDb));
    set("Samples", QString::number(settings.samples));
    set("Address", QString::number(settings.address));
    set("AddressBase", QString::number(settings.isAddressHexadecimal ? 16 : 10));
    set("StartTime", settings.startTime.toUTC().toString(Qt::ISODateWithMs));
    set("Threshold", settings.thresholdDb ? exactly(*settings.thresholdDb) : QString());
}

Position receiverPosition()
{
    return {readDegrees(QStringLiteral("ReceiverLatitude"), QStringLiteral("48.13731")),
            readDegrees(QStringLiteral("ReceiverLongitude"), QStringLiteral("11.57528"))};
}

} // namespace bandmonitor::Settings
