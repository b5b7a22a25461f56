// SPDX-License-Identifier: MIT
#include "support/files.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

bool writeFile(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    return QDir().mkpath(QFileInfo(name).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

QByteArray readFile(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

void expectTrace(const char* pattern)
{
    QTest::ignoreMessage(QtInfoMsg, QRegularExpression(QLatin1String(pattern)));
}
