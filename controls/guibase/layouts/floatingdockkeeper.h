// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRect>
#include <QTimer>

class QDockWidget;

/// Holds a floating dock where it was put, for a short while: window managers that see it
/// appear before they are told its place move it to one of their own, and those that see it
/// disappear before they have heard that it is not maximized any more show it maximized again.
///
/// A child of the dock. Gives up after a few attempts, when the user takes the dock with the mouse,
/// and when it docks. Moves no maximized or minimized dock. Does nothing where programs do not
/// place windows.
class FloatingDockKeeper : public QObject
{
    Q_OBJECT
public:
    /// Where docks are held: at their present geometry, or at the nearest one with which dock and
    /// frame fit on a screen, also when the frame comes later.
    enum class Place { AsItIs, OnScreen };
    /// Replaces the place of an earlier call for the same dock.
    static void keep(QDockWidget& dock, Place place = Place::AsItIs);

    bool eventFilter(QObject* watched, QEvent* event) override;

    static constexpr int milliseconds = 2000;

private:
    FloatingDockKeeper(QDockWidget& dock, Place place);
    bool isKept() const;
    void putBack();
    void endForgottenState();

    QDockWidget& m_dock;
    QRect m_geometry;
    Place m_place;
    int m_timesLeft = 3;
    bool m_isPuttingBack = false;
    bool m_wasForgotten = false;
    QTimer m_look;
};
