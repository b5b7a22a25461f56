// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <functional>

class QObject;
class QTimer;

namespace QTimerHelpers {

/// Calls `step` once after `milliseconds` (0: as soon as the event loop runs), unless `context`
/// dies first. Returns the timer, a child of `context` that deletes itself after the call; deleting
/// it earlier, or stopping it, cancels the call. Null, and no call, for a null context or empty
/// step.
JTBASE_EXPORT QTimer* singleShot(int milliseconds, QObject* context, std::function<void()> step);

} // namespace QTimerHelpers
