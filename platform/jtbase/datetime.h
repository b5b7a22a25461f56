// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QDateTime>
#include <QString>

namespace Trov {

/// A point in time with microsecond resolution, and its text in UTC or local time.
///
/// The time is a count of microseconds since 1970-01-01 00:00:00 UTC.
class JTBASE_EXPORT DateTime
{
public:
    /// The zones that toString() knows. The values are those of GuiBase's time-zone selection.
    static constexpr qint64 UTC_TimeZone = 0;
    static constexpr qint64 Local_TimeZone = 1;

    /// The unit of all times here.
    static constexpr quint64 microsecondsPerSecond = 1'000'000;

    DateTime() = default;
    /// Since 1970-01-01 00:00 UTC.
    explicit DateTime(quint64 microseconds);

    /// In microseconds since 1970-01-01 00:00 UTC.
    void SetTime(quint64 microseconds);
    quint64 GetTime() const;

    /// The time as a QDateTime in the zone, cut to milliseconds.
    QDateTime toQDateTime(qint64 zone) const;
    /// Microseconds since the epoch; 0 for an invalid time and for times before the epoch, the
    /// largest count for times beyond it.
    static quint64 fromQDateTime(const QDateTime& time);

    /// The time written with a format as QDateTime::toString() takes it, in which "uuu" outside
    /// quotes stands for the three digits of microseconds. An empty format gives
    /// "yyyy-MM-dd hh:mm:ss.zzz". A zone that is not known counts as UTC. Times later than the year
    /// 9999 give an empty text.
    QString toString(const QString& format, qint64 zone) const;

private:
    quint64 m_microseconds = 0;
};

} // namespace Trov
