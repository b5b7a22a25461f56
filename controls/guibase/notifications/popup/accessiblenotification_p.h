// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace AccessibleNotification {

/// Makes the process show its pop-ups to assistive technologies as alerts; once is enough.
void install();
/// Tells that a pop-up has appeared.
void announce(QWidget& popup);

} // namespace AccessibleNotification
