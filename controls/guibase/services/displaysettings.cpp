// SPDX-License-Identifier: MIT
#include "displaysettings_p.h"

#include <guibase/services/guibase.h>

#include <jtbase/coordformat.h>
#include <jtbase/datetime.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/translationcenter.h>

#include <QApplication>
#include <QDir>
#include <QFont>

namespace {

constexpr int timeZoneIndexOfUtc = 0;

std::vector<SelectionItem> frequencyUnitItems()
{
    return {
        {QStringLiteral("Hz"), false, UnitPrefix::BaseUnit},
        {QStringLiteral("kHz"), false, UnitPrefix::Kilo},
        {QStringLiteral("MHz"), false, UnitPrefix::Mega},
        {QStringLiteral("GHz"), false, UnitPrefix::Giga},
    };
}

std::vector<SelectionItem> positionFormatItems()
{
    std::vector<SelectionItem> items;
    items.reserve(coordFormatCount);
    for (int format = 0; format < coordFormatCount; ++format) {
        items.emplace_back(getTranslatedCoordFormatName(static_cast<CoordFormat>(format)), false,
                           format);
    }
    return items;
}

std::vector<SelectionItem> timeZoneItems()
{
    return {
        {GuiBase::tr("Time in UTC"), false, int{Trov::DateTime::UTC_TimeZone}},
        {GuiBase::tr("Local Time"), false, int{Trov::DateTime::Local_TimeZone}},
    };
}

UnitPrefix::ESuffix configuredFrequencyResolution()
{
    const auto cfg = CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("GuiBase"));
    const int value = cfg->GetInt(QStringLiteral("FrequencyResolution"), UnitPrefix::BaseUnit);
    if (value < UnitPrefix::NoSuffix || value > UnitPrefix::Giga)
        return UnitPrefix::BaseUnit;
    return static_cast<UnitPrefix::ESuffix>(value);
}

} // namespace

DisplaySettings::DisplaySettings()
    : frequencyUnit(QStringLiteral("frequency_suffix"))
    , positionFormat(QStringLiteral("position_format"))
    , timeZone(QStringLiteral("time_zone"))
    , frequencyResolution(configuredFrequencyResolution())
{
    frequencyUnit.SetItems(frequencyUnitItems());
    translateItems();
    frequencyUnit.SetValue(UnitPrefix::Mega);
    positionFormat.SetValue(static_cast<int>(CoordFormat::DegreesMinutesSeconds));
    timeZone.SetValue(static_cast<double>(Trov::DateTime::Local_TimeZone));
    adoptApplicationFont();
}

DisplaySettings::~DisplaySettings() = default;

void DisplaySettings::adoptApplicationFont()
{
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr)
        return;
    for (QString* family : {&fontFamily, &windowsFontFamily}) {
        if (family->isEmpty())
            *family = QApplication::font().family();
    }
}

void DisplaySettings::readConfiguration()
{
    useNativeDialogs =
        CfgCenter::GetAppCfg(SettingsView)->GetBool(QStringLiteral("UseNativeDialogs"), true);
    adoptApplicationFont();
    if (const QString font = TranslationCenter::GetFontFromCfg(); !font.isEmpty())
        fontFamily = font;
    if (const QString font = TranslationCenter::GetWindowsFontFromCfg(); !font.isEmpty())
        windowsFontFamily = font;
}

void DisplaySettings::translateItems()
{
    positionFormat.SetItems(positionFormatItems());
    timeZone.SetItems(timeZoneItems());
}

qint64 DisplaySettings::timeZoneValue() const
{
    return timeZone.GetCurrentIndex() == timeZoneIndexOfUtc ? Trov::DateTime::UTC_TimeZone
                                                            : Trov::DateTime::Local_TimeZone;
}

QString DisplaySettings::timeString(quint64 microseconds, const QString& format) const
{
    const Trov::DateTime time(microseconds);
    return time.toString(format, static_cast<qint64>(timeZone.GetValue()));
}

bool DisplaySettings::setDefaultDataDirectory(const QString& directory)
{
    if (!QDir(directory).exists())
        return false;
    defaultDataDirectory = directory;
    return true;
}
