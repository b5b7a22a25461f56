// SPDX-License-Identifier: MIT
#include <guibase/colors/colorsetcodec.h>

#include <QIODevice>
#include <QtEndian>

#include <algorithm>

namespace ColorSetCodec {

QByteArray encode(const Ids& ids)
{
    QByteArray bytes(fileSize, '\0');
    qToLittleEndian<qint32>(ids.data(), IColorBase::slotCount, bytes.data());
    return bytes;
}

Ids decode(QByteArrayView bytes)
{
    std::array<char, fileSize> filled{};
    std::copy_n(bytes.begin(), std::min(bytes.size(), fileSize), filled.begin());
    Ids ids{};
    qFromLittleEndian<qint32>(filled.data(), IColorBase::slotCount, ids.data());
    return ids;
}

Ids read(QIODevice& device)
{
    std::array<char, fileSize> bytes{};
    qsizetype size = 0;
    while (size < fileSize) {
        const qint64 got = device.read(bytes.data() + size, fileSize - size);
        if (got <= 0)
            break;
        size += got;
    }
    return decode(QByteArrayView(bytes.data(), size));
}

} // namespace ColorSetCodec
