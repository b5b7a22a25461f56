// SPDX-License-Identifier: MIT
#include "hexadecimal_p.h"

#include <algorithm>

namespace {

bool isDigit(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= u'0' && code <= u'9') || (code >= u'a' && code <= u'f') ||
           (code >= u'A' && code <= u'F');
}

} // namespace

std::optional<QByteArray> Hexadecimal::decode(const QString& text)
{
    if (text.size() % 2 != 0 || !std::all_of(text.cbegin(), text.cend(), &isDigit))
        return std::nullopt;
    return QByteArray::fromHex(text.toLatin1());
}

QString Hexadecimal::encode(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex());
}
