// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

/// Calls something that has checks of its own, and returns when one of them has failed: such a
/// check leaves its own function only.
#define CHECKED(...)                                                                               \
    do {                                                                                           \
        __VA_ARGS__;                                                                               \
        if (QTest::currentTestFailed())                                                            \
            return;                                                                                \
    } while (false)
