// SPDX-License-Identifier: MIT
#include "cfgfile_p.h"

#include "cfgdocument_p.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QThread>

CfgFile::CfgFile(const QString& fileName)
    : m_fileName(fileName)
{}

CfgFile::Reading CfgFile::read() const
{
    const QFileInfo info(m_fileName);
    if (!info.exists())
        return {Content::Missing, {}, {}};
    // Opening a pipe would wait for a writer, and a device may never end.
    if (!info.isFile())
        return {Content::Damaged, {}, QStringLiteral("not a regular file")};
    if (!info.isReadable())
        return {Content::Damaged, {}, QStringLiteral("no permission to read it")};
    QFile file(m_fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        if (!QFileInfo::exists(m_fileName))
            return {Content::Missing, {}, {}};
        return {Content::Unreadable, {}, file.errorString()};
    }
    const QByteArray text = file.read(CfgDocument::maximumTextSize + 1);
    if (file.error() != QFileDevice::NoError)
        return {Content::Unreadable, {}, file.errorString()};
    return {Content::Read, text, {}};
}

std::unique_ptr<QLockFile> CfgFile::lock(int milliseconds, QString* reason) const
{
    // A lock file without content, left by a process that died while it made it, tells nobody's
    // name: it counts as left behind after this time. Locks of living processes are never broken.
    constexpr int staleMilliseconds = 2000;

    const QString folder = QFileInfo(m_fileName).absolutePath();
    if (!QDir().mkpath(folder)) {
        *reason = QStringLiteral("the folder cannot be made");
        return nullptr;
    }
    auto lock = std::make_unique<QLockFile>(m_fileName + QStringLiteral(".lock"));
    lock->setStaleLockTime(staleMilliseconds);
    // Waiting in tryLock() doubles its pauses up to seconds, and starves among busy processes.
    constexpr unsigned long pauseMilliseconds = 3;
    const QDeadlineTimer deadline(milliseconds);
    for (;;) {
        if (lock->tryLock(0))
            return lock;
        if (lock->error() != QLockFile::LockFailedError || deadline.hasExpired())
            break;
        QThread::msleep(pauseMilliseconds);
    }
    *reason = lock->error() == QLockFile::LockFailedError
                  ? QStringLiteral("another process has it locked")
                  : QStringLiteral("its lock file cannot be made");
    return nullptr;
}

bool CfgFile::replace(const QByteArray& text, QString* reason) const
{
    QSaveFile file(m_fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        *reason = file.errorString();
        return false;
    }
    // On a full disk the last bytes fail in flush(), which commit() does not look at.
    if (file.write(text) != text.size() || !file.flush()) {
        *reason = QStringLiteral("not all of it could be written (%1)").arg(file.errorString());
        file.cancelWriting();
        return false;
    }
    if (!file.commit()) {
        *reason = file.errorString();
        return false;
    }
    return true;
}

QString CfgFile::setAside() const
{
    constexpr int maximumTries = 100;
    const QString base =
        m_fileName + QStringLiteral(".damaged-") +
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    QString name = base;
    for (int number = 2; number < maximumTries; ++number) {
        const QFileInfo taken(name);
        if (!taken.exists() && !taken.isSymLink() && QFile::rename(m_fileName, name))
            return name;
        name = QStringLiteral("%1-%2").arg(base).arg(number);
    }
    return {};
}
