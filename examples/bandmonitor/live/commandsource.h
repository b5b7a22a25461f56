// SPDX-License-Identifier: MIT
#pragma once

#include "model/livesource.h"

#include <QByteArray>
#include <QProcess>
#include <QTimer>

#include <chrono>

namespace bandmonitor {

/// Live input from the standard output of a command, which the shell runs. What it writes to its
/// standard error is said(). It ends with this object at the latest, and all that it has started
/// with it: asked first, killed when it does not listen.
class CommandSource : public LiveSource
{
    Q_OBJECT
public:
    static constexpr int longestLine = 500; ///< Of what is said.
    static constexpr int longestName = 60;

    explicit CommandSource(const QString& command);
    ~CommandSource() override;

    /// How long it may take to end when it is asked to; 2 s by default.
    void setGrace(std::chrono::milliseconds time) { m_grace.setInterval(time); }

    QString name() const override { return m_name; }
    void start() override;
    void stop() override;
    qint64 read(char* to, qint64 size) override;

private:
    void readErrors();
    void sayLine(QByteArrayView line);
    void finished();
    QString reason() const;
    /// Reaches what the shell has started too.
    void sendToAll(int signal) const;

    QString m_name;
    QProcess m_process;
    QTimer m_grace;
    qint64 m_group = 0;
    bool m_isStopped = false;
    QByteArray m_line;
};

} // namespace bandmonitor
