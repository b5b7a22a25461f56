// SPDX-License-Identifier: MIT
#include "autohidestate.h"

#include "hexadecimal.h"

#include <QDataStream>
#include <QIODevice>

#include <limits>

namespace {

constexpr quint32 magic = 0x47414831; // "GAH1"
constexpr quint8 popupOnHoverFlag = 1;
constexpr qsizetype maximumSize = 1 << 20;
constexpr qsizetype maximumNameSize = std::numeric_limits<quint16>::max();

quint16 checksum(QByteArrayView bytes)
{
    return qChecksum(bytes);
}

} // namespace

QByteArray AutoHideState::toBytes() const
{
    QByteArray entries;
    QDataStream entryStream(&entries, QIODevice::WriteOnly);
    quint16 count = 0;
    for (auto side = sides.cbegin(); side != sides.cend(); ++side) {
        const QByteArray name = side.key().toUtf8();
        if (name.isEmpty() || name.size() > maximumNameSize ||
            entries.size() + name.size() > maximumSize / 2)
            continue;
        entryStream << static_cast<quint8>(side.value()) << static_cast<quint16>(name.size());
        entryStream.writeRawData(name.constData(), static_cast<int>(name.size()));
        ++count;
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << magic << quint8(popupOnHover ? popupOnHoverFlag : 0) << count;
    stream.writeRawData(entries.constData(), static_cast<int>(entries.size()));
    stream << checksum(bytes);
    return bytes;
}

std::optional<AutoHideState> AutoHideState::fromBytes(const QByteArray& bytes)
{
    const qsizetype contentSize = bytes.size() - qsizetype(sizeof(quint16));
    if (contentSize < 0 || bytes.size() > maximumSize)
        return {};
    QDataStream stream(bytes);
    quint32 foundMagic = 0;
    quint8 flags = 0;
    quint16 count = 0;
    stream >> foundMagic >> flags >> count;
    if (stream.status() != QDataStream::Ok || foundMagic != magic || flags > popupOnHoverFlag)
        return {};
    AutoHideState state;
    state.popupOnHover = flags != 0;
    for (int i = 0; i < count; ++i) {
        quint8 side = 0;
        quint16 size = 0;
        stream >> side >> size;
        QByteArray name(size, '\0');
        if (stream.readRawData(name.data(), size) != size || size == 0 ||
            (side != Qt::LeftToolBarArea && side != Qt::RightToolBarArea))
            return {};
        state.sides.insert(QString::fromUtf8(name), static_cast<Qt::ToolBarArea>(side));
    }
    quint16 foundChecksum = 0;
    stream >> foundChecksum;
    if (stream.status() != QDataStream::Ok || !stream.atEnd() ||
        foundChecksum != checksum(QByteArrayView(bytes).first(contentSize)))
        return {};
    return state;
}

QString AutoHideState::toText() const
{
    return Hexadecimal::encode(toBytes());
}

std::optional<AutoHideState> AutoHideState::fromText(const QString& text)
{
    const auto bytes = Hexadecimal::decode(text);
    return bytes ? fromBytes(*bytes) : std::nullopt;
}
