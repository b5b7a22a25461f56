// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace bandmonitor {

/// Draws numbers with units from left to right in every layout: "-45 dB", where the direction of
/// the window would make it "dB 45-". The cell stays where the layout has it.
class NumberDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace bandmonitor
