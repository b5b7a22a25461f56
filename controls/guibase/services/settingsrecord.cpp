// SPDX-License-Identifier: MIT
#include "settingsrecord_p.h"

#include "applicationcolors_p.h"
#include "displaysettings_p.h"

#include <valueframework/valuefollower.h>
#include <valueframework/valueselection.h>

#include <QScopedValueRollback>

SettingsRecord::SettingsRecord(PersistantOwner& owner, DisplaySettings& settings)
    : m_record(QStringLiteral("GuiCentral"), &owner)
    , m_selections{&settings.timeZone, &settings.positionFormat}
{
    add("ColorDefinitionFile", m_colorDefinitionFile, [this] { return m_colorDefinitionFile; });
    add(
        "TimeZone", settings.timeZone, [&settings] { return settings.timeZone.GetValue(); },
        static_cast<int>(SelectionStorage::ByValue));
    add(
        "PositionFormat", settings.positionFormat,
        [&settings] { return settings.positionFormat.GetValue(); },
        static_cast<int>(SelectionStorage::ByKey));
}

SettingsRecord::~SettingsRecord() = default;

template <typename Member, typename... Detail>
void SettingsRecord::add(const char* key, Member& member, std::function<QVariant()> value,
                         Detail... detail)
{
    const QString name = QLatin1String(key);
    m_record.Add(&member, name, detail...);
    auto record = std::make_unique<Persistant>(m_record.GetName());
    record->Add(&member, name, detail...);
    QVariant known = value();
    m_parts.push_back({name, std::move(value), std::move(record), std::move(known)});
}

bool SettingsRecord::exists() const
{
    return m_record.Exists();
}

void SettingsRecord::read()
{
    const QScopedValueRollback reading(m_isReading, true);
    m_record.Read(QString());
    m_store.dropChanges();
}

void SettingsRecord::write()
{
    beforeWrite();
    for (Part& part : m_parts) {
        QVariant value = part.value();
        if (value == part.known && m_store.contains(part.key))
            continue;
        part.record->Write(QString());
        part.known = std::move(value);
    }
    m_store.dropChanges();
}

void SettingsRecord::followChoices()
{
    if (!m_followers.empty())
        return;
    CfgCenter::RegisterSaveComponent(this);
    for (ValueSelection* selection : m_selections)
        m_followers.push_back(std::make_unique<ValueFollower>(selection, [this] { noteChoice(); }));
}

void SettingsRecord::noteChoice()
{
    if (!m_followers.empty() && !m_isReading)
        m_store.noteChange();
}

void SettingsRecord::setWriteDelay(int milliseconds)
{
    m_store.setWriteDelay(milliseconds);
}

void SettingsRecord::beforeWrite()
{
    if (!m_isReading)
        m_colorDefinitionFile = ApplicationColors::activeName();
}

void SettingsRecord::afterRead()
{
    for (Part& part : m_parts)
        part.known = part.value();
    // When the file is missing, the user chooses another one, which is to be written.
    m_colorDefinitionFile = ApplicationColors::load(m_colorDefinitionFile);
}
