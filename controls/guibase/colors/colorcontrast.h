// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/icolorbase.h>
#include <guibase/guibase_export.h>

#include <QColor>
#include <QPalette>

#include <functional>
#include <initializer_list>
#include <optional>

/// How well texts and lines of the colour set stand out from what they are drawn on.
///
/// The figure is the contrast ratio of the Web Content Accessibility Guidelines 2, from 1 (the same
/// colour) to 21 (black and white).
namespace ColorContrast {

/// What the guidelines ask for at least for large texts and for lines (success criteria 1.4.3 and
/// 1.4.11).
inline constexpr double lowest = 3.0;

/// Invalid colours count as black; transparency is left out.
GUIBASE_EXPORT double ratio(const QColor& foreground, const QColor& background);

/// Black or white, whichever stands out more from these backgrounds; of several, the one that it
/// stands out from least counts, as at the ends of a gradient.
GUIBASE_EXPORT QColor blackOrWhiteOn(std::initializer_list<QColor> backgrounds);

/// The smallest ratio of a slot and the slots that it is drawn on. Nothing for slots that are not
/// drawn as texts or lines, and for the grid, which is faint on purpose. `color` gives the colour
/// of a slot.
GUIBASE_EXPORT std::optional<double>
ratioOf(IColorBase::ECOLOR slot, const std::function<QColor(IColorBase::ECOLOR)>& color);

/// For texts that stand in for a missing input: the palette's own colour, or the half transparent
/// one of its texts when that would be hard to see, as in dark palettes that set only some colours.
GUIBASE_EXPORT QColor placeholder(const QPalette& palette);

} // namespace ColorContrast
