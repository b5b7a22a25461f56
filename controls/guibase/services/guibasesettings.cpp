// SPDX-License-Identifier: MIT
// The members of GuiBase that hold what all windows show alike: units, formats, fonts, style.
#include "guibase.h"
#include "guibase_p.h"
#include "styleloader_p.h"
#include "windowhelpers_p.h"

#include <QComboBox>

ValueSelection* GuiBase::GetFrequencyUnit()
{
    return &d->settings.frequencyUnit;
}

void GuiBase::SetFrequencyUnit(UnitPrefix::ESuffix suffix)
{
    d->settings.frequencyUnit.SetValue(suffix);
}

UnitPrefix::ESuffix GuiBase::GetFrequencyResolution()
{
    return d->settings.frequencyResolution;
}

void GuiBase::SetFrequencyResolution(UnitPrefix::ESuffix resolution)
{
    d->settings.frequencyResolution = resolution;
}

ValueSelection* GuiBase::GetPositionFormat()
{
    return &d->settings.positionFormat;
}

ValueSelection* GuiBase::GetTimeZone()
{
    return &d->settings.timeZone;
}

qint64 GuiBase::GetTimeZoneValue() const
{
    return d->settings.timeZoneValue();
}

QString GuiBase::TimeString(quint64& time, QString format)
{
    return d->settings.timeString(time, format);
}

void GuiBase::SetDisplayMode(int mode)
{
    d->settings.displayMode = mode;
}

int GuiBase::GetDisplayMode()
{
    return d->settings.displayMode;
}

void GuiBase::SetShowFrequencyInHz(bool show)
{
    d->settings.showFrequencyInHz = show;
}

int GuiBase::GetShowFrequencyInHz() const
{
    return d->settings.showFrequencyInHz ? 1 : 0;
}

const QString& GuiBase::GetFontFamily() const
{
    return d->settings.fontFamily;
}

void GuiBase::SetFontFamily(const QString& family)
{
    d->settings.fontFamily = family;
}

const QString& GuiBase::GetWFontFamily() const
{
    return d->settings.windowsFontFamily;
}

void GuiBase::SetWFontFamily(const QString& family)
{
    d->settings.windowsFontFamily = family;
}

QFlags<QFileDialog::Option> GuiBase::UseNativeDialogs()
{
    return d->settings.useNativeDialogs ? QFileDialog::Options()
                                        : QFileDialog::Options(QFileDialog::DontUseNativeDialog);
}

bool GuiBase::SetDefaultDataDirectory(const QString& directory)
{
    return d->settings.setDefaultDataDirectory(directory);
}

const QString& GuiBase::GetDefaultDataDirectory() const
{
    return d->settings.defaultDataDirectory;
}

void GuiBase::slotRereadTimeZoneOffset()
{
    // Local time always follows the system's rules; no offset is kept that could be outdated.
}

QComboBox* GuiBase::GetStyleComboBox(QWidget* parent)
{
    QComboBox* box = WindowHelpers::createStyleComboBox(parent);
    connect(box, &QComboBox::activated, this, &GuiBase::slotStyleChanged);
    return box;
}

void GuiBase::slotStyleChanged(int)
{
    // There is one style only, whatever was chosen.
    StyleLoader::applyStyle();
    loadStyleSheet(nullptr);
}

void GuiBase::loadStyleSheet(ICfg* cfg)
{
    if (d->application)
        StyleLoader::loadStyleSheet(*d->application, cfg);
}
