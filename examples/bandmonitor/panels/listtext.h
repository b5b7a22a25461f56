// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

class QString;
class QTreeWidget;

namespace bandmonitor {

enum class ListRows { All, Selected };

/// The rows of a list in its order, one a line. The columns that are shown, from this one on, have
/// tabs in between.
QString listText(const QTreeWidget& list, ListRows rows, int firstColumn = 0);
/// A time of a recording (microseconds since 1970) in the chosen zone, with month and day unless
/// it is on the day of `nowUs`.
QString recordedTime(quint64 timeUs, quint64 nowUs);
/// The titles of these columns, as such a line.
QString listTitles(const QTreeWidget& list, int firstColumn = 0);

} // namespace bandmonitor
