// SPDX-License-Identifier: MIT
#include "qdatetimedisplayformat.h"

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
            : (m_dateTimeFormat.isNull() ? locale().toDateTime(text, QLocale::LongFormat)
                                         : locale().toDateTime(text, m_dateTimeFormat));
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
    return QCoreApplication::translate("DisplayFormat", "Enter date and time as \"%1\".")
        .arg(effectiveDateTimeFormat());
}

QString QDateTimeDisplayFormat::effectiveDateTimeFormat() const
{
    return m_dateTimeFormat.isNull() ? locale().dateTimeFormat(QLocale::LongFormat)
                                     : m_dateTimeFormat;
}
