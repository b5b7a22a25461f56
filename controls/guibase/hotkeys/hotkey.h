// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QKeyCombination>
#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>

/// A key with its modifiers (Qt::KeyboardModifiers). Qt::Key(0) is no key.
struct HotKeyStroke
{
    Qt::Key key = Qt::Key(0);
    int modifiers = 0;

    static HotKeyStroke of(QKeyCombination combination);
    QKeyCombination combination() const;
    bool isNone() const { return key == Qt::Key(0) || key == Qt::Key_unknown; }
    bool operator==(const HotKeyStroke&) const = default;
};

/// One line of the hot-key registry: what was registered, and the key that fires it now.
struct HotKey
{
    HotKeyStroke stroke;
    HotKeyStroke registered; ///< What the application gave; the operator may have changed it.
    QPointer<QObject> receiver;
    /// The action whose shortcut the line shows. Null for a hot key.
    QPointer<QAction> action;
    QString comment;
    QString scope;
    int id = 0; ///< From 1, in the order of registration; never used again.
    bool onPress = false;
    bool listed = true;       ///< Shown in the overview.
    bool enabled = true;      ///< Takes part in matching.
    bool isShownOnly = false; ///< What it does is done elsewhere: it is never matched.
    bool isShortcut = false;  ///< Made for an action, which may be gone by now.
};
