// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <utility>

class ICfg;

/// What becomes of stored layouts that cannot be read: they are not applied, but neither are they
/// lost when the next ones are stored.
namespace DamagedRecords {

/// Keys of a place in the configuration, and the texts for them.
using Texts = QList<std::pair<QString, QString>>;

/// The name under which the damaged record of a name is kept.
QString asideName(const QString& name);
/// Writes the texts, of endless ones the beginning, to the place and reports it in the trace. Only
/// the last damage is kept; what is there already is not reported again.
void keepAside(ICfg& place, const Texts& texts, const QString& name, const QString& reason);
/// The same for a single text under a key: kept in the same place under the key's aside name.
void keepAside(ICfg& place, const QString& key, const QString& text, const QString& reason);

} // namespace DamagedRecords
