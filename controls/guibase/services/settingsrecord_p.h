// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/recordstore.h>

#include <trovappstartup/savecomponentif.h>
#include <valueframework/persistant.h>

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <vector>

class DisplaySettings;
class ValueFollower;

/// The record of what the user chose for the whole application: colour set, time zone and position
/// format.
class SettingsRecord : private SaveComponentIf
{
public:
    /// The owner passes its two operations on to beforeWrite() and afterRead(). Neither it nor the
    /// settings are owned.
    SettingsRecord(PersistantOwner& owner, DisplaySettings& settings);
    ~SettingsRecord() override;

    bool exists() const;
    void read();
    void write();
    /// From now on every choice is written after the write delay, so that a killed process loses
    /// little, and at once when the session or the server of its windows ends.
    void followChoices();
    /// Something was chosen, if choices are followed and not just being read.
    void noteChoice();
    /// In milliseconds; negative: choices wait for write().
    void setWriteDelay(int milliseconds);

    void beforeWrite();
    void afterRead();

private:
    void Save() override {} // The end of the application writes.
    void Load() override {}
    void CommitData() override { write(); }

    /// One value of the record. Only those that were chosen here are written: another process may
    /// have chosen the others meanwhile.
    struct Part
    {
        QString key;
        std::function<QVariant()> value;
        std::unique_ptr<Persistant> record; ///< Of this value alone.
        QVariant known;                     ///< As it was read or written last.
    };

    template <typename Member, typename... Detail>
    void add(const char* key, Member& member, std::function<QVariant()> value, Detail... detail);

    QString m_colorDefinitionFile;
    Persistant m_record;
    std::vector<Part> m_parts;
    bool m_isReading = false; ///< Which may take a question to the user about the colour set.
    std::vector<ValueSelection*> m_selections;
    std::vector<std::unique_ptr<ValueFollower>> m_followers;
    RecordStore m_store{SettingsView, QStringLiteral("GuiCentral"), [this] { write(); }};
};
