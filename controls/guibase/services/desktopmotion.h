// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace DesktopMotion {

/// Whether the user wants things to move on the screen: the widget's style and the settings of the
/// desktop decide. Reads files; to be asked when a motion begins, not at each step.
bool isWanted(const QWidget& widget);

} // namespace DesktopMotion
