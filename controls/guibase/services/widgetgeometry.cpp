// SPDX-License-Identifier: MIT
#include "widgetgeometry_p.h"

#include <QDataStream>
#include <QRect>

#include <algorithm>
#include <cctype>
#include <iterator>

namespace {

constexpr quint32 magicNumber = 0x1D9D0CB;
/// Sizes in bytes that versions 1 to 3 of the toolkit's layout have.
constexpr qsizetype sizeOfVersion[] = {46, 50, 66};
constexpr int farthestPosition = 1 << 20;

bool isPlausible(const QRect& rectangle)
{
    const int edges[] = {rectangle.left(), rectangle.top(), rectangle.right(), rectangle.bottom()};
    return std::all_of(std::begin(edges), std::end(edges), [](int edge) {
        return edge >= -farthestPosition && edge <= farthestPosition;
    });
}

bool isGeometry(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_4_0);
    quint32 magic = 0;
    quint16 major = 0;
    quint16 minor = 0;
    QRect frame;
    QRect normal;
    stream >> magic >> major >> minor >> frame >> normal;
    return stream.status() == QDataStream::Ok && magic == magicNumber && major >= 1 &&
           major <= std::size(sizeOfVersion) && bytes.size() == sizeOfVersion[major - 1] &&
           isPlausible(frame) && isPlausible(normal);
}

bool isHexadecimal(const QByteArray& digits)
{
    return digits.size() % 2 == 0 && std::all_of(digits.cbegin(), digits.cend(), [](char digit) {
               return std::isxdigit(static_cast<unsigned char>(digit)) != 0;
           });
}

} // namespace

QByteArray WidgetGeometry::fromText(const QString& text)
{
    const QByteArray digits = text.toLatin1();
    if (!isHexadecimal(digits))
        return {};
    QByteArray bytes = QByteArray::fromHex(digits);
    return isGeometry(bytes) ? bytes : QByteArray();
}

QString WidgetGeometry::toText(const QByteArray& geometry)
{
    return QString::fromLatin1(geometry.toHex());
}
