// SPDX-License-Identifier: MIT
#include "support/childprocess.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <csignal>

namespace {

constexpr int maximumMilliseconds = 60000;

} // namespace

ChildProcess::ChildProcess(const QString& program, const QStringList& arguments)
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start(program, arguments);
    m_process.waitForStarted();
}

ChildProcess::~ChildProcess()
{
    m_process.kill();
    m_process.waitForFinished();
}

void ChildProcess::readOutput()
{
    m_output += m_process.readAllStandardOutput();
}

bool ChildProcess::waitForLine(const QByteArray& line)
{
    const QDeadlineTimer deadline(maximumMilliseconds);
    while (!('\n' + m_output).contains('\n' + line + '\n')) {
        const bool isRunning = m_process.state() != QProcess::NotRunning;
        if (deadline.hasExpired() || (!isRunning && m_process.bytesAvailable() == 0))
            return false;
        m_process.waitForReadyRead(100);
        readOutput();
    }
    return true;
}

void ChildProcess::writeLine(const QByteArray& line)
{
    m_process.write(line + '\n');
    m_process.waitForBytesWritten();
}

const QByteArray& ChildProcess::readAll()
{
    QCoreApplication::processEvents();
    readOutput();
    return m_output;
}

bool ChildProcess::send(int signalNumber)
{
    const qint64 id = m_process.processId();
    return id > 0 && ::kill(static_cast<pid_t>(id), signalNumber) == 0;
}

int ChildProcess::waitForEnd()
{
    const bool isAtEnd =
        m_process.state() == QProcess::NotRunning || m_process.waitForFinished(maximumMilliseconds);
    readOutput();
    if (!isAtEnd)
        return neverEnded;
    return m_process.exitStatus() == QProcess::CrashExit ? -m_process.exitCode()
                                                         : m_process.exitCode();
}
