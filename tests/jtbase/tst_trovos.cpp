// SPDX-License-Identifier: MIT
#include "support/testguard.h"

#include <jtbase/trovos.h>

#include <QDesktopServices>
#include <QTemporaryFile>
#include <QTest>
#include <QUrl>

#include <memory>

class TrovOsTest : public QObject
{
    Q_OBJECT
public Q_SLOTS:
    void takeUrl(const QUrl& url) { m_opened.append(url); }

private Q_SLOTS:
    void init() { m_guard = std::make_unique<TestGuard>(); }
    void cleanup()
    {
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }
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
    void canBeReplaced()
    {
        class OwnOs : public TrovOS
        {
            int OpenFile(const QString&) override { return 77; }
        };
        TrovOS::Set(std::make_unique<OwnOs>());
        QCOMPARE(TrovOS::Get()->OpenFile(QString()), 77);
        TrovOS::Set(nullptr);
        QCOMPARE(TrovOS::Get()->OpenFile(QString()), TrovOS::fileNotFound);
    }

private:
    std::unique_ptr<TestGuard> m_guard;
    QList<QUrl> m_opened;
};

QTEST_MAIN(TrovOsTest)
#include "tst_trovos.moc"
