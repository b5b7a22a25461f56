// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>

#include <optional>

/// The parts that numbers are read from, one after the other; see NumberHelpers for the rules.
namespace NumberReading {

/// How many digits stand between group separators.
struct GroupSizes
{
    int last = 0;  ///< Between the last separator and the end of the integer.
    int other = 0; ///< In the groups before.
    int first = 0; ///< At most in the first one; some locales part no single digit from it.
};

/// How a locale writes numbers; a null locale stands for the C locale without group separators.
struct Notation
{
    explicit Notation(const QLocale* locale);

    char32_t decimalPoint = U'.';
    char32_t groupSeparator = 0; ///< 0: not accepted.
    QString exponent;
};

/// Checks while reading that group separators stand where they belong.
class GroupCheck
{
public:
    void digit() { ++m_run; }
    /// At a group separator; false when it cannot stand here.
    bool separator(GroupSizes sizes)
    {
        const bool fits = m_separated ? m_run == sizes.other : m_run >= 1 && m_run <= sizes.first;
        m_separated = true;
        m_run = 0;
        return fits;
    }
    bool end(GroupSizes sizes) const { return !m_separated || m_run == sizes.last; }
    bool isSeparated() const { return m_separated; }

private:
    qsizetype m_run = 0;
    bool m_separated = false;
};

/// Takes a number apart from the left. The locale is asked only when something else than digits and
/// signs comes up.
class Scanner
{
public:
    Scanner(QStringView text, const QLocale* locale)
        : m_rest(text.trimmed())
        , m_locale(locale)
    {}

    bool atEnd() const { return m_rest.isEmpty(); }
    /// To be asked after takeGroupSeparator() took one.
    GroupSizes groupSizes();

    /// Takes a sign if there is one: '-' or '+', or a null character.
    char takeSign();
    /// Takes a digit of the base: its value, or -1 when the next character is none.
    int takeDigit(int base);
    bool takeGroupSeparator();
    bool takeDecimalPoint();
    bool takeExponent();

private:
    const Notation& notation()
    {
        if (!m_notation)
            m_notation.emplace(m_locale);
        return *m_notation;
    }
    void drop(qsizetype count) { m_rest = m_rest.sliced(count); }

    QStringView m_rest;
    const QLocale* m_locale;
    std::optional<Notation> m_notation;
    std::optional<GroupSizes> m_groupSizes;
};

} // namespace NumberReading
