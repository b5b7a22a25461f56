// SPDX-License-Identifier: MIT
#include "eventlog.h"

#include <QDateTime>

#include <algorithm>

namespace bandmonitor {

EventLog::EventLog(std::size_t capacity, QObject* parent)
    : QObject(parent)
    , m_capacity(std::max<std::size_t>(capacity, 1))
{}

EventLog::~EventLog() = default;

void EventLog::add(EventKind kind, const QString& text)
{
    constexpr quint64 usPerMs = 1000;
    add(kind, text, static_cast<quint64>(QDateTime::currentMSecsSinceEpoch()) * usPerMs);
}

void EventLog::add(EventKind kind, const QString& text, quint64 timeUs)
{
    const std::size_t index = indexOf(m_end);
    if (index >= m_ring.size())
        m_ring.resize(index + 1);
    m_ring[index] = {m_end, timeUs, kind, text.simplified(), m_place};
    ++m_end;
    m_begin = std::max(m_begin, oldestKept());
    Q_EMIT changed();
}

void EventLog::clear()
{
    if (size() == 0)
        return;
    m_begin = m_end;
    Q_EMIT changed();
}

void EventLog::restore(quint64 number)
{
    const quint64 begin = std::max(number, oldestKept());
    if (begin >= m_begin)
        return;
    m_begin = begin;
    Q_EMIT changed();
}

} // namespace bandmonitor
