// SPDX-License-Identifier: MIT
#include "qdatetimedisplayformat.h"

#include "datetimereader_p.h"

#include <QCoreApplication>

QDateTimeDisplayFormat::QDateTimeDisplayFormat() = default;

QDateTimeDisplayFormat::~QDateTimeDisplayFormat() = default;

std::unique_ptr<ValueDisplayFormatBase<QDateTime>> QDateTimeDisplayFormat::clone() const
{
    return std::make_unique<QDateTimeDisplayFormat>(*this);
}

QDateTime QDateTimeDisplayFormat::valueFromText(const QString& text, bool* ok) const
{
    const QDateTime value =
        text.size() > longestText
            ? QDateTime()
            : DateTimeReader::read(text, effectiveDateTimeFormat(), shownPresentTime(), locale());
    if (ok != nullptr)
        *ok = value.isValid();
    return value.isValid() ? value : QDateTime();
}

QString QDateTimeDisplayFormat::textFromValue(QDateTime value) const
{
    return m_dateTimeFormat.isNull() ? locale().toString(value, QLocale::LongFormat)
                                     : locale().toString(value, m_dateTimeFormat);
}

QString QDateTimeDisplayFormat::refusalReason(const QString&) const
{
    return QCoreApplication::translate("DisplayFormat", "Type date and time as in \"%1\".")
        .arg(textFromValue(m_presentTime.isValid() ? shownPresentTime()
                                                   : QDateTime::currentDateTime()));
}

std::vector<QDateTime> QDateTimeDisplayFormat::widestValues(const QDateTime& minimum,
                                                            const QDateTime& maximum) const
{
    constexpr int lastDay = 28;
    const QTime time(22, 58, 58, 888);
    std::vector<QDateTime> values{minimum, maximum};
    int longest = 1;
    for (int day = 2; day <= 7; ++day) {
        if (locale().dayName(day).size() > locale().dayName(longest).size())
            longest = day;
    }
    const int firstYear = minimum.date().year();
    for (int month = 0; month < 24; ++month) {
        QDate date(firstYear + month / 12, month % 12 + 1, lastDay);
        date = date.addDays(-((date.dayOfWeek() - longest + 7) % 7));
        const QDateTime value(date, time, Qt::UTC);
        if (value > minimum && value < maximum)
            values.push_back(value);
    }
    return values;
}

QDateTime QDateTimeDisplayFormat::shownPresentTime() const
{
    const QDateTime shown =
        m_presentTime.isValid() ? valueConverter()(m_presentTime, ToDisplay) : QDateTime();
    return shown.isValid() ? shown : QDate(1900, 1, 1).startOfDay();
}

QString QDateTimeDisplayFormat::effectiveDateTimeFormat() const
{
    return m_dateTimeFormat.isNull() ? locale().dateTimeFormat(QLocale::LongFormat)
                                     : m_dateTimeFormat;
}
