// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

/// Holds an object that is never destroyed, for function-local statics that must still work while
/// other static objects of the process are being destroyed.
template <typename T>
union Immortal {
    template <typename... Args>
    explicit Immortal(Args&&... args)
        : object(std::forward<Args>(args)...)
    {}
    ~Immortal() {}
    Immortal(const Immortal&) = delete;
    Immortal& operator=(const Immortal&) = delete;

    T object;
};
