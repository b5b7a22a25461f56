// SPDX-License-Identifier: MIT
#include "numbercharacters.h"

#include <QChar>

#include <algorithm>
#include <iterator>

namespace {

struct Character
{
    char32_t character;
    char meaning;
};

constexpr Character table[] = {
    {U'\u00A0', ' '},  // No-break space
    {U'\u066B', '.'},  // Arabic decimal separator
    {U'\u066C', '\''}, // Arabic thousands separator
    {U'\u2007', ' '},  // Figure space
    {U'\u2009', ' '},  // Thin space
    {U'\u2013', '-'},  // En dash
    {U'\u2019', '\''}, // Right single quotation mark
    {U'\u202F', ' '},  // Narrow no-break space
    {U'\u2212', '-'},  // Minus sign
    {U'\uFF0B', '+'},  // Full-width signs and letters
    {U'\uFF0C', ','},  {U'\uFF0D', '-'}, {U'\uFF0E', '.'}, {U'\uFF25', 'e'}, {U'\uFF45', 'e'},
};

} // namespace

char NumberCharacters::meaningBeyondAscii(char32_t c)
{
    const auto* const found =
        std::find_if(std::begin(table), std::end(table),
                     [c](const Character& row) { return row.character == c; });
    if (found != std::end(table))
        return found->meaning;
    return QChar::isDigit(c) ? static_cast<char>('0' + QChar::digitValue(c)) : '\0';
}
