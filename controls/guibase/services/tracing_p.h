// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/errorhandler.h>

/// The module name and line numbers under which log readers know the reports of the services.
namespace Tracing {

inline constexpr const char* module = "controls/guibase/guibase";
inline constexpr int deprecatedSplashLine = 1043;
inline constexpr int missingHelpSlotLine = 1699;

} // namespace Tracing

/// Traces `text` with this place; the text is built only when the library's traces are on.
#define GUIBASE_TRACE(text)                                                                        \
    do {                                                                                           \
        if (ErrorHandler::IsTraceEnabled(ErrorHandler::TraceGuiBase))                              \
            ErrorHandler::Trace(ErrorHandler::TraceGuiBase, Tracing::module, __LINE__, (text));    \
    } while (false)
