// SPDX-License-Identifier: MIT
#include "frequencytoaxisstring.h"

#include <guibase/frequencies/suffixeddouble.h>

FrequencyToAxisString::FrequencyToAxisString()
    : m_converter(std::make_shared<SuffixedDouble>(QStringLiteral("Hz"), 1000, false))
{}

FrequencyToAxisString::FrequencyToAxisString(const FrequencyToAxisString& other) = default;
FrequencyToAxisString&
FrequencyToAxisString::operator=(const FrequencyToAxisString& other) = default;
FrequencyToAxisString::~FrequencyToAxisString() = default;

const QString& FrequencyToAxisString::convert(double frequency)
{
    m_text = m_converter->GetDisplayString(frequency);
    return m_text;
}

const QString& FrequencyToAxisString::convertSuffixed(double frequency)
{
    m_text = m_converter->GetShortString(frequency);
    return m_text;
}
