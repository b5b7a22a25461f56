// SPDX-License-Identifier: MIT
#include "live/followedfile.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <utility>

namespace bandmonitor {

FollowedFile::FollowedFile(const QString& path)
    : m_path(QFileInfo(path).absoluteFilePath())
    , m_file(m_path)
{
    m_poll.setInterval(std::chrono::seconds(2));
    m_poll.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_poll, &QTimer::timeout, this, &FollowedFile::look);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FollowedFile::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FollowedFile::look);
}

FollowedFile::~FollowedFile() = default;

QString FollowedFile::name() const
{
    return QFileInfo(m_path).fileName();
}

void FollowedFile::start()
{
    const bool isThere = open();
    if (!isThere && (m_file.exists() || !QFileInfo(m_path).dir().exists())) {
        const QString problem =
            tr("%1 cannot be read: %2").arg(QDir::toNativeSeparators(m_path), m_file.errorString());
        QMetaObject::invokeMethod(
            this, [this, problem] { Q_EMIT ended(problem); }, Qt::QueuedConnection);
        return;
    }
    m_watcher.addPath(QFileInfo(m_path).path());
    m_poll.start();
    m_isMissing = !isThere;
    if (m_isMissing)
        QMetaObject::invokeMethod(
            this, [this] { Q_EMIT restarted(tr("there is no such file yet")); },
            Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &FollowedFile::look, Qt::QueuedConnection);
}

void FollowedFile::stop()
{
    m_poll.stop();
    m_file.close();
    QMetaObject::invokeMethod(
        this, [this] { Q_EMIT ended(tr("stopped")); }, Qt::QueuedConnection);
}

bool FollowedFile::open()
{
    m_file.close();
    // Unbuffered: what was at the end before is read again.
    return m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

/// The system forgets a file that was replaced.
void FollowedFile::watch()
{
    if (!m_watcher.files().contains(m_path) && QFileInfo::exists(m_path))
        m_watcher.addPath(m_path);
}

/// Whether another file stands at the path now.
bool FollowedFile::isReplaced() const
{
    struct stat open
    {};
    struct stat named
    {};
    return ::fstat(m_file.handle(), &open) == 0 &&
           ::stat(QFile::encodeName(m_path).constData(), &named) == 0 &&
           (open.st_ino != named.st_ino || open.st_dev != named.st_dev);
}

void FollowedFile::look()
{
    if (!m_poll.isActive()) // stopped
        return;
    watch();
    const qint64 size = m_file.isOpen() ? m_file.size() : 0;
    if (m_file.isOpen() && m_file.pos() < size) {
        Q_EMIT readyRead();
    } else if (m_file.isOpen() && m_file.pos() > size) {
        m_file.seek(0);
        Q_EMIT restarted(tr("the file was truncated"));
        look();
    } else if (!QFileInfo::exists(m_path)) { // it may come back
        if (!std::exchange(m_isMissing, true))
            Q_EMIT restarted(tr("the file is gone"));
    } else if (!m_file.isOpen() || isReplaced()) {
        if (!open())
            return; // it may be readable later
        Q_EMIT restarted(std::exchange(m_isMissing, false) ? tr("the file is there now")
                                                           : tr("the file was replaced"));
        look();
    }
}

qint64 FollowedFile::read(char* to, qint64 size)
{
    if (!m_file.isOpen())
        return 0;
    const qint64 count = m_file.read(to, size);
    return std::max<qint64>(count, 0);
}

} // namespace bandmonitor
