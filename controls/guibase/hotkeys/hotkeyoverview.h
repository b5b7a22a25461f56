// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

struct HotKey;
class QWidget;

/// The overview of the hot keys for the user.
namespace HotKeyOverview {

/// The toolkit's name of the key without its prefix, such as "F1"; "unknown" for a key without one.
QString keyName(Qt::Key key);
/// A list with one row for each hot key; belongs to the parent.
QWidget* createList(const QList<HotKey>& hotKeys, QWidget* parent);
/// Shows the modal overview dialog, or tells that there are no hot keys, and waits until it is
/// closed.
void exec(const QList<HotKey>& hotKeys, QWidget* parent);

} // namespace HotKeyOverview
