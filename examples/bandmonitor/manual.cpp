// SPDX-License-Identifier: MIT
#include "manual.h"

#include <trovappstartup/cfgcenter.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace bandmonitor {

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QString manualFile()
{
    const QString installed =
        QDir(QCoreApplication::applicationDirPath())
            .absoluteFilePath(QStringLiteral("../share/bandmonitor/manual.html"));
    if (QFileInfo(installed).isFile())
        return QDir::cleanPath(installed);

    const QByteArray manual = contentOf(QStringLiteral(":/bandmonitor/manual.html"));
    const QDir folder = QFileInfo(CfgCenter::GetAppCfgFileName()).absoluteDir();
    const QString copy = folder.absoluteFilePath(QStringLiteral("manual.html"));
    if (contentOf(copy) == manual)
        return copy;
    QSaveFile file(copy);
    if (!folder.mkpath(QStringLiteral(".")) || !file.open(QIODevice::WriteOnly))
        return {};
    if (file.write(manual) != manual.size() || !file.flush() || !file.commit())
        return {};
    return copy;
}

} // namespace bandmonitor
