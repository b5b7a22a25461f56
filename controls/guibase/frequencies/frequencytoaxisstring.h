// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/frequencies/stringformatter.h>
#include <guibase/guibase_export.h>

#include <QString>

#include <memory>

class SuffixedDouble;

/// The labels of a frequency axis (Hz in), in the application's frequency unit and resolution.
///
/// Copies share the converter, which dies with the last of them; each has its own last text.
class GUIBASE_EXPORT FrequencyToAxisString : public IStringFormatter
{
public:
    FrequencyToAxisString();
    FrequencyToAxisString(const FrequencyToAxisString& other);
    FrequencyToAxisString& operator=(const FrequencyToAxisString& other);
    ~FrequencyToAxisString() override;

    /// As SuffixedDouble::GetDisplayString(): "12.500".
    const QString& convert(double frequency) override;
    /// As SuffixedDouble::GetShortString(): "12.500  MHz".
    const QString& convertSuffixed(double frequency) override;

private:
    QString m_text;
    std::shared_ptr<SuffixedDouble> m_converter;
};
