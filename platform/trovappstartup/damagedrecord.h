// SPDX-License-Identifier: MIT
#pragma once

#include <trovappstartup/trovappstartup_export.h>

#include <QList>
#include <QString>

#include <utility>

class ICfg;

/// Keeps aside what is stored in the configuration but cannot be read, so that the next write does
/// not lose it.
namespace DamagedRecord {

/// Keys of a place in the configuration, and the texts for them.
using Texts = QList<std::pair<QString, QString>>;

/// The name under which the damaged record of a name is kept.
TROVAPPSTARTUP_EXPORT QString asideName(const QString& name);

/// Keeps the texts of the damaged record in the place, of endless ones the beginning, and reports
/// it as a trace with these bits (see ErrorHandler). Only the last damage is kept; what is there
/// already is not reported again.
TROVAPPSTARTUP_EXPORT void keepAside(ICfg& place, const Texts& texts, const QString& name,
                                     const QString& damage, quint32 traceBits);

} // namespace DamagedRecord
