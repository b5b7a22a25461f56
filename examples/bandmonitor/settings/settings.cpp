// SPDX-License-Identifier: MIT
#include "settings/settings.h"

#include <jtbase/numberhelpers.h>
#include <trovappstartup/cfgcenter.h>

#include <QLocale>

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

QString degreesText(double degrees)
{
    return QString::number(degrees, 'f', QLocale::FloatingPointShortest);
}

const QString latitudeKey = QStringLiteral("ReceiverLatitude");
const QString longitudeKey = QStringLiteral("ReceiverLongitude");

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

QString lastFolder()
{
    return section()->GetString(QStringLiteral("LastFolder"));
}

void setLastFolder(const QString& folder)
{
    section()->SetString(QStringLiteral("LastFolder"), folder);
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

bool isStayingInTray()
{
    return section()->GetBool(QStringLiteral("StayInTray"));
}

void setStayingInTray(bool stays)
{
    section()->SetBool(QStringLiteral("StayInTray"), stays);
}

GeoPosition receiverPosition()
{
    return {readDegrees(latitudeKey, QStringLiteral("48.13731")),
            readDegrees(longitudeKey, QStringLiteral("11.57528"))};
}

void setReceiverPosition(const GeoPosition& position)
{
    const auto settings = CfgCenter::GetAppCfg(SettingsView);
    const bool isValid = position.isValid();
    settings->SetString(latitudeKey, isValid ? degreesText(position.latitude) : QString());
    settings->SetString(longitudeKey, isValid ? degreesText(position.longitude) : QString());
}

} // namespace bandmonitor::Settings
