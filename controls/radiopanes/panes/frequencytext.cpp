// SPDX-License-Identifier: MIT
#include "frequencytext.h"

#include <guibase/frequencies/frequencytoaxisstring.h>
#include <guibase/frequencies/suffixeddouble.h>
#include <guibase/services/guibase.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace RadioPanes {

namespace {
constexpr std::array units{"Hz", "kHz", "MHz", "GHz"};
} // namespace

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

QString FrequencyText::rounded(double hertz, double stepHz) const
{
    const auto shown =
        std::ranges::find(units, unit(), [](const char* name) { return QLatin1String(name); });
    if (!(stepHz > 0) || !std::isfinite(stepHz) || shown == units.end())
        return full(hertz);
    const int power = static_cast<int>(std::floor(std::log10(stepHz) + 1e-9));
    const double digit = std::pow(10, power);
    QString number = m_number->GetStringNoSuffix(std::round(hertz / digit) * digit);
    const int decimals = m_number->GetDotPosition();
    const int wanted = std::clamp(3 * static_cast<int>(shown - units.begin()) - power, 0, decimals);
    number.chop(wanted > 0 ? decimals - wanted : decimals > 0 ? decimals + 1 : 0);
    return number + m_number->GetSuffix();
}

QString FrequencyText::width(double hertz)
{
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
