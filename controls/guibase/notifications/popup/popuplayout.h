// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>

/// Where the pop-ups of a stack go: upwards from the lower right corner of an area, the newest at
/// the bottom. Pure; all lengths in pixels.
namespace PopupLayout {

/// Between neighbours, and to the lower edge.
inline constexpr int gap = 6;
/// To the right edge.
inline constexpr int margin = 7;

struct Plan
{
    /// The offset of each pop-up from the bottom, the newest first; of all, shown or not.
    QList<qint64> offsets;
    /// So many of the newest are shown. The newest always is.
    qsizetype shownCount = 0;
    /// The offset of what stands for the others.
    qint64 moreOffset = 0;
};

/// Heights with the newest first. When not all fit, room is left for one of `moreHeight`.
Plan plan(int areaHeight, const QList<quint32>& heights, int moreHeight);

QPoint position(const QRect& area, const QSize& popup, qint64 offset);
/// From 0; above 1 for the newest, which a window takes as 1.
double opacity(int areaHeight, int popupHeight, qint64 offset);

} // namespace PopupLayout
