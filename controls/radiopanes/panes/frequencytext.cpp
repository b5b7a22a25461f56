// SPDX-License-Identifier: MIT
#include "frequencytext.h"

#include <guibase/frequencies/frequencytoaxisstring.h>
#include <guibase/frequencies/suffixeddouble.h>
#include <guibase/services/guibase.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace RadioPanes {

FrequencyText::FrequencyText()
{
    refresh();
}

FrequencyText::~FrequencyText() = default;

void FrequencyText::refresh()
{
    // Both take the resolution over when they are made.
    m_axis = std::make_unique<FrequencyToAxisString>();
    m_number = std::make_unique<SuffixedDouble>(QStringLiteral("Hz"), 1000, false);
}

QString FrequencyText::label(double hertz) const
{
    return m_axis->convert(hertz);
}

QString FrequencyText::full(double hertz) const
{
    return m_number->GetString(hertz);
}

QString FrequencyText::width(double hertz)
{
    constexpr std::array units{"Hz", "kHz", "MHz", "GHz"};
    const double step = std::pow(10, std::floor(std::log10(std::max(hertz, 1.0))) - 2);
    double number = std::round(hertz / step) * step;
    std::size_t unit = 0;
    for (; number >= 1000 && unit + 1 < units.size(); ++unit)
        number /= 1000;
    return QStringLiteral("%1 %2").arg(number).arg(QLatin1String(units[unit]));
}

QString FrequencyText::unit() const
{
    return m_number->GetPureSuffix();
}

double FrequencyText::resolution() const
{
    return GuiBase::Instance().GetFrequencyResolution() == UnitPrefix::Kilo ? 1000 : 1;
}

} // namespace RadioPanes
