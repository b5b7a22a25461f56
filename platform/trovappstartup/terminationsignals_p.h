// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <memory>

class TerminationSignalsPrivate;

/// Brings the system's requests to end the process (SIGTERM, SIGINT, SIGHUP) into the event loop.
///
/// The first request is announced by requested(); the next one ends the process at once. The same
/// signal again within a second is no next one: some programs send it twice, to the process and to
/// its group. A file that reaches the limit of the process (SIGXFSZ) is no such request: the write
/// fails, as on a full disk, and who writes tells so. Signals that were ignored when the object was
/// made stay ignored. One object at a time; needs the application object. The destructor brings the
/// former handling back. Does nothing on systems without these signals.
class TerminationSignals : public QObject
{
    Q_OBJECT
public:
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    /// The system has asked for the first time to end the process.
    void requested();

private:
    std::unique_ptr<TerminationSignalsPrivate> d;
};
