// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace bandmonitor {

/// The icons of panels and replay actions. A new one is an enumerator here and a row of the
/// table in icons.cpp.
enum class Icon {
    Signals,
    Events,
    Levels,
    Jobs,
    Bearings,
    Receiver,
    History,
    Undo,
    Redo,
    ToStart,
    Backward,
    Play,
    Pause,
    Forward,
    ToEnd,
};

/// An icon that is drawn when it is needed, in the size that is needed and in the text colour of
/// the application's palette as it is then.
QIcon makeIcon(Icon kind);

} // namespace bandmonitor
