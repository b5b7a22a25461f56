// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>
#include <QVarLengthArray>

#include <concepts>
#include <optional>

class QLocale;

/// Numbers as people type and paste them: what can be read in one way only is read.
namespace TypedNumber {

enum class Outcome {
    Number,
    NotANumber,
    Ambiguous, ///< The only separator may be the decimal one or part thousands.
};

using Ascii = QVarLengthArray<char, 128>;

/// Writes the decimal number to `ascii` in C notation: '-', digits, '.', 'e', without groups. It
/// need not be a complete number: digits may be missing. A single separator that is `decimalPoint`
/// is the decimal one. Digits may be of any script.
Outcome normalize(QStringView text, QChar decimalPoint, Ascii& ascii);

/// The two numbers that an ambiguous text may stand for, written so that they can be read.
struct Meanings
{
    QString decimal; ///< With the separator as decimal sign: "1.500".
    QString whole;   ///< Without it: "1500".
};
/// Nothing for texts that are not ambiguous.
std::optional<Meanings> meaningsOf(QStringView text, QChar decimalPoint);

/// Whether a text with group separators that the locale accepts begins with a zero, which no
/// thousands do: "0.500".
bool hasZeroGroup(QStringView text, const QLocale& locale);

/// The number in a text that consists of ASCII digits of the base, with a sign and blanks around
/// it: what any locale reads, and fast. Nothing does not mean that the text is no number.
template <typename T>
std::optional<T> readPlain(QStringView text, int base = 10);

/// The number in C notation, or nothing.
template <std::integral T>
std::optional<T> fromAscii(const Ascii& ascii);
std::optional<double> realFromAscii(const Ascii& ascii);

/// The text without blanks around it, cut where it is too long for a message.
QString shortened(QStringView text);

/// Tell the user what is wrong with a text, and what to type instead.
QString refusalReason(QStringView text, const QString& example);
QString ambiguityReason(const QString& one, const QString& other);
QString separatorReason(const QString& whole);

} // namespace TypedNumber
