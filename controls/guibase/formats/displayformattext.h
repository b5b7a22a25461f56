// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/displayaffix.h>
#include <guibase/guibase_export.h>

#include <QLocale>
#include <QString>

/// The signs of a locale that numbers are written and read with.
struct LocaleNotation
{
    LocaleNotation() = default;
    /// Asks the locale once: it answers slowly.
    explicit LocaleNotation(const QLocale& locale);

    /// Parts the whole number from its decimals.
    QChar decimalPoint = u'.';
    /// ASCII digits and minus, no group separators, no other number options: such numbers can be
    /// written without the help of the locale.
    bool isPlain = false;
};

/// What a display format has around its value, whatever type that is: locale, prefix and suffix.
class GUIBASE_EXPORT DisplayFormatText
{
public:
    /// The suffix at the end of the text, behind which there may be blanks only.
    DisplayAffix::Match suffixMatch(const QString& text) const;

    /// Where the bare number stands in a text with or without prefix and suffix.
    struct Range
    {
        /// The number stands from `start` up to, but without, `end`.
        qsizetype start;
        qsizetype end;
    };
    /// Where the bare number stands.
    Range bareRange(const QString& text) const;

    /// At first the default locale, without group separators in both directions.
    const QLocale& locale() const { return m_locale; }
    void setLocale(const QLocale& locale);
    /// Whether numbers are read by the rules of locale(), or (at first) of the C locale.
    bool useLocale() const { return m_useLocale; }
    void setUseLocale(bool use) { m_useLocale = use; }

    /// Given without the blank towards the number, which is always written: "dB" shows "-80 dB".
    /// The pattern follows the text until setPrefixPattern() sets another; so for the suffix.
    const QString& prefix() const { return m_prefix.text(); }
    void setPrefix(const QString& prefix) { m_prefix.setText(prefix); }
    QRegularExpression prefixPattern() const { return m_prefix.pattern(); }
    void setPrefixPattern(const QRegularExpression& pattern) { m_prefix.setPattern(pattern); }
    const QString& suffix() const { return m_suffix.text(); }
    void setSuffix(const QString& suffix) { m_suffix.setText(suffix); }
    QRegularExpression suffixPattern() const { return m_suffix.pattern(); }
    void setSuffixPattern(const QRegularExpression& pattern) { m_suffix.setPattern(pattern); }

    /// Whether a text without the suffix is refused; not at first. For formats that differ in the
    /// suffix only, so that a bare number is never read in another unit than the one shown.
    bool isSuffixRequired() const { return m_suffixRequired; }
    void setSuffixRequired(bool required) { m_suffixRequired = required; }

protected:
    DisplayFormatText();
    DisplayFormatText(const DisplayFormatText& other);
    DisplayFormatText& operator=(const DisplayFormatText& other);
    ~DisplayFormatText();

    /// For derived formats: the signs of locale(), and a bare text with prefix, suffix and their
    /// blanks.
    const LocaleNotation& notation() const { return m_notation; }
    QString withAffixes(const QString& bare) const;

private:
    QLocale m_locale;
    LocaleNotation m_notation;
    bool m_useLocale = false;
    DisplayAffix m_prefix;
    DisplayAffix m_suffix;
    bool m_suffixRequired = false;
};
