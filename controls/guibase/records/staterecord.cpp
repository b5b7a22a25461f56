// SPDX-License-Identifier: MIT
#include "staterecord.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <iterator>

namespace {

/// Marks the format, and tells the version of the toolkit that it was first written with.
const QLatin1String tag("DG906NC44LjY=");
constexpr QDataStream::Version streamVersion = QDataStream::Qt_4_8;

/// Inflates only what says beforehand, in its first four bytes, that it stays within the bound. As
/// the toolkit inflates on when that was a lie, the input is bounded too: it grows about
/// thousandfold at most.
std::optional<QByteArray> uncompressed(const QByteArray& bytes)
{
    constexpr qsizetype headerSize = sizeof(quint32);
    if (bytes.size() <= headerSize || bytes.size() > StateRecord::maximumPackedBytes)
        return std::nullopt;
    const auto size = qFromBigEndian<quint32>(bytes.constData());
    if (size == 0 || size > StateRecord::maximumBytes)
        return std::nullopt;
    const QByteArray result = qUncompress(bytes);
    if (result.size() != static_cast<qsizetype>(size))
        return std::nullopt;
    return result;
}

std::optional<StateRecord::Layouts> parsed(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(streamVersion);
    quint32 count = 0;
    stream >> count;
    if (count > StateRecord::maximumModes)
        return std::nullopt;
    StateRecord::Layouts layouts;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        quint32 mode = 0;
        QString text;
        stream >> mode >> text;
        layouts.insert_or_assign(mode, text);
    }
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return std::nullopt;
    return layouts;
}

bool isWithinLimits(const StateRecord::Layouts& layouts, const QByteArray& bytes,
                    const QByteArray& packed)
{
    return layouts.size() <= StateRecord::maximumModes &&
           bytes.size() <= qsizetype{StateRecord::maximumBytes} &&
           packed.size() <= StateRecord::maximumPackedBytes;
}

} // namespace

QString StateRecord::encode(const Layouts& layouts)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << static_cast<quint32>(layouts.size());
    for (const auto& [mode, text] : layouts)
        stream << mode << text;
    const QByteArray packed = qCompress(bytes);
    if (isWithinLimits(layouts, bytes, packed))
        return tag + QLatin1String(packed.toBase64());
    const std::size_t most = std::min<std::size_t>(layouts.size(), 2 * maximumModes);
    return encode(Layouts(layouts.begin(), std::next(layouts.begin(), std::ptrdiff_t(most / 2))));
}

bool StateRecord::isTagged(const QString& text)
{
    return text.startsWith(tag);
}

std::optional<StateRecord::Layouts> StateRecord::decode(const QString& text)
{
    if (!isTagged(text))
        return std::nullopt;
    const auto packed = QByteArray::fromBase64Encoding(QStringView(text).mid(tag.size()).toLatin1(),
                                                       QByteArray::AbortOnBase64DecodingErrors);
    if (!packed)
        return std::nullopt;
    const std::optional<QByteArray> bytes = uncompressed(packed.decoded);
    return bytes ? parsed(*bytes) : std::nullopt;
}
