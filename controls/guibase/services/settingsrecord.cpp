// SPDX-License-Identifier: MIT
#include "settingsrecord_p.h"

#include "applicationcolors_p.h"
#include "displaysettings_p.h"

#include <valueframework/selectionfollower.h>

#include <QScopedValueRollback>

SettingsRecord::SettingsRecord(PersistantOwner& owner, DisplaySettings& settings)
    : m_record(QStringLiteral("GuiCentral"), &owner)
    , m_selections{&settings.timeZone, &settings.positionFormat}
{
    m_record.Add(&m_colorDefinitionFile, QStringLiteral("ColorDefinitionFile"));
    m_record.Add(&settings.timeZone, QStringLiteral("TimeZone"),
                 static_cast<int>(SelectionStorage::ByValue));
    m_record.Add(&settings.positionFormat, QStringLiteral("PositionFormat"),
                 static_cast<int>(SelectionStorage::ByKey));
}

SettingsRecord::~SettingsRecord() = default;

bool SettingsRecord::exists() const
{
    return m_record.Exists();
}

void SettingsRecord::read()
{
    const QScopedValueRollback reading(m_isReading, true);
    m_record.Read(QString());
    m_delayedWrite.cancel();
}

void SettingsRecord::write()
{
    m_record.Write(QString());
    m_delayedWrite.cancel();
}

void SettingsRecord::followChoices()
{
    if (!m_followers.empty())
        return;
    for (ValueSelection* selection : m_selections)
        m_followers.push_back(
            std::make_unique<SelectionFollower>(selection, [this] { noteChoice(); }));
}

void SettingsRecord::noteChoice()
{
    if (!m_followers.empty() && !m_isReading)
        m_delayedWrite.noteChange();
}

void SettingsRecord::setWriteDelay(int milliseconds)
{
    m_delayedWrite.setDelay(milliseconds);
}

void SettingsRecord::beforeWrite()
{
    if (!m_isReading)
        m_colorDefinitionFile = ApplicationColors::activeName();
}

void SettingsRecord::afterRead()
{
    m_colorDefinitionFile = ApplicationColors::load(m_colorDefinitionFile);
}
