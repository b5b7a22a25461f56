// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <QString>

#include <memory>

class FrequencyToAxisString;
class SuffixedDouble;

namespace RadioPanes {

/// Frequencies as text, in the application's unit and resolution.
class RADIOPANES_EXPORT FrequencyText
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
    /// The number with no more digits than bins of this width leave, and the unit. A width of 0
    /// leaves all.
    QString rounded(double hertz, double stepHz) const;
    /// A width to three digits, in the unit that leaves one to three of them in front of the point.
    static QString width(double hertz);
    QString unit() const;
    /// The smallest difference that the texts can express, in hertz.
    double resolution() const;

private:
    std::unique_ptr<FrequencyToAxisString> m_axis;
    std::unique_ptr<SuffixedDouble> m_number;
};

} // namespace RadioPanes
