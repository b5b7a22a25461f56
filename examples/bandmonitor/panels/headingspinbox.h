// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/spinboxes/spinboxes.h>

namespace bandmonitor {

/// A heading in whole degrees, 0 to 359. Steps go on past north in both directions, and a typed
/// angle of one or more turns, or a negative one, counts as the heading that it stands for.
class HeadingSpinBox : public SpinBoxes::Int32SpinBox
{
public:
    explicit HeadingSpinBox(QWidget* parent = nullptr);
    ~HeadingSpinBox() override;

    void stepBy(int steps) override;
    void fixup(QString& text) const override;
};

} // namespace bandmonitor
