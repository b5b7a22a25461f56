// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace bandmonitor {

/// Path of the manual as a file that other programs can open: the installed one, or else a copy
/// beside the configuration, which is brought up to date. Empty when the copy cannot be written.
QString manualFile();

} // namespace bandmonitor
