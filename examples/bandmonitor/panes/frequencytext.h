// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

class FrequencyToAxisString;
class SuffixedDouble;

namespace bandmonitor {

/// Frequencies as text, in the application's unit and resolution.
class FrequencyText
{
public:
    FrequencyText();
    ~FrequencyText();

    /// To be called after the application's resolution has changed; the unit is followed by itself.
    void refresh();

    /// Label of an axis, without unit.
    QString label(double hertz) const;
    /// The number with all its digits, and the unit.
    QString full(double hertz) const;
    /// In the unit that makes the number shortest; for widths.
    QString shortest(double hertz) const;
    QString unit() const;
    /// The smallest difference that the texts can express, in hertz.
    double resolution() const;

private:
    std::unique_ptr<FrequencyToAxisString> m_axis;
    std::unique_ptr<SuffixedDouble> m_number;
};

} // namespace bandmonitor
