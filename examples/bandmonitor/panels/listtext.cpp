// SPDX-License-Identifier: MIT
#include "panels/listtext.h"

#include <guibase/services/guibase.h>

#include <QStringList>
#include <QTreeWidget>

namespace bandmonitor {

namespace {

QString lineOf(const QTreeWidget& list, const QTreeWidgetItem& row, int firstColumn)
{
    QStringList cells;
    for (int column = firstColumn; column < list.columnCount(); ++column) {
        if (!list.isColumnHidden(column))
            cells << row.text(column);
    }
    return cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

} // namespace

QString listText(const QTreeWidget& list, ListRows rows, int firstColumn)
{
    QString result;
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
        const QTreeWidgetItem* row = list.topLevelItem(i);
        if (rows == ListRows::All || row->isSelected())
            result += lineOf(list, *row, firstColumn);
    }
    return result;
}

QString recordedTime(quint64 timeUs, quint64 nowUs)
{
    GuiBase& services = GuiBase::Instance();
    const QString day = QStringLiteral("yyyy-MM-dd");
    const bool isToday = services.TimeString(timeUs, day) == services.TimeString(nowUs, day);
    return services.TimeString(timeUs, isToday ? QStringLiteral("hh:mm:ss")
                                               : QStringLiteral("MM-dd hh:mm:ss"));
}

QString listTitles(const QTreeWidget& list, int firstColumn)
{
    return lineOf(list, *list.headerItem(), firstColumn);
}

} // namespace bandmonitor
