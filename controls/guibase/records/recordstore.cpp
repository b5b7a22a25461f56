// SPDX-License-Identifier: MIT
#include "recordstore.h"

#include <jtbase/errorhandler.h>
#include <trovappstartup/damagedrecord.h>

RecordStore::RecordStore(CfgView view, QString section, std::function<void()> writeChanges)
    : m_view(view)
    , m_section(std::move(section))
    , m_changes([write = std::move(writeChanges)] {
        if (write)
            write();
        // They have waited long enough for the disk, too.
        CfgCenter::StoreSoon();
    })
{}

/// Null for the view itself.
std::unique_ptr<ICfg> RecordStore::openSection() const
{
    return CfgCenter::GetAppCfg(m_view)->OpenSubCfg(m_section);
}

ICfg& RecordStore::place(const std::unique_ptr<ICfg>& section) const
{
    return section ? *section : *CfgCenter::GetAppCfg(m_view);
}

QString RecordStore::text(const QString& name) const
{
    return place(openSection()).GetString(name);
}

bool RecordStore::contains(const QString& name) const
{
    return place(openSection()).Contains(name);
}

void RecordStore::write(const QString& name, const QString& text) const
{
    place(openSection()).SetString(name, text);
}

void RecordStore::keepAside(const QString& name, const QString& text, const QString& damage) const
{
    const std::unique_ptr<ICfg> section = openSection();
    DamagedRecord::keepAside(place(section), {{DamagedRecord::asideName(name), text}}, name, damage,
                             ErrorHandler::TraceGuiBase);
}
