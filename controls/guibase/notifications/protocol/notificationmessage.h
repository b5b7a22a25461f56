// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>

#include <optional>

/// One change of the common stack of pop-ups, as it travels between the programs of a computer: 18
/// bytes, little-endian, without any frame. Byte 0 is reserved and 0, then follow type (1 byte), id
/// (8), value (4) and list hash (4).
struct NotificationMessage
{
    enum Type : quint8 {
        Add = 0,
        Remove = 1,
        Resize = 2,
        Raise = 3,
        Connected = 4, ///< From the server only: its whole list has been sent.
    };

    static constexpr qsizetype size = 18;
    /// What a toolkit's window can have at most. A higher pop-up is no pop-up.
    static constexpr quint32 maximumHeight = (1U << 24) - 1;

    Type type = Add;
    quint64 id = 0;
    /// The height in pixels for Add and Resize, 0 otherwise.
    quint32 value = 0;
    /// What the server's list hashes to with this change. 0 from a client, and in the list that a
    /// new client gets.
    quint32 listHash = 0;

    bool operator==(const NotificationMessage&) const = default;

    QByteArray encoded() const;
    /// The same, behind other messages.
    void appendTo(QByteArray& bytes) const;
    /// Nothing for any other number of bytes, a reserved byte that is used, an unknown type and a
    /// height above the maximum. A value that means nothing reads as 0.
    static std::optional<NotificationMessage> decoded(QByteArrayView bytes);
};
