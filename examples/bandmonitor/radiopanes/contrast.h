// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace bandmonitor {

/// The contrast that texts, and lines and areas, need against their background: level AA of the Web
/// Content Accessibility Guidelines 2.1.
inline constexpr double textContrast = 4.5;
inline constexpr double lineContrast = 3;

/// The contrast ratio of the same guidelines, 1 to 21. Alpha does not count.
double contrastRatio(const QColor& a, const QColor& b);

/// `wanted` when its contrast to the background is at least `ratio`, else black or white, whichever
/// stands out more.
QColor readableOn(const QColor& background, const QColor& wanted, double ratio = textContrast);

} // namespace bandmonitor
