// SPDX-License-Identifier: MIT
#include "recordstore.h"

#include <jtbase/errorhandler.h>

namespace {

constexpr char module[] = "guibase/records/recordstore";
constexpr qsizetype longestText = 1 << 20;

} // namespace

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

QString RecordStore::asideName(const QString& name)
{
    return name + QStringLiteral("_damaged");
}

void RecordStore::keepAside(const QString& name, const QString& text, const QString& damage) const
{
    const std::unique_ptr<ICfg> section = openSection();
    keepAside(place(section), {{asideName(name), text}}, name, damage);
}

void RecordStore::keepAside(ICfg& place, const Texts& texts, const QString& name,
                            const QString& damage)
{
    bool isNews = false;
    for (const auto& [key, text] : texts) {
        const QString beginning = text.left(longestText);
        if (place.GetString(key) == beginning)
            continue;
        isNews = true;
        place.SetString(key, beginning);
    }
    if (isNews)
        ErrorHandler::Trace(ErrorHandler::TraceGuiBase, module, __LINE__,
                            QStringLiteral("Record \"%1\": %2; it is kept as \"%3\"")
                                .arg(name, damage, asideName(name)));
}
