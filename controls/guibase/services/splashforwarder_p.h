// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Hands requests for the splash screen on to the start-up object, which owns it. Without a
/// start-up object nothing happens.
namespace SplashForwarder {

/// Showing is the start-up object's own affair; the request is only traced.
void traceDeprecatedShow();
/// Hides the splash screen when it has been shown for the configured time, at once without one.
void hide();
/// Milliseconds until a splash screen may go that was shown at `shownAt` (seconds since the epoch)
/// and must stay for `timeout` seconds. Never more than the time-out, also when the clock was set
/// back meanwhile.
int remainingMilliseconds(qint64 timeout, qint64 shownAt, qint64 now);
void hideAtOnce();
void showBusy();
void write(const QString& text);

} // namespace SplashForwarder
