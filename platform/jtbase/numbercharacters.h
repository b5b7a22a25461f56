// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QtGlobal>

/// The characters that people and locales write numbers with: the one table that all readers of
/// numbers share.
namespace NumberCharacters {

/// As meaningOf(), for characters that are not ASCII.
JTBASE_EXPORT char meaningBeyondAscii(char32_t c);

/// The ASCII character that means the same in a number, or a null character for what occurs in
/// none:
/// - '0' to '9' for decimal digits of any script, '+' and '-' for signs (the en dash is a minus);
/// - '.' and ',' for the marks that may be decimal signs;
/// - '\'' for apostrophes and ' ' for blanks, both of which only part groups;
/// - 'e' for the sign of the exponent.
inline char meaningOf(char32_t c)
{
    if (c >= 0x80)
        return meaningBeyondAscii(c);
    if (c >= U'0' && c <= U'9')
        return static_cast<char>(c);
    switch (c) {
    case U'.':
    case U',':
    case U'-':
    case U'+':
    case U'\'':
    case U' ':
    case U'e':
        return static_cast<char>(c);
    default:
        return c == U'E' ? 'e' : '\0';
    }
}

/// Marks that set the direction of writing; some locales put them around signs.
constexpr bool isDirectionMark(char32_t c)
{
    return c == U'\u200E' || c == U'\u200F' || c == U'\u061C';
}

} // namespace NumberCharacters
