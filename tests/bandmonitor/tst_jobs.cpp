// SPDX-License-Identifier: MIT
#include "jobs.h"
#include "jobsmenu.h"
#include "mainwindow.h"
#include "panes/bandview.h"
#include "panes/levelspane.h"
#include "recordings.h"
#include "support/testguard.h"

#include <model/joblist.h>
#include <model/levelline.h>
#include <model/samplegenerator.h>

#include <guibase/lists/sortrowtable.h>
#include <guibase/services/guibase.h>

#include <QMenu>
#include <QShowEvent>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace bandmonitor;

class tst_Jobs : public QObject
{
    Q_OBJECT
    std::optional<TestGuard> m_guard;
    std::unique_ptr<MainWindow> m_window;
    qint64 m_clockUs = 0;

    int idOf(const QString& part) const
    {
        for (const Job& job : m_window->jobs().list().jobs()) {
            if (job.name.contains(part))
                return job.id;
        }
        return -1;
    }

    JobState stateOf(const QString& part) const
    {
        return m_window->jobs().list().find(idOf(part))->state;
    }

    void makeWindow()
    {
        m_window = std::make_unique<MainWindow>();
        m_window->resize(700, 600); // fits on any screen with its frame
        GuiBase::Instance().RegisterPersistentWidget(m_window.get(), QStringLiteral("main"));
        m_window->announceModes();
        m_window->show();
    }

private Q_SLOTS:
    void init()
    {
        m_guard.emplace();
        makeWindow();
        m_window->replay().setClock([this] { return m_clockUs += 1'700'000; });
        m_window->replay().setTickInterval(std::chrono::milliseconds(0));
        QSignalSpy opened(m_window.get(), &MainWindow::recordingOpened);
        m_window->open(samplePath());
        QVERIFY(opened.wait());
    }

    void cleanup()
    {
        GuiBase::Instance().UnregisterPersistentWidget(m_window.get());
        m_window.reset();
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }

    void findsWhatIsAboveTheLine_data()
    {
        // Bins of 10 Hz from 0 on, each at -50 dB but the one from 200 to 210 Hz at -20 dB.
        QTest::addColumn<QList<double>>("line");
        QTest::addColumn<double>("found"); // 0: none
        QTest::newRow("no line") << QList<double>() << 0.0;
        QTest::newRow("point on the bin") << QList<double>{203, -30} << 205.0;
        QTest::newRow("point beside it") << QList<double>{215, -30} << 0.0;
        QTest::newRow("point as high") << QList<double>{203, -20} << 0.0;
        QTest::newRow("slope above") << QList<double>{0, -40, 410, 20} << 0.0;
        QTest::newRow("slope below") << QList<double>{0, -40, 410, -10} << 205.0;
        QTest::newRow("second part") << QList<double>{0, 0, 100, 0, 190, -25, 300, -25} << 205.0;
        QTest::newRow("step") << QList<double>{0, 0, 200, 0, 200, -30, 300, -30} << 205.0;
        QTest::newRow("ends before") << QList<double>{0, -30, 150, -30} << 0.0;
        QTest::newRow("outside") << QList<double>{1000, -90, 2000, -90} << 0.0;
    }

    void findsWhatIsAboveTheLine()
    {
        QFETCH(QList<double>, line);
        std::vector<float> levels(40, -50);
        levels[20] = -20;
        levels[21] = noLevel;
        OwnedSegments segments;
        segments.add(0, 10, {levels.begin(), levels.begin() + 10});
        segments.add(100, 10, {levels.begin() + 10, levels.end()});
        std::vector<LevelPoint> points;
        for (qsizetype i = 0; i < line.size(); i += 2)
            points.push_back({line[i], line[i + 1]});
        QTEST(firstAbove(segments.sweep(), points).value_or(0), "found");
    }

    void menuIsSortedAsChosen_data()
    {
        QTest::addColumn<int>("order");
        QTest::addColumn<QStringList>("first");
        const QString jump = QStringLiteral("Jump");
        const QString hold = QStringLiteral("Start the hold");
        const QString pause = QStringLiteral("Pause above");
        QTest::newRow("name") << int(JobOrder::Name)
                              << QStringList{QStringLiteral("Export"), jump, pause};
        QTest::newRow("state") << int(JobOrder::State) << QStringList{pause, jump, hold};
        QTest::newRow("time") << int(JobOrder::Time) << QStringList{hold, pause, jump};
    }

    void menuIsSortedAsChosen()
    {
        QFETCH(int, order);
        QFETCH(QStringList, first);
        Jobs& jobs = m_window->jobs();
        Replay& replay = m_window->replay();
        jobs.run(idOf(QStringLiteral("Jump")));
        replay.jump(5);
        jobs.run(idOf(QStringLiteral("Pause above")));
        replay.pause();
        replay.jump(9);
        auto* menu = m_window->findChild<JobsMenu*>();
        menu->setOrder(static_cast<JobOrder>(order));
        // Chosen in the menu, and in its place the next time it is shown.
        menu->findItem(idOf(QStringLiteral("Start the hold")))->trigger();
        QShowEvent show;
        QCoreApplication::sendEvent(menu, &show);
        const QList<QAction*> entries = menu->actions();
        QCOMPARE(entries.size(), 7); // with the separator and the sub-menu
        QVERIFY(entries[5]->isSeparator() && entries[6]->menu() != nullptr);
        for (qsizetype i = 0; i < first.size(); ++i)
            QVERIFY2(entries[i]->text().startsWith(first[i]), qPrintable(entries[i]->text()));
        JobsMenu again(&jobs, nullptr);
        QCOMPARE(static_cast<int>(again.order()), order);
        jobs.reset();
        QCOMPARE(stateOf(QStringLiteral("Jump")), JobState::Ready);
    }

    void pausesAtANewSignal()
    {
        const QString name = QStringLiteral("new signal");
        m_window->jobs().run(idOf(name));
        QCOMPARE(stateOf(name), JobState::Waiting);
        QTRY_COMPARE(stateOf(name), JobState::Done);
        QVERIFY(!m_window->replay().isPlaying());
        QVERIFY(m_window->replay().position() < 10); // the hopper comes soon
        m_window->jobs().run(idOf(name));
        m_window->jobs().run(idOf(name)); // called off
        QCOMPARE(stateOf(name), JobState::Ready);
    }

    void pausesAtTheSweepAboveTheLevels()
    {
        // The drifting transmitter comes there at one time only.
        m_window->levelsPane().table().addRows({{QStringLiteral("99.25"), QStringLiteral("-60")}});
        QTRY_COMPARE(m_window->levelsPane().points().size(), 1U);
        Replay& replay = m_window->replay();
        qsizetype expected = 0;
        while (!firstAbove(replay.recording()->sweep(expected), m_window->levelsPane().points()))
            ++expected;
        QVERIFY(expected > 5);
        replay.setSpeed(7.3); // passes several sweeps at once
        m_window->jobs().run(idOf(QStringLiteral("above")));
        QTRY_COMPARE(stateOf(QStringLiteral("above")), JobState::Done);
        QCOMPARE(replay.position(), expected);
        QVERIFY(std::abs(m_window->bandView().view().cursor() - 99.25e6) < 25e3);
    }
};

QTEST_MAIN(tst_Jobs)
#include "tst_jobs.moc"
