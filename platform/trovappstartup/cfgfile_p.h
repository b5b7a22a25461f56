// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class QLockFile;

/// One configuration file on the disk: read whole, replaced in one step, or put aside.
class CfgFile
{
public:
    enum class Content {
        Missing,
        Read,
        Damaged,    ///< There is something, but it cannot be a configuration, also not later.
        Unreadable, ///< It could not be read now; a later try may succeed.
    };
    struct Reading
    {
        Content content = Content::Missing;
        QByteArray text;
        QString reason; ///< In words, when damaged or unreadable.
    };

    explicit CfgFile(const QString& fileName);

    const QString& fileName() const { return m_fileName; }
    Reading read() const;

    /// The lock that every process takes around reading and replacing, made together with the
    /// file's folder. Null, and the reason, when it could not be had in `milliseconds`. The lock of
    /// a process that has died is taken over.
    std::unique_ptr<QLockFile> lock(int milliseconds, QString* reason) const;

    /// Replaces the file. False, with the reason, when that failed: the old file is then untouched.
    bool replace(const QByteArray& text, QString* reason) const;

    /// Renames the file to "<name>.damaged-<time>", and returns the new name; never overwrites
    /// another file. Empty when it could not be renamed.
    QString setAside() const;

private:
    QString m_fileName;
};
