// SPDX-License-Identifier: MIT
#include "statewalk.h"

#include <QtEndian>

StateWalk::StateWalk(const QByteArray& state)
    : m_state(state)
{}

bool StateWalk::expect(bool condition)
{
    m_isFine = m_isFine && condition;
    return m_isFine;
}

const char* StateWalk::take(qsizetype size)
{
    if (!expect(size <= m_state.size() - m_position))
        return nullptr;
    const char* bytes = m_state.constData() + m_position;
    m_position += size;
    return bytes;
}

qint32 StateWalk::number()
{
    const char* bytes = take(sizeof(qint32));
    return bytes != nullptr ? qFromBigEndian<qint32>(bytes) : 0;
}

qint32 StateWalk::number(qint32 lowest, qint32 highest)
{
    const qint32 value = number();
    return expect(value >= lowest && value <= highest) ? value : 0;
}

quint8 StateWalk::byte()
{
    const char* bytes = take(1);
    return bytes != nullptr ? static_cast<quint8>(*bytes) : quint8{0};
}

quint8 StateWalk::byte(quint8 lowest, quint8 highest)
{
    const quint8 value = byte();
    return expect(value >= lowest && value <= highest) ? value : quint8{0};
}

QByteArrayView StateWalk::text(qint32 maximumSize)
{
    constexpr qint32 nullText = -1;
    const qint32 bytes = number();
    if (bytes == nullText || !expect(bytes >= 0 && bytes % 2 == 0 && bytes / 2 <= maximumSize))
        return {};
    const char* start = take(bytes);
    return start != nullptr ? QByteArrayView(start, bytes) : QByteArrayView();
}
