// SPDX-License-Identifier: MIT
#include "splitterstatecheck.h"

#include "statewalk.h"

#include <QtCore/qnamespace.h>

#include <algorithm>
#include <utility>

std::optional<QList<int>> SplitterStateCheck::sizes(const QByteArray& state)
{
    constexpr qint32 stateMarker = 0xff;
    constexpr qint32 maximumWidgets = 4096;
    constexpr qint32 broadestHandle = 256;
    constexpr qint32 farthest = 1 << 20;
    StateWalk walk(state);
    walk.number(stateMarker, stateMarker);
    const qint32 version = walk.number(0, 1);
    const qint32 widgets = walk.number(0, maximumWidgets);
    QList<int> sizes;
    for (qint32 i = 0; i < widgets && walk.isFine(); ++i)
        sizes.append(walk.number(-1, farthest));
    walk.byte(0, 1);                 // children collapsible
    walk.number(-1, broadestHandle); // -1: the style's
    walk.byte(0, 1);                 // opaque resizing
    walk.number(Qt::Horizontal, Qt::Vertical);
    if (version >= 1)
        walk.byte(0, 1); // opaque resizing was set
    return walk.isFine() && walk.atEnd() ? std::optional(std::move(sizes)) : std::nullopt;
}

QList<int> SplitterStateCheck::withHidden(QList<int> sizes, const QList<int>& stateSizes)
{
    for (qsizetype i = 0; i < std::min(sizes.size(), stateSizes.size()); ++i) {
        if (sizes.at(i) == 0)
            sizes[i] = stateSizes.at(i);
    }
    return sizes;
}
