// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

#include <cmath>

namespace RadioPanes {

/// The colour at that share, 0 to 1, of the way.
inline QRgb mixed(QRgb from, QRgb to, double share)
{
    const auto mix = [share](int a, int b) {
        return static_cast<int>(std::lround(a + share * (b - a)));
    };
    return qRgb(mix(qRed(from), qRed(to)), mix(qGreen(from), qGreen(to)),
                mix(qBlue(from), qBlue(to)));
}

} // namespace RadioPanes
