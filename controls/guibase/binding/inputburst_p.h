// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

class QWidget;

namespace ValueWidgetBinding {

/// Tells which inputs belong together: those of one drag, and those that follow each other at
/// once.
class InputBurst
{
public:
    /// The number of the burst that the input made now belongs to; unique among all bursts.
    int next(const QWidget& widget);
    /// The next input begins another burst.
    void end() { m_sinceLast.invalidate(); }

    /// In milliseconds.
    int longestPause() const { return m_longestPause; }
    void setLongestPause(int milliseconds) { m_longestPause = milliseconds; }

private:
    QElapsedTimer m_sinceLast;
    int m_longestPause = 1000;
    int m_number = 0;
};

} // namespace ValueWidgetBinding
