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
    return QCoreApplication::translate("DisplayFormat", "Enter date and time as in \"%1\".")
        .arg(textFromValue(m_presentTime.isValid() ? m_presentTime : QDateTime::currentDateTime()));
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
