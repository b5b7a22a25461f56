// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/valuedisplayformatbase.h>

/// Writes and reads points in time, in the zone that they have themselves.
class GUIBASE_EXPORT QDateTimeDisplayFormat : public ValueDisplayFormatBase<QDateTime>
{
public:
    QDateTimeDisplayFormat();
    ~QDateTimeDisplayFormat() override;

    std::unique_ptr<ValueDisplayFormatBase<QDateTime>> clone() const override;
    /// Reads what textFromValue() writes, typed over: with a weekday that does not fit, without
    /// leading zeros, or without the zone. What the text does not tell is that of presentTime().
    QDateTime valueFromText(const QString& text, bool* ok) const override;
    QString textFromValue(QDateTime value) const override;
    QString refusalReason(const QString& text) const override;
    /// A day of each month, with the longest name of a weekday.
    std::vector<QDateTime> widestValues(const QDateTime& minimum,
                                        const QDateTime& maximum) const override;

    /// As QLocale::toString(QDateTime, QString) takes it; null (at first) means the long format of
    /// the locale.
    const QString& dateTimeFormat() const { return m_dateTimeFormat; }
    void setDateTimeFormat(const QString& format) { m_dateTimeFormat = format; }
    /// The stored value that a text is typed over. A text takes from it the zone, if it tells none,
    /// the sections that the format does not show, and the century of years of two digits. Where
    /// clocks show a time twice, its offset decides. At first null, which stands for the start of
    /// the year 1900 in local time.
    const QDateTime& presentTime() const { return m_presentTime; }
    void setPresentTime(const QDateTime& time) { m_presentTime = time; }
    /// Longer texts are refused unread.
    static constexpr qsizetype longestText = 1024;

    /// The format that is really used.
    QString effectiveDateTimeFormat() const;

private:
    QDateTime shownPresentTime() const;

    QString m_dateTimeFormat;
    QDateTime m_presentTime;
};
