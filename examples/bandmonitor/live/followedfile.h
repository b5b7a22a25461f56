// SPDX-License-Identifier: MIT
#pragma once

#include "model/livesource.h"

#include <QFile>
#include <QFileSystemWatcher>
#include <QTimer>

#include <chrono>

namespace bandmonitor {

/// Live input from a file that grows; it need not be there yet. When it is truncated, or another
/// file takes its place, it is read from the beginning again.
class FollowedFile : public LiveSource
{
    Q_OBJECT
public:
    explicit FollowedFile(const QString& path);
    ~FollowedFile() override;

    /// How often it is looked at beside what the system tells, which some file systems never do;
    /// 2 s by default.
    void setPollTime(std::chrono::milliseconds time) { m_poll.setInterval(time); }

    QString name() const override;
    void start() override;
    void stop() override;
    qint64 read(char* to, qint64 size) override;

private:
    /// Sees whether it has grown, shrunk or been replaced.
    void look();
    bool open();
    void watch();
    bool isReplaced() const;

    QString m_path;
    QFile m_file;
    QFileSystemWatcher m_watcher;
    QTimer m_poll;
    bool m_isMissing = false;
};

} // namespace bandmonitor
