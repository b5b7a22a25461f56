// SPDX-License-Identifier: MIT
#include "panes/frequencytext.h"

#include <guibase/inputs/frequencytoaxisstring.h>
#include <guibase/inputs/suffixeddouble.h>
#include <guibase/services/guibase.h>

namespace bandmonitor {

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

QString FrequencyText::shortest(double hertz) const
{
    return m_number->GetShortestString(hertz);
}

QString FrequencyText::unit() const
{
    return m_number->GetPureSuffix();
}

double FrequencyText::resolution() const
{
    return GuiBase::Instance().GetFrequencyResolution() == UnitPrefix::Kilo ? 1000 : 1;
}

} // namespace bandmonitor
