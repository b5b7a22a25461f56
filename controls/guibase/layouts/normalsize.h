// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSize>
#include <QTimer>

class QWidget;

/// Gives a window that stops being maximized or full-screen its size, for window systems where only
/// the compositor places windows (see WindowSystem::placesWindows()). Some of them end a program
/// whose window takes another size before they have answered.
///
/// A child of the window; it waits for the answer, or for a while when none comes. Requests that
/// are made before an earlier one is answered get lost: it asks for the normal state again.
class NormalSize : public QObject
{
    Q_OBJECT
public:
    ~NormalSize() override;

    /// To be called right after the change of state.
    static void give(QWidget& window, const QSize& size);
    /// For a window in normal state: at once, or in place of a size that still waits.
    static void resize(QWidget& window, const QSize& size);

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// From one request to the next, and how many there are.
    static constexpr int milliseconds = 200;
    static constexpr int maximumRequests = 10;

private:
    NormalSize(QWidget& window, const QSize& size);
    static NormalSize* waitingFor(const QWidget& window);
    bool coversScreen() const;
    void askAgain();
    void giveUp();
    void takeAnswer();

    QWidget& m_window;
    QSize m_size;
    int m_requests = 0;
    QTimer m_timer;
};
