// SPDX-License-Identifier: MIT
#pragma once

/// What an application is doing, in the order of urgency.
enum class TrayState {
    Idle,    ///< A grey ring.
    Running, ///< A green disc with a triangle.
    Warning, ///< An amber triangle with an exclamation mark.
    Fault,   ///< A red square with a cross.
};
