// SPDX-License-Identifier: MIT
#include "notificationmessage.h"

#include <QtEndian>

namespace {

constexpr qsizetype typeOffset = 1;
constexpr qsizetype idOffset = 2;
constexpr qsizetype valueOffset = 10;
constexpr qsizetype hashOffset = 14;

} // namespace

void NotificationMessage::appendTo(QByteArray& bytes) const
{
    bytes.resize(bytes.size() + size);
    char* data = bytes.data() + bytes.size() - size;
    data[0] = '\0';
    data[typeOffset] = static_cast<char>(type);
    qToLittleEndian(id, data + idOffset);
    qToLittleEndian(value, data + valueOffset);
    qToLittleEndian(listHash, data + hashOffset);
}

QByteArray NotificationMessage::encoded() const
{
    QByteArray bytes;
    appendTo(bytes);
    return bytes;
}

std::optional<NotificationMessage> NotificationMessage::decoded(QByteArrayView bytes)
{
    if (bytes.size() != size || bytes[0] != '\0')
        return std::nullopt;
    const auto type = static_cast<quint8>(bytes[typeOffset]);
    if (type > Connected)
        return std::nullopt;
    NotificationMessage message;
    message.type = static_cast<Type>(type);
    message.id = qFromLittleEndian<quint64>(bytes.data() + idOffset);
    message.listHash = qFromLittleEndian<quint32>(bytes.data() + hashOffset);
    if (message.type == Add || message.type == Resize)
        message.value = qFromLittleEndian<quint32>(bytes.data() + valueOffset);
    if (message.value > maximumHeight)
        return std::nullopt;
    return message;
}
