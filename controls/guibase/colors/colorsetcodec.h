// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/icolorbase.h>
#include <guibase/guibase_export.h>

#include <QByteArray>
#include <QByteArrayView>

#include <array>

class QIODevice;

/// The content of a colour-set file: the colour ids of the slots in the order of the slots, each a
/// signed 32-bit number, low byte first, and nothing else.
namespace ColorSetCodec {

/// By slot.
using Ids = std::array<qint32, IColorBase::slotCount>;

/// In bytes.
inline constexpr qsizetype fileSize = qsizetype(sizeof(qint32)) * IColorBase::slotCount;

/// `fileSize` bytes.
GUIBASE_EXPORT QByteArray encode(const Ids& ids);

/// Never fails: missing bytes count as zero, bytes past `fileSize` are not looked at.
GUIBASE_EXPORT Ids decode(QByteArrayView bytes);

/// Decodes what the open device yields, of which it reads `fileSize` bytes at most. A read error
/// counts as the end. A buffered device may fetch more on its own.
GUIBASE_EXPORT Ids read(QIODevice& device);

} // namespace ColorSetCodec
