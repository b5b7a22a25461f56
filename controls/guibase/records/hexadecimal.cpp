// SPDX-License-Identifier: MIT
#include "hexadecimal.h"

namespace {

/// -1 for a character that is no digit.
int valueOf(QChar character)
{
    const char16_t code = character.unicode();
    if (code >= u'0' && code <= u'9')
        return code - u'0';
    const int letter = code | 0x20;
    return letter >= u'a' && letter <= u'f' ? letter - u'a' + 10 : -1;
}

} // namespace

std::optional<QByteArray> Hexadecimal::decode(const QString& text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    QByteArray bytes(text.size() / 2, Qt::Uninitialized);
    const QChar* digit = text.constData();
    for (char& byte : bytes) {
        const int high = valueOf(*digit++);
        const int low = valueOf(*digit++);
        if (high < 0 || low < 0)
            return std::nullopt;
        byte = static_cast<char>(high * 16 + low);
    }
    return bytes;
}

QString Hexadecimal::encode(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex());
}
