// SPDX-License-Identifier: MIT
#include "damagedrecord.h"

#include "icfg.h"

#include <jtbase/errorhandler.h>

namespace {

constexpr char module[] = "trovappstartup/damagedrecord";
constexpr qsizetype longestText = 1 << 20;

} // namespace

QString DamagedRecord::asideName(const QString& name)
{
    return name + QStringLiteral("_damaged");
}

void DamagedRecord::keepAside(ICfg& place, const Texts& texts, const QString& name,
                              const QString& damage, quint32 traceBits)
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
        ErrorHandler::Trace(traceBits, module, __LINE__,
                            QStringLiteral("Record \"%1\": %2; it is kept as \"%3\"")
                                .arg(name, damage, asideName(name)));
}
