// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRect>

class QDockWidget;

/// Holds a floating dock where it was put, for a short while: window managers that see it
/// appear before they are told its place move it to one of their own.
///
/// A child of the dock. Gives way after a few times, to the mouse, and when the dock docks; a dock
/// that is maximized or minimized it leaves alone.
class FloatingDockKeeper : public QObject
{
    Q_OBJECT
public:
    /// Holds the dock at its present geometry, or at the nearest one whole on a screen, instead of
    /// at a former one.
    static void keep(QDockWidget& dock);

    bool eventFilter(QObject* watched, QEvent* event) override;

    static constexpr int milliseconds = 2000;

private:
    explicit FloatingDockKeeper(QDockWidget& dock);
    void putBack();

    QDockWidget& m_dock;
    QRect m_geometry;
    int m_timesLeft = 3;
};
