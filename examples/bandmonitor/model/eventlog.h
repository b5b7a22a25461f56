// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace bandmonitor {

enum class EventKind { Recording, Signal, Job, Mode };

/// Where in a recording something happened.
struct EventPlace
{
    quint64 recording = 0; ///< See Session::recordingNumber(); 0 for none.
    qsizetype sweep = -1;
    quint64 timeUs = 0; ///< Of the sweep.
};

struct Event
{
    quint64 number = 0; ///< Counted from 0 over the life of the log; clear() does not reset it.
    quint64 timeUs = 0; ///< Microseconds since 1970-01-01 00:00 UTC.
    EventKind kind = EventKind::Recording;
    QString text;     ///< One line.
    EventPlace place; ///< What was shown then.
};

/// The latest events of the application: when the log is full, a new event replaces the oldest one.
/// Adding an event takes the same time however many there are.
class EventLog : public QObject
{
    Q_OBJECT
public:
    static constexpr std::size_t standardCapacity = 10'000;

    /// A capacity of 0 counts as 1.
    explicit EventLog(std::size_t capacity = standardCapacity, QObject* parent = nullptr);
    ~EventLog() override;

    /// With the present time.
    void add(EventKind kind, const QString& text);
    /// Line breaks in the text become blanks.
    void add(EventKind kind, const QString& text, quint64 timeUs);
    /// The place of the events that are added from now on; none at first.
    void setPlace(const EventPlace& place) { m_place = place; }
    void clear();
    /// Brings back the events from this number on that clear() has taken out, as far as newer ones
    /// have not taken their places.
    void restore(quint64 number);

    std::size_t capacity() const { return m_capacity; }
    std::size_t size() const { return static_cast<std::size_t>(m_end - m_begin); }
    /// The events that the log has are those from begin() up to end(), without that one.
    quint64 begin() const { return m_begin; }
    quint64 end() const { return m_end; }
    /// `number` must be one of them. Good until the next add() or clear().
    const Event& event(quint64 number) const { return m_ring[indexOf(number)]; }

Q_SIGNALS:
    /// There are more events, or fewer after clear().
    void changed();

private:
    /// Whether it is cleared or not.
    quint64 oldestKept() const { return m_end - std::min<quint64>(m_end, m_capacity); }
    std::size_t indexOf(quint64 number) const
    {
        return static_cast<std::size_t>(number % m_capacity);
    }

    std::size_t m_capacity;
    EventPlace m_place;
    std::vector<Event> m_ring; ///< Grows up to the capacity; an event stands at its number's rest.
    quint64 m_begin = 0;
    quint64 m_end = 0;
};

} // namespace bandmonitor
