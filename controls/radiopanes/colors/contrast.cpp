// SPDX-License-Identifier: MIT
#include "contrast.h"

namespace RadioPanes {

QColor readableOn(const QColor& background, const QColor& wanted, double ratio)
{
    const bool stands = ColorContrast::ratio(background, wanted) >= ratio;
    return stands ? wanted : ColorContrast::blackOrWhiteOn({background});
}

} // namespace RadioPanes
