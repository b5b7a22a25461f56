// SPDX-License-Identifier: MIT
#include "jobs.h"
#include "jobsmenu.h"
#include "mainwindowtest.h"
#include "panes/bandview.h"
#include "panes/levelspane.h"
#include "recordings.h"
#include "support/testrows.h"

#include <model/levelline.h>

#include <guibase/lists/sortrowtable.h>

#include <QShowEvent>

using namespace bandmonitor;

class tst_Jobs : public MainWindowTest
{
    Q_OBJECT
    using Lines = TestRows<QList<double>, double>;
    using Orders = TestRows<JobOrder, QStringList>;
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

    void prepare() override
    {
        openWindow();
        m_window->replay().setClock([this] { return m_clockUs += 1'700'000; });
        m_window->replay().setTickInterval(std::chrono::milliseconds(0));
    }

private Q_SLOTS:
    void findsWhatIsAboveTheLine_data()
    {
        // Bins of 10 Hz from 0 on, each at -50 dB but the one from 200 to 210 Hz at -20 dB.
        Lines row; // the line; where the first bin above it is, 0 without
        row("no line", {}, 0);
        row("point on the bin", {203, -30}, 205);
        row("point beside it", {215, -30}, 0);
        row("point as high", {203, -20}, 0);
        row("slope above", {0, -40, 410, 20}, 0);
        row("slope below", {0, -40, 410, -10}, 205);
        row("second part", {0, 0, 100, 0, 190, -25, 300, -25}, 205);
        row("step", {0, 0, 200, 0, 200, -30, 300, -30}, 205);
        row("ends before", {0, -30, 150, -30}, 0);
        row("outside", {1000, -90, 2000, -90}, 0);
    }

    void findsWhatIsAboveTheLine()
    {
        const auto& [line, found] = Lines::fetch();
        std::vector<float> levels(40, -50);
        levels[20] = -20;
        levels[21] = noLevel;
        OwnedSegments segments;
        segments.add(0, 10, {levels.begin(), levels.begin() + 10});
        segments.add(100, 10, {levels.begin() + 10, levels.end()});
        std::vector<LevelPoint> points;
        for (qsizetype i = 0; i < line.size(); i += 2)
            points.push_back({line[i], line[i + 1]});
        QCOMPARE(firstAbove(segments.sweep(), points).value_or(0), found);
    }

    void menuIsSortedAsChosen_data()
    {
        const QString jump = QStringLiteral("Jump");
        const QString hold = QStringLiteral("Start the hold");
        const QString pause = QStringLiteral("Pause above");
        Orders row;
        row("name", JobOrder::Name, {QStringLiteral("Export"), jump, pause});
        row("state", JobOrder::State, {pause, jump, hold});
        row("time", JobOrder::Time, {hold, pause, jump});
    }

    void menuIsSortedAsChosen()
    {
        const auto& [order, first] = Orders::fetch();
        Jobs& jobs = m_window->jobs();
        Replay& replay = m_window->replay();
        jobs.run(idOf(QStringLiteral("Jump")));
        replay.jump(5);
        jobs.run(idOf(QStringLiteral("Pause above")));
        replay.pause();
        replay.jump(9);
        auto* menu = m_window->findChild<JobsMenu*>();
        menu->setOrder(order);
        // Chosen in the menu, and in its place the next time it is shown.
        menu->findItem(idOf(QStringLiteral("Start the hold")))->trigger();
        QShowEvent show;
        QCoreApplication::sendEvent(menu, &show);
        const QList<QAction*> entries = menu->actions();
        QCOMPARE(entries.size(), 7); // with the separator and the sub-menu
        QVERIFY(entries[5]->isSeparator() && entries[6]->menu() != nullptr);
        for (qsizetype i = 0; i < first.size(); ++i)
            QVERIFY2(entries[i]->text().startsWith(first[i]), qPrintable(entries[i]->text()));
        QCOMPARE(JobsMenu(&jobs, nullptr).order(), order);
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
