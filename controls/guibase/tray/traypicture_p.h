// SPDX-License-Identifier: MIT
#pragma once

#include "traystate.h"

#include <QIcon>

/// The pictures of tray icons.
namespace TrayPicture {

/// The icon with a badge at its lower right. States differ in shape, too, and a gap around the
/// badge keeps it apart from the icon on light and dark panels. Without a picture in the icon a
/// plain one stands for it.
QIcon make(const QIcon& icon, TrayState state);

} // namespace TrayPicture
