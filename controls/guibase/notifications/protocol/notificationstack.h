// SPDX-License-Identifier: MIT
#pragma once

#include "notificationmessage.h"

#include <QList>
#include <QtGlobal>

/// The pop-ups of all programs in stacking order, the newest last. The server's list is the one
/// that counts; the other programs repeat its changes and compare the hash.
class NotificationStack
{
public:
    /// The connection an entry came from; a number of the server's own.
    using Owner = quint64;
    static constexpr Owner nobody = 0;

    struct Entry
    {
        quint64 id;
        quint32 height; ///< In pixels.
        Owner owner;

        bool operator==(const Entry&) const = default;
    };

    /// Makes the change of a message. Adding a listed id only changes its owner; removing, resizing
    /// and raising an unknown one changes nothing.
    void apply(const NotificationMessage& message, Owner sender = nobody);

    const QList<Entry>& entries() const { return m_entries; }
    /// The position of an id, or -1.
    qsizetype indexOf(quint64 id) const;
    qsizetype countOf(Owner owner) const;
    /// The ids of one owner, the oldest first.
    QList<quint64> idsOf(Owner owner) const;
    /// Leaves all entries without an owner.
    void disown();
    void clear() { m_entries.clear(); }

    /// The same for two lists with the same ids and heights in the same order; 0 for an empty one.
    quint32 hash() const;

private:
    QList<Entry> m_entries;
};
