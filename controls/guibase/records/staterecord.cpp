// SPDX-License-Identifier: MIT
#include "staterecord.h"

#include "hexadecimal.h"

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

std::optional<StateRecord::Reading> parsed(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(streamVersion);
    quint32 count = 0;
    stream >> count;
    if (count > StateRecord::maximumModes)
        return std::nullopt;
    StateRecord::Reading reading;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        quint32 mode = 0;
        QString text;
        stream >> mode >> text;
        if (auto state = Hexadecimal::decode(text))
            reading.layouts.insert_or_assign(mode, *std::move(state));
        else
            reading.damagedModes.append(mode);
    }
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return std::nullopt;
    return reading;
}

/// The text for the first `count` layouts; empty when it is beyond one of the limits.
QString encoded(const StateRecord::Layouts& layouts, std::size_t count)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << static_cast<quint32>(count);
    const auto end = std::next(layouts.begin(), static_cast<std::ptrdiff_t>(count));
    for (auto layout = layouts.begin(); layout != end; ++layout)
        stream << layout->first << Hexadecimal::encode(layout->second);
    if (bytes.size() > qsizetype{StateRecord::maximumBytes})
        return {};
    const QByteArray packed = qCompress(bytes);
    return packed.size() <= StateRecord::maximumPackedBytes ? tag + QLatin1String(packed.toBase64())
                                                            : QString();
}

} // namespace

QString StateRecord::encode(const Layouts& layouts)
{
    std::size_t tooMany = std::min<std::size_t>(layouts.size(), maximumModes) + 1;
    std::size_t best = 0;
    QString text = encoded(layouts, tooMany - 1);
    if (!text.isEmpty())
        return text;
    while (tooMany - best > 1) {
        const std::size_t middle = best + (tooMany - best) / 2;
        const QString candidate = encoded(layouts, middle);
        (candidate.isEmpty() ? tooMany : best) = middle;
        if (!candidate.isEmpty())
            text = candidate;
    }
    return text.isEmpty() ? encoded(layouts, 0) : text;
}

std::optional<StateRecord::Reading> StateRecord::decode(const QString& text)
{
    if (!text.startsWith(tag))
        return std::nullopt;
    const auto packed = QByteArray::fromBase64Encoding(QStringView(text).mid(tag.size()).toLatin1(),
                                                       QByteArray::AbortOnBase64DecodingErrors);
    if (!packed)
        return std::nullopt;
    const std::optional<QByteArray> bytes = uncompressed(packed.decoded);
    return bytes ? parsed(*bytes) : std::nullopt;
}
