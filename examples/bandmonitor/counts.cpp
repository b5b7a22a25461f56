// SPDX-License-Identifier: MIT
#include "counts.h"

#include <QCoreApplication>
#include <QLocale>

namespace bandmonitor {

namespace {

QString counted(qint64 count, const char* one, const char* many)
{
    const QString text =
        QCoreApplication::translate("bandmonitor::counts", count == 1 ? one : many);
    return count == 1 ? text : text.arg(QLocale().toString(count));
}

} // namespace

QString sweepCountText(qint64 count)
{
    return counted(count, QT_TRANSLATE_NOOP("bandmonitor::counts", "1 sweep"),
                   QT_TRANSLATE_NOOP("bandmonitor::counts", "%1 sweeps"));
}

QString binCountText(qint64 count)
{
    return counted(count, QT_TRANSLATE_NOOP("bandmonitor::counts", "1 bin"),
                   QT_TRANSLATE_NOOP("bandmonitor::counts", "%1 bins"));
}

QString skippedLinesText(qint64 count)
{
    return counted(count, QT_TRANSLATE_NOOP("bandmonitor::counts", "1 line was skipped"),
                   QT_TRANSLATE_NOOP("bandmonitor::counts", "%1 lines were skipped"));
}

} // namespace bandmonitor
