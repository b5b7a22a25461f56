// SPDX-License-Identifier: MIT
#include "panels/numberdelegate.h"

#include <QStyle>

namespace bandmonitor {

void NumberDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->displayAlignment = QStyle::visualAlignment(option->direction, option->displayAlignment);
    option->direction = Qt::LeftToRight;
}

} // namespace bandmonitor
