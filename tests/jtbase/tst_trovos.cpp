// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <jtbase/trovos.h>

#include <QDesktopServices>
#include <QTemporaryFile>
#include <QUrl>

class tst_TrovOs : public GuardedTest
{
    Q_OBJECT
public Q_SLOTS:
    void takeUrl(const QUrl& url) { m_opened.append(url); }

private Q_SLOTS:
    void opensFilesOnly()
    {
        QTemporaryFile file(QDir::tempPath() + QStringLiteral("/a #1 %20 XXXXXX.html"));
        QVERIFY(file.open());
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "takeUrl");
        QVERIFY(TrovOS::Get()->OpenFile(file.fileName()) >= TrovOS::firstSuccessCode);
        QCOMPARE(m_opened, {QUrl::fromLocalFile(file.fileName())});
        for (const QString& missing : {QString(), QDir::tempPath(), file.fileName() + u'x'})
            QCOMPARE(TrovOS::Get()->OpenFile(missing), TrovOS::fileNotFound);
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        // The platform that tests run on knows no programs.
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(QStringLiteral("does not support QPlatformServices")));
        QCOMPARE(TrovOS::Get()->OpenFile(file.fileName()), TrovOS::noAssociation);
    }

private:
    QList<QUrl> m_opened;
};

QTEST_MAIN(tst_TrovOs)
#include "tst_trovos.moc"
