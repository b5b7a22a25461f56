// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// One bit for each ASCII letter that occurs.
class LetterSet
{
public:
    explicit LetterSet(QStringView text)
    {
        for (const QChar character : text)
            m_bits |= bit(character.unicode());
    }
    bool contains(char16_t letter) const { return (m_bits & bit(letter)) != 0; }
    /// `letter` is small.
    bool containsEitherCase(char16_t letter) const
    {
        return (m_bits & (bit(letter) | bit(letter ^ 0x20))) != 0;
    }

    static constexpr bool isLetter(char16_t character)
    {
        return static_cast<unsigned>((character | 0x20) - u'a') < 26;
    }

private:
    static constexpr quint64 bit(char16_t character)
    {
        return isLetter(character) ? quint64(1) << (character - u'A') : 0;
    }

    quint64 m_bits = 0;
};
