// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

class TrovApplication;

/// Ends the program on a request from outside, whichever event loop runs.
///
/// QCoreApplication::exec() is left as at any quit, as soon as it runs. Until then dialogs are
/// closed. What does not end by itself within the grace period is ended in spite of it, after the
/// termination of the start-up object.
class EndRequest : public QObject
{
    Q_OBJECT
public:
    /// The start-up object is not owned. Without start() nothing happens.
    EndRequest(TrovApplication& application, int graceMilliseconds);
    ~EndRequest() override;

    /// Later calls change nothing.
    void start();

    /// Asks the windows to close and, unless one refuses, ends QCoreApplication::exec(). False,
    /// with nothing done, when that does not run.
    static bool quitLoop();

private:
    void ask();
    void force();

    TrovApplication& m_application;
    QTimer m_askTimer;
    QTimer m_graceTimer;
    bool m_isQuitting = false;
    bool m_hasReachedLoop = false; ///< Also when the loop had ended before the request.
    bool m_isForced = false;
};
