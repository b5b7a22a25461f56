// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <guibase/colors/colorcontrast.h>

#include <QColor>

namespace RadioPanes {

/// The contrast that texts, and lines and areas, need against their background: level AA of the Web
/// Content Accessibility Guidelines 2.1.
inline constexpr double textContrast = 4.5;
inline constexpr double lineContrast = ColorContrast::lowest;

/// `wanted` when its contrast to the background is at least `ratio`, else black or white, whichever
/// stands out more.
RADIOPANES_EXPORT QColor readableOn(const QColor& background, const QColor& wanted,
                                    double ratio = textContrast);

} // namespace RadioPanes
