// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/frequencies/unitprefix.h>
#include <guibase/inputs/spinboxes/spinboxes.h>

#include <memory>

namespace SpinBoxes {

/// Enters a frequency as a whole number of hertz, exactly, in the application's frequency unit.
///
/// It has four formats: Hz, kHz, MHz and GHz with the indexes 0 to 3. The current one follows
/// GuiBase::GetFrequencyUnit(), and a bare number counts in its unit. A unit that is typed
/// ("14225k", "1,2 GHz") counts for this number only, unless automatic switching is on. While a
/// number is typed, a new unit waits until it is committed. At first the range is 0 to
/// 999,999,999,999 Hz and the single step 1 kHz.
class GUIBASE_EXPORT FrequencySpinBox : public Int64SpinBox
{
    Q_OBJECT
    /// See setFollowingFrequencyUnit().
    Q_PROPERTY(
        bool followingFrequencyUnit READ isFollowingFrequencyUnit WRITE setFollowingFrequencyUnit)
public:
    explicit FrequencySpinBox(QWidget* parent = nullptr);
    ~FrequencySpinBox() override;

    static constexpr qint64 defaultMaximum = 999'999'999'999; ///< Hz
    static constexpr qint64 defaultStep = 1000;               ///< Hz

    /// Whether the unit follows the application's one; true at first. Setting it adopts that unit.
    bool isFollowingFrequencyUnit() const;
    void setFollowingFrequencyUnit(bool follow);

    void interpret() override;

private:
    void adoptFrequencyUnit();

    struct Private;
    std::unique_ptr<Private> m_d;
};

} // namespace SpinBoxes
