// SPDX-License-Identifier: MIT
#include "live/commandsource.h"

#include <csignal>
#include <unistd.h>

namespace bandmonitor {

CommandSource::CommandSource(const QString& command)
    : m_name(command.simplified())
{
    if (m_name.size() > longestName)
        m_name = m_name.left(longestName - 1) + QChar(0x2026); // an ellipsis
    m_grace.setSingleShot(true);
    m_grace.setInterval(std::chrono::seconds(2));
    connect(&m_grace, &QTimer::timeout, this, [this] { sendToAll(SIGKILL); });
    m_process.setProgram(QStringLiteral("/bin/sh"));
    m_process.setArguments({QStringLiteral("-c"), command});
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setChildProcessModifier([] { ::setpgid(0, 0); });
    connect(&m_process, &QProcess::started, this, [this] { m_group = m_process.processId(); });
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &LiveSource::readyRead);
    connect(&m_process, &QProcess::readyReadStandardError, this, &CommandSource::readErrors);
    connect(&m_process, &QProcess::finished, this, &CommandSource::finished);
    connect(
        &m_process, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                Q_EMIT ended(m_process.errorString());
        },
        Qt::QueuedConnection);
}

CommandSource::~CommandSource()
{
    m_process.disconnect(this);
    for (const int signal : {SIGTERM, SIGKILL}) {
        if (m_process.state() == QProcess::NotRunning)
            break;
        sendToAll(signal);
        m_process.waitForFinished(static_cast<int>(m_grace.interval()));
    }
}

void CommandSource::start()
{
    m_process.start(QIODevice::ReadOnly);
}

void CommandSource::stop()
{
    m_isStopped = true;
    if (m_process.state() == QProcess::NotRunning)
        return; // ended() is said or on its way
    sendToAll(SIGTERM);
    m_grace.start();
}

void CommandSource::sendToAll(int signal) const
{
    if (m_group > 0)
        ::kill(static_cast<pid_t>(-m_group), signal);
}

qint64 CommandSource::read(char* to, qint64 size)
{
    m_process.setReadChannel(QProcess::StandardOutput);
    return std::max<qint64>(m_process.read(to, size), 0);
}

void CommandSource::readErrors()
{
    const QByteArray bytes = m_process.readAllStandardError();
    QByteArrayView rest(bytes);
    for (qsizetype end = rest.indexOf('\n'); end >= 0; end = rest.indexOf('\n')) {
        sayLine(rest.first(end));
        rest = rest.sliced(end + 1);
    }
    m_line += rest.first(std::min<qsizetype>(rest.size(), longestLine - m_line.size()));
}

/// The line may have begun in an earlier piece.
void CommandSource::sayLine(QByteArrayView line)
{
    m_line += line.first(std::min<qsizetype>(line.size(), longestLine - m_line.size()));
    const QString text = QString::fromLocal8Bit(m_line).simplified();
    m_line.clear();
    if (!text.isEmpty())
        Q_EMIT said(text);
}

void CommandSource::finished()
{
    m_grace.stop();
    sendToAll(SIGTERM); // what the command has left behind
    readErrors();
    sayLine({});
    Q_EMIT ended(reason());
}

QString CommandSource::reason() const
{
    constexpr int notFound = 127; // of the shell
    if (m_isStopped)
        return tr("stopped");
    if (m_process.exitStatus() == QProcess::CrashExit)
        return tr("it has crashed");
    if (m_process.exitCode() == notFound)
        return tr("there is no such command");
    return m_process.exitCode() == 0 ? tr("it has ended")
                                     : tr("it has ended with status %1").arg(m_process.exitCode());
}

} // namespace bandmonitor
