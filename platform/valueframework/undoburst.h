// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueframework_export.h>

#include <QElapsedTimer>

/// Tells which changes make one undo step together: those that follow each other at once. Its
/// numbers are for UndoRecordingTriggerByValueClient.
class VALUEFRAMEWORK_EXPORT UndoBurst
{
public:
    /// The number of the burst that a change made now belongs to; no other burst has it. A change
    /// that goes on with what the user does, such as a drag, belongs to the last one however late
    /// it comes.
    int next(bool goesOn = false);
    /// The next change begins another burst.
    void end() { m_sinceLast.invalidate(); }

    /// The longest time between two changes of a burst in milliseconds, 1000 at first.
    int longestPause() const { return m_longestPause; }
    void setLongestPause(int milliseconds) { m_longestPause = milliseconds; }

private:
    QElapsedTimer m_sinceLast;
    int m_longestPause = 1000;
    int m_number = 0;
};
