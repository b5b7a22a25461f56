// SPDX-License-Identifier: MIT
#include "geometryrecord.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <iterator>

namespace {

constexpr quint32 magicNumber = 0x1D9D0CB;
/// In bytes, by version.
constexpr qsizetype sizeOfVersion[] = {46, 50, 66};

bool isPlausible(const QRect& rectangle)
{
    const int edges[] = {rectangle.left(), rectangle.top(), rectangle.right(), rectangle.bottom()};
    return std::all_of(std::begin(edges), std::end(edges),
                       [](int edge) {
                           return edge >= -GeometryRecord::farthestPosition &&
                                  edge <= GeometryRecord::farthestPosition;
                       }) &&
           rectangle.width() >= 0 && rectangle.height() >= 0;
}

} // namespace

std::optional<GeometryRecord> GeometryRecord::fromBytes(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_4_8);
    GeometryRecord record;
    quint32 magic = 0;
    stream >> magic >> record.version >> record.minorVersion;
    if (magic != magicNumber || record.version < 1 || record.version > std::size(sizeOfVersion) ||
        bytes.size() != sizeOfVersion[record.version - 1])
        return std::nullopt;
    stream >> record.frame >> record.normal >> record.screen >> record.maximized >>
        record.fullScreen;
    record.geometry = record.normal;
    if (record.version >= 2)
        stream >> record.screenWidth;
    if (record.version >= 3)
        stream >> record.geometry;
    const bool isWhole = stream.status() == QDataStream::Ok;
    if (!isWhole || !isPlausible(record.frame) || !isPlausible(record.normal) ||
        !isPlausible(record.geometry))
        return std::nullopt;
    return record;
}

void GeometryRecord::moveTo(const GeometryRecord& other)
{
    normal.moveTopLeft(other.normal.topLeft());
    geometry.moveTopLeft(isNormal() ? normal.topLeft() : other.geometry.topLeft());
    frame = geometry.adjusted(other.frame.left() - other.geometry.left(),
                              other.frame.top() - other.geometry.top(),
                              other.frame.right() - other.geometry.right(),
                              other.frame.bottom() - other.geometry.bottom());
    screen = other.screen;
    screenWidth = other.screenWidth;
}

QByteArray GeometryRecord::toBytes() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_4_8);
    stream << magicNumber << version << minorVersion << frame << normal << screen << maximized
           << fullScreen;
    if (version >= 2)
        stream << screenWidth;
    if (version >= 3)
        stream << geometry;
    return bytes;
}
