// SPDX-License-Identifier: MIT
#include "contrast.h"

#include <guibase/colors/colorcontrast.h>

namespace RadioPanes {

QColor readableOn(const QColor& background, const QColor& wanted, double ratio)
{
    if (ColorContrast::ratio(background, wanted) >= ratio)
        return wanted;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return ColorContrast::ratio(background, black) > ColorContrast::ratio(background, white)
               ? black
               : white;
}

} // namespace RadioPanes
