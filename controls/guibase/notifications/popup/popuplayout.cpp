// SPDX-License-Identifier: MIT
#include "popuplayout.h"

#include <algorithm>

namespace {

qsizetype fittingCount(const QList<qint64>& offsets, const QList<quint32>& heights, qint64 limit)
{
    qsizetype count = 0;
    while (count < heights.size() &&
           offsets.at(count) + heights.at(count) + PopupLayout::gap <= limit)
        ++count;
    return count;
}

} // namespace

PopupLayout::Plan PopupLayout::plan(int areaHeight, const QList<quint32>& heights, int moreHeight)
{
    Plan plan;
    qint64 offset = 0;
    for (const quint32 height : heights) {
        plan.offsets << offset;
        offset += qint64{height} + gap;
    }
    const qint64 limit = areaHeight - 1;
    plan.shownCount = fittingCount(plan.offsets, heights, limit);
    if (plan.shownCount == heights.size())
        return plan;
    const qint64 rest = limit - moreHeight - gap;
    plan.shownCount = std::max<qsizetype>(1, fittingCount(plan.offsets, heights, rest));
    const qint64 next = plan.shownCount < heights.size() ? plan.offsets.at(plan.shownCount) : rest;
    plan.moreOffset = std::clamp<qint64>(next, 0, std::max<qint64>(0, rest));
    return plan;
}

QPoint PopupLayout::position(const QRect& area, const QSize& popup, qint64 offset)
{
    const qint64 y = area.bottom() - offset - popup.height() - gap;
    constexpr qint64 farAway = -(1 << 20); // What no window system takes is above every screen.
    return {area.right() - margin - (popup.width() - 1), static_cast<int>(std::max(y, farAway))};
}

double PopupLayout::opacity(int areaHeight, int popupHeight, qint64 offset)
{
    if (areaHeight <= 0)
        return 1.0;
    const auto distance = static_cast<double>(offset - popupHeight - gap);
    return std::max(0.0, 1.0 - distance / areaHeight);
}
