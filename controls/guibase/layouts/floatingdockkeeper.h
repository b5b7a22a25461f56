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
    /// Where docks are held: at their present geometry, or at the nearest one that is whole on a
    /// screen with its frame, also with one that comes only later.
    enum class Place { AsItIs, OnScreen };
    /// Instead of at a former geometry.
    static void keep(QDockWidget& dock, Place place = Place::AsItIs);

    bool eventFilter(QObject* watched, QEvent* event) override;

    static constexpr int milliseconds = 2000;

private:
    FloatingDockKeeper(QDockWidget& dock, Place place);
    void putBack();

    QDockWidget& m_dock;
    QRect m_geometry;
    Place m_place;
    int m_timesLeft = 3;
    bool m_isPuttingBack = false;
};
