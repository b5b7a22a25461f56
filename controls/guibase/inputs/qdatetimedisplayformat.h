// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/valuedisplayformatbase.h>

/// Writes and reads points in time, in the zone that they have themselves.
class GUIBASE_EXPORT QDateTimeDisplayFormat : public ValueDisplayFormatBase<QDateTime>
{
public:
    QDateTimeDisplayFormat();
    ~QDateTimeDisplayFormat() override;

    std::unique_ptr<ValueDisplayFormatBase<QDateTime>> clone() const override;
    /// A text without a zone is taken for local time.
    QDateTime valueFromText(const QString& text, bool* ok) const override;
    QString textFromValue(QDateTime value) const override;
    QString refusalReason(const QString& text) const override;

    /// As QLocale::toString(QDateTime, QString) takes it; null (at first) means the long format of
    /// the locale.
    const QString& dateTimeFormat() const { return m_dateTimeFormat; }
    void setDateTimeFormat(const QString& format) { m_dateTimeFormat = format; }
    /// Longer texts are refused unread.
    static constexpr qsizetype longestText = 1024;

    /// The format that is really used.
    QString effectiveDateTimeFormat() const;

private:
    QString m_dateTimeFormat;
};
