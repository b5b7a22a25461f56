// SPDX-License-Identifier: MIT
#include "notificationstack.h"

#include <algorithm>
#include <bit>

void NotificationStack::apply(const NotificationMessage& message, Owner sender)
{
    const qsizetype index = indexOf(message.id);
    const bool isListed = index >= 0;
    switch (message.type) {
    case NotificationMessage::Add:
        if (isListed)
            m_entries[index].owner = sender;
        else
            m_entries.append({message.id, message.value, sender});
        break;
    case NotificationMessage::Remove:
        if (isListed)
            m_entries.removeAt(index);
        break;
    case NotificationMessage::Resize:
        if (isListed)
            m_entries[index].height = message.value;
        break;
    case NotificationMessage::Raise:
        if (isListed && message.id != 0)
            std::rotate(m_entries.begin() + index, m_entries.begin() + index + 1, m_entries.end());
        break;
    case NotificationMessage::Connected:
        break;
    }
}

qsizetype NotificationStack::indexOf(quint64 id) const
{
    // From the end: most changes are about the newest ones.
    for (qsizetype i = m_entries.size() - 1; i >= 0; --i) {
        if (m_entries.at(i).id == id)
            return i;
    }
    return -1;
}

qsizetype NotificationStack::countOf(Owner owner) const
{
    return std::count_if(m_entries.begin(), m_entries.end(),
                         [owner](const Entry& entry) { return entry.owner == owner; });
}

QList<quint64> NotificationStack::idsOf(Owner owner) const
{
    QList<quint64> ids;
    for (const Entry& entry : m_entries) {
        if (entry.owner == owner)
            ids << entry.id;
    }
    return ids;
}

void NotificationStack::disown()
{
    for (Entry& entry : m_entries)
        entry.owner = nobody;
}

quint32 NotificationStack::hash() const
{
    quint32 hash = 0;
    for (const Entry& entry : m_entries)
        hash =
            std::rotl(hash, 1) ^ static_cast<quint32>((entry.id >> 31) ^ entry.id) ^ entry.height;
    return hash;
}
