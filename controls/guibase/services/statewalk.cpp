// SPDX-License-Identifier: MIT
#include "statewalk_p.h"

StateWalk::StateWalk(const QByteArray& state)
    : m_stream(state)
{}

bool StateWalk::expect(bool condition)
{
    m_isFine = m_isFine && condition;
    return m_isFine;
}

qint32 StateWalk::number()
{
    qint32 value = 0;
    m_stream >> value;
    return expect(m_stream.status() == QDataStream::Ok) ? value : 0;
}

qint32 StateWalk::number(qint32 lowest, qint32 highest)
{
    const qint32 value = number();
    return expect(value >= lowest && value <= highest) ? value : 0;
}

quint8 StateWalk::byte()
{
    quint8 value = 0;
    m_stream >> value;
    return expect(m_stream.status() == QDataStream::Ok) ? value : quint8{0};
}

quint8 StateWalk::byte(quint8 lowest, quint8 highest)
{
    const quint8 value = byte();
    return expect(value >= lowest && value <= highest) ? value : quint8{0};
}

void StateWalk::text(qint32 maximumSize)
{
    constexpr qint32 nullText = -1;
    const qint32 bytes = number();
    if (bytes == nullText)
        return;
    if (expect(bytes >= 0 && bytes % 2 == 0 && bytes / 2 <= maximumSize))
        expect(m_stream.skipRawData(bytes) == bytes);
}
