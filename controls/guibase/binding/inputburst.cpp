// SPDX-License-Identifier: MIT
#include "inputburst_p.h"

#include <QAbstractSlider>

namespace ValueWidgetBinding {

int InputBurst::next(const QWidget& widget)
{
    static int count = 0;
    const auto* slider = qobject_cast<const QAbstractSlider*>(&widget);
    const bool isDrag = slider != nullptr && slider->isSliderDown();
    if (!m_sinceLast.isValid() || (!isDrag && m_sinceLast.elapsed() >= m_longestPause))
        m_number = count++;
    m_sinceLast.start();
    return m_number;
}

} // namespace ValueWidgetBinding
