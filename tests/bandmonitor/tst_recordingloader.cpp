// SPDX-License-Identifier: MIT
#include <model/recordingloader.h>
#include <model/samplegenerator.h>

#include "support/files.h"
#include "support/guardedtest.h"

using namespace bandmonitor;

class tst_RecordingLoader : public GuardedTest
{
    Q_OBJECT
    using Failures = TestRows<QString, QByteArray, QString>;

private Q_SLOTS:
    void sample()
    {
        QSignalSpy progress(m_loader.get(), &RecordingLoader::progress);
        loadSlowly();
        QVERIFY(m_loader->isLoading());
        QTRY_COMPARE(m_finished->count(), 1);
        QVERIFY(!m_loader->isLoading());
        QCOMPARE(m_failed->count(), 0);
        QCOMPARE(m_loader->recording()->levelCount(), 120U * 3 * 400);
        QCOMPARE(m_loader->report(), QString());
        QVERIFY(progress.count() > 100);
        QCOMPARE(progress.last().at(0), progress.last().at(1));
    }
    void failures_data()
    {
        Failures row;
        row("missing", "missing", {}, "%1 does not exist.");
        row("folder", ".", {}, "%1 is a folder, not a recording.");
        row("empty", "empty.csv", "", "%1 holds no sweep of a band scan. Expected: date, time,");
        row("no recording", "letter.txt", "Dear reader,\n",
            "%1 holds no sweep of a band scan. Line 1: no valid date and time.");
    }
    void failures()
    {
        const auto& [name, content, expected] = Failures::fetch();
        const QString path = filePath(name);
        QVERIFY(content.isNull() || writeFile(path, content));
        m_loader->load(path);
        QCOMPARE(m_failed->count(), 0); // never from within load()
        QTRY_COMPARE(m_failed->count(), 1);
        QVERIFY(m_failed->at(0).at(0).toString().startsWith(expected.arg(path)));
        QVERIFY(!m_loader->isLoading());
    }
    void cancelFromSlot()
    {
        loadSlowly();
        connect(m_loader.get(), &RecordingLoader::progress, this, [this](qint64 done) {
            if (done >= 100 * 1024)
                m_loader->cancel();
        });
        QTRY_VERIFY(!m_loader->isLoading());
        const qsizetype count = m_loader->recording()->count();
        QCoreApplication::processEvents();
        QVERIFY(count > 0 && m_loader->recording()->count() == count);
        QCOMPARE(m_finished->count() + m_failed->count(), 0);
    }
    void loadFromSlot()
    {
        loadSlowly();
        const auto given = m_loader->recording();
        bool again = false;
        connect(m_loader.get(), &RecordingLoader::progress, this, [&](qint64 done) {
            if (done > 50'000 && !std::exchange(again, true))
                m_loader->load(samplePath());
        });
        QTRY_COMPARE(m_finished->count(), 1);
        QVERIFY(given->count() < 120);
        QCOMPARE(m_loader->recording()->count(), 120);
    }
    void destroyedWhileLoading()
    {
        loadSlowly();
        const auto recording = m_loader->recording();
        connect(m_loader.get(), &RecordingLoader::progress, this, [this] { m_loader.reset(); });
        QTRY_VERIFY(!m_loader);
        QCoreApplication::processEvents();
        QVERIFY(recording->count() < 120);
    }

private:
    void prepare() override
    {
        m_loader = std::make_unique<RecordingLoader>();
        m_finished = std::make_unique<QSignalSpy>(m_loader.get(), &RecordingLoader::finished);
        m_failed = std::make_unique<QSignalSpy>(m_loader.get(), &RecordingLoader::failed);
    }
    void tidy() override { m_loader.reset(); }
    /// Makes every slice one small piece.
    void loadSlowly()
    {
        m_loader->setSliceTime(std::chrono::milliseconds(0));
        m_loader->setPieceSize(4096);
        m_loader->load(samplePath());
    }

    std::unique_ptr<RecordingLoader> m_loader;
    std::unique_ptr<QSignalSpy> m_finished;
    std::unique_ptr<QSignalSpy> m_failed;
};

QTEST_GUILESS_MAIN(tst_RecordingLoader)
#include "tst_recordingloader.moc"
