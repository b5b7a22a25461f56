// SPDX-License-Identifier: MIT
#include "datetime.h"

#include <limits>

namespace Trov {

namespace {

constexpr quint64 microsecondsPerMillisecond = 1000;
constexpr int lastWritableYear = 9999;

/// The format with every unquoted "uuu" replaced by the digits, which a format passes on as they
/// are.
QString withMicroseconds(const QString& format, const QString& digits)
{
    const QString token = QStringLiteral("uuu");
    QString result;
    result.reserve(format.size());
    bool quoted = false;
    for (qsizetype at = 0; at < format.size();) {
        if (!quoted && QStringView(format).sliced(at).startsWith(token)) {
            result += digits;
            at += token.size();
            continue;
        }
        quoted ^= format.at(at) == QLatin1Char('\'');
        result += format.at(at++);
    }
    return result;
}

} // namespace

DateTime::DateTime(quint64 microseconds)
    : m_microseconds(microseconds)
{}

void DateTime::SetTime(quint64 microseconds)
{
    m_microseconds = microseconds;
}

quint64 DateTime::GetTime() const
{
    return m_microseconds;
}

QDateTime DateTime::toQDateTime(qint64 zone) const
{
    const auto milliseconds = static_cast<qint64>(m_microseconds / microsecondsPerMillisecond);
    return QDateTime::fromMSecsSinceEpoch(milliseconds,
                                          zone == Local_TimeZone ? Qt::LocalTime : Qt::UTC);
}

quint64 DateTime::fromQDateTime(const QDateTime& time)
{
    const qint64 milliseconds = time.isValid() ? time.toMSecsSinceEpoch() : 0;
    if (milliseconds <= 0)
        return 0;
    constexpr quint64 latest = std::numeric_limits<quint64>::max();
    const auto count = static_cast<quint64>(milliseconds);
    return count > latest / microsecondsPerMillisecond ? latest
                                                       : count * microsecondsPerMillisecond;
}

QString DateTime::toString(const QString& format, qint64 zone) const
{
    const QDateTime time = toQDateTime(zone);
    if (time.date().year() > lastWritableYear)
        return QString();
    if (format.isEmpty())
        return time.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
    const auto microseconds = static_cast<int>(m_microseconds % microsecondsPerMillisecond);
    const QString digits = QStringLiteral("%1").arg(microseconds, 3, 10, QLatin1Char('0'));
    return time.toString(withMicroseconds(format, digits));
}

} // namespace Trov
