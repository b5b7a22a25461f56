// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

/// A helper program under test, with its output and its signals. Every wait is bounded, and the
/// destructor leaves no process behind.
class ChildProcess
{
public:
    /// Starts the program with the test's own environment.
    ChildProcess(const QString& program, const QStringList& arguments);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Waits until the program has written the line to its standard output.
    bool waitForLine(const QByteArray& line);
    /// Sends a line to its standard input.
    void writeLine(const QByteArray& line);
    /// Sends a signal; false when the program does not run any more.
    bool send(int signalNumber);
    /// Waits for the end. Returns the exit code, or minus the number of the signal that ended it,
    /// or neverEnded.
    int waitForEnd();

    static constexpr int neverEnded = 1000;

    /// What it has written to both outputs as far as it has been read.
    QByteArray output() const { return m_output; }
    /// Reads what there is without waiting; yields all of it until now.
    const QByteArray& readAll();
    qint64 processId() const { return m_process.processId(); }

private:
    void readOutput();

    QProcess m_process;
    QByteArray m_output;
};
