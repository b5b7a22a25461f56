// SPDX-License-Identifier: MIT
#pragma once

namespace RadioPanes {}

namespace bandmonitor {

/// Sweeps, levels and panes are everyday words of this application.
using namespace RadioPanes;

} // namespace bandmonitor
