// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/errorhandler.h>

/// The module name and line numbers under which log readers know some reports of the services.
namespace Tracing {

inline constexpr const char* module = "controls/guibase/guibase";
inline constexpr int deprecatedSplashLine = 1043;
inline constexpr int missingHelpSlotLine = 1699;

} // namespace Tracing
