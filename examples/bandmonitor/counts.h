// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace bandmonitor {

/// Counts for the user, in the words and digits of the user's language: "1 sweep", "2,400 sweeps".
QString sweepCountText(qint64 count);
QString binCountText(qint64 count);
/// "1 line was skipped", "12 lines were skipped".
QString skippedLinesText(qint64 count);

} // namespace bandmonitor
