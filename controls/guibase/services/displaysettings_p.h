// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/frequencies/unitprefix.h>

#include <valueframework/valueselection.h>

#include <QString>

/// The display settings that all windows share: three selections that can be observed, and plain
/// values.
class DisplaySettings
{
public:
    /// Takes the frequency resolution from the application configuration.
    DisplaySettings();
    DisplaySettings(const DisplaySettings&) = delete;
    DisplaySettings& operator=(const DisplaySettings&) = delete;
    ~DisplaySettings();

    /// Takes the application's font for both families that have no name yet; nothing without an
    /// application object.
    void adoptApplicationFont();
    /// Takes the configured font families and the choice of file dialogs.
    void readConfiguration();
    /// Fills the selections again in the current language; the chosen items stay chosen.
    void translateItems();

    qint64 timeZoneValue() const;
    QString timeString(quint64 microseconds, const QString& format) const;
    bool setDefaultDataDirectory(const QString& directory);

    ValueSelection frequencyUnit;
    ValueSelection positionFormat;
    ValueSelection timeZone;
    UnitPrefix::ESuffix frequencyResolution = UnitPrefix::BaseUnit;
    int displayMode = 1;
    bool showFrequencyInHz = false;
    bool useNativeDialogs = true;
    QString fontFamily;
    QString windowsFontFamily;
    QString defaultDataDirectory;
};
