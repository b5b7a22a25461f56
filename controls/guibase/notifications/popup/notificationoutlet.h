// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QIcon;
class QObject;
class QString;

/// Takes notifications while the program can show none itself: no window of it is open, and it may
/// not place pop-ups on the screen. Without an outlet the desktop's service gets them.
namespace NotificationOutlet {

/// Takes a plain text; false when it cannot take it now.
using Function = std::function<bool(const QString& title, const QString& text, const QIcon& icon)>;

/// Replaces the outlet, until the owner is destroyed.
void set(const QObject& owner, Function function);
/// Hands a notification to the outlet. False without one, and when it refuses.
bool send(const QString& title, const QString& text, const QIcon& icon);

} // namespace NotificationOutlet
