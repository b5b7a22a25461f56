// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSize>

class QWidget;

/// Gives a window that stops being maximized, minimized or full-screen its size, for window systems
/// where only the compositor places windows (see WindowSystem::placesWindows()). Some of them end a
/// program whose window takes another size before they have answered.
///
/// A child of the window; it waits for the first resize in normal state, or for a while when none
/// comes.
class NormalSize : public QObject
{
    Q_OBJECT
public:
    /// To be called right after the change of state.
    static void give(QWidget& window, const QSize& size);
    /// For a window in normal state: at once, or in place of a size that still waits.
    static void resize(QWidget& window, const QSize& size);

    bool eventFilter(QObject* watched, QEvent* event) override;

    static constexpr int milliseconds = 1000;

private:
    NormalSize(QWidget& window, const QSize& size);
    static NormalSize* waitingFor(const QWidget& window);
    bool isNormal() const;
    void finish();

    QWidget& m_window;
    QSize m_size;
};
