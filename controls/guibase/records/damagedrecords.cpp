// SPDX-License-Identifier: MIT
#include "damagedrecords.h"

#include <jtbase/errorhandler.h>
#include <trovappstartup/icfg.h>

namespace {

constexpr char module[] = "guibase/services/damagedrecords";
constexpr qsizetype longestText = 1 << 20;

} // namespace

QString DamagedRecords::asideName(const QString& name)
{
    return name + QStringLiteral("_damaged");
}

void DamagedRecords::keepAside(ICfg& place, const Texts& texts, const QString& name,
                               const QString& reason)
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
                            QStringLiteral("Layout record \"%1\": %2; it is kept as \"%3\"")
                                .arg(name, reason, asideName(name)));
}

void DamagedRecords::keepAside(ICfg& place, const QString& key, const QString& text,
                               const QString& reason)
{
    keepAside(place, {{asideName(key), text}}, key, reason);
}
