// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QTreeWidget;

namespace bandmonitor {

enum class ListRows { All, Selected };

/// The rows of a list in its order, one a line. The columns that are shown, from this one on, have
/// tabs in between.
QString listText(const QTreeWidget& list, ListRows rows, int firstColumn = 0);
/// The titles of these columns, as such a line.
QString listTitles(const QTreeWidget& list, int firstColumn = 0);

} // namespace bandmonitor
