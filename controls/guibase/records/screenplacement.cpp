// SPDX-License-Identifier: MIT
#include "screenplacement.h"

#include <QRegion>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

qint64 sizeOf(const QRect& rectangle)
{
    return rectangle.isEmpty() ? 0 : qint64{rectangle.width()} * rectangle.height();
}

qint64 squaredDistance(const QRect& one, const QRect& other)
{
    const qint64 x = qint64{one.center().x()} - other.center().x();
    const qint64 y = qint64{one.center().y()} - other.center().y();
    return x * x + y * y;
}

} // namespace

int ScreenPlacement::homeOf(const QRect& window, const QList<QRect>& areas)
{
    int home = -1;
    std::pair<qint64, qint64> best(-1, std::numeric_limits<qint64>::lowest());
    for (int i = 0; i < areas.size(); ++i) {
        const QRect& area = areas.at(i);
        const std::pair merit(sizeOf(window & area), -squaredDistance(window, area));
        if (!area.isEmpty() && merit > best) {
            best = merit;
            home = i;
        }
    }
    return home;
}

QRect ScreenPlacement::reachable(const QRect& window, const QList<QRect>& areas)
{
    const int home = homeOf(window, areas);
    if (home < 0)
        return window;
    QRegion outside(window);
    for (const QRect& area : areas)
        outside -= area;
    if (outside.isEmpty())
        return window;
    const QRect& area = areas.at(home);
    QRect result(window.topLeft(), window.size().boundedTo(area.size()));
    result.moveLeft(
        std::clamp(result.left(), area.left(), area.left() + area.width() - result.width()));
    result.moveTop(
        std::clamp(result.top(), area.top(), area.top() + area.height() - result.height()));
    return result;
}

bool ScreenPlacement::isReachable(const QRect& window, const QList<QRect>& areas)
{
    constexpr QSize edge(100, 20);
    const QRect upperEdge(window.topLeft(), QSize(window.width(), edge.height()));
    const QSize least(std::min(edge.width(), window.width()), edge.height() / 2);
    return areas.isEmpty() || std::any_of(areas.cbegin(), areas.cend(), [&](const QRect& area) {
               const QRect shown = upperEdge & area;
               return shown.width() >= least.width() && shown.height() >= least.height();
           });
}
