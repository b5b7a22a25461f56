// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueframework_export.h>

#include <functional>

/// A change of a value that is held back for a moment, as long as this object lives.
///
/// Records write what is held back into the values before they store them, and so does the
/// configuration centre before it saves its components, and the end of the event loop. GUI thread
/// only.
class VALUEFRAMEWORK_EXPORT PendingWrite
{
public:
    /// The operation writes the value, and may destroy this object.
    explicit PendingWrite(std::function<void()> write);
    /// Writes nothing.
    ~PendingWrite();
    PendingWrite(const PendingWrite&) = delete;
    PendingWrite& operator=(const PendingWrite&) = delete;

    /// Writes everything that is held back now.
    static void WriteAll();

private:
    std::function<void()> m_write;
};
