// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>

/// Reads a stored state value by value and remembers whether all of them were there and as they may
/// be. After a wrong value everything reads as 0, so that loops over counts end.
class StateWalk
{
public:
    /// The state must outlive this object.
    explicit StateWalk(const QByteArray& state);

    qint32 number();
    /// A number from `lowest` to `highest`.
    qint32 number(qint32 lowest, qint32 highest);
    quint8 byte();
    /// A byte from `lowest` to `highest`.
    quint8 byte(quint8 lowest, quint8 highest);
    /// The bytes of a text of at most so many UTF-16 units, in big endian.
    QByteArrayView text(qint32 maximumSize);
    bool expect(bool condition);
    bool isFine() const { return m_isFine; }
    /// Of the next value, in bytes from the beginning.
    qsizetype position() const { return m_position; }
    bool atEnd() const { return m_position == m_state.size(); }

private:
    /// The next bytes, passed over; null when there are not so many.
    const char* take(qsizetype size);

    const QByteArray& m_state;
    qsizetype m_position = 0;
    bool m_isFine = true;
};
