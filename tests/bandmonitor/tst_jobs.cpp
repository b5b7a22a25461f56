// SPDX-License-Identifier: MIT
#include "centre/bandview.h"
#include "mainwindowtest.h"
#include "model/jobs.h"
#include "panels/jobsmenu.h"
#include "panels/levelspanel.h"
#include "recordings.h"

#include <radiopanes/core/levelline.h>

#include <guibase/lists/sortrowtable.h>

#include <QShowEvent>

using namespace bandmonitor;

class tst_Jobs : public MainWindowTest
{
    Q_OBJECT
    using Lines = TestRows<QList<double>, double>;
    using Orders = TestRows<JobOrder, QStringList>;
    qint64 m_clockUs = 0;

    const Job& job(const char* part) const
    {
        const auto& jobs = m_window->session().jobs().list().jobs();
        return *std::ranges::find_if(
            jobs, [part](const Job& job) { return job.name.contains(QLatin1String(part)); });
    }

    void prepare() override
    {
        openWindow();
        m_window->session().replay().setClock([this] { return m_clockUs += 1'700'000; });
        m_window->session().replay().setTickInterval(std::chrono::milliseconds(0));
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
        row("slope below", {0, -40, 410, -10}, 205);
        row("second part", {0, 0, 100, 0, 190, -25, 300, -25}, 205);
        row("step", {0, 0, 200, 0, 200, -30, 300, -30}, 205);
        row("ends before", {0, -30, 150, -30}, 0);
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
        const QString hold = QStringLiteral("Restart the hold");
        const QString pause = QStringLiteral("Pause above");
        Orders row;
        row("name", JobOrder::Name, {QStringLiteral("Export"), jump, pause});
        row("state", JobOrder::State, {pause, jump, hold});
        row("time", JobOrder::Time, {hold, pause, jump});
    }

    void menuIsSortedAsChosen()
    {
        const auto& [order, first] = Orders::fetch();
        Jobs& jobs = m_window->session().jobs();
        Replay& replay = m_window->session().replay();
        jobs.run(job("Jump").id);
        replay.jump(5);
        jobs.run(job("Pause above").id);
        replay.pause();
        replay.jump(9);
        auto* menu = m_window->findChild<JobsMenu*>();
        menu->setOrder(order);
        // Chosen in the menu, and in its place the next time it is shown.
        menu->findItem(job("Restart the hold").id)->trigger();
        QShowEvent show;
        QCoreApplication::sendEvent(menu, &show);
        const QList<QAction*> entries = menu->actions();
        QCOMPARE(entries.size(), 7); // with the separator and the sub-menu
        QVERIFY(entries[5]->isSeparator() && entries[6]->menu() != nullptr);
        for (qsizetype i = 0; i < first.size(); ++i)
            QVERIFY2(entries[i]->text().startsWith(first[i]), qPrintable(entries[i]->text()));
        QTRY_COMPARE(JobsMenu(&jobs, std::make_shared<SessionValues>(), nullptr).order(), order);
        jobs.reset();
        QCOMPARE(job("Jump").state, JobState::Ready);
    }

    void pausesAtANewSignal()
    {
        const char* const name = "new signal";
        m_window->session().jobs().run(job(name).id);
        QCOMPARE(job(name).state, JobState::Waiting);
        QTRY_COMPARE(job(name).state, JobState::Done);
        QVERIFY(!m_window->session().replay().isPlaying());
        QVERIFY(m_window->session().replay().position() < 10); // the hopper comes soon
        m_window->session().jobs().run(job(name).id);
        m_window->session().jobs().run(job(name).id); // called off
        QCOMPARE(job(name).state, JobState::Ready);
    }

    void pausesAtTheSweepAboveTheLevels()
    {
        // The drifting transmitter comes there at one time only.
        m_window->panel<LevelsPanel>().table().addRows(
            {{QStringLiteral("99.25"), QStringLiteral("-60")}});
        QTRY_COMPARE(m_window->panel<LevelsPanel>().points().size(), 1U);
        Replay& replay = m_window->session().replay();
        qsizetype expected = 0;
        while (!firstAbove(replay.recording()->sweep(expected),
                           m_window->panel<LevelsPanel>().points()))
            ++expected;
        QVERIFY(expected > 5);
        replay.setSpeed(7.3); // passes several sweeps at once
        m_window->session().jobs().run(job("above").id);
        QTRY_COMPARE(job("above").state, JobState::Done);
        QCOMPARE(replay.position(), expected);
        QVERIFY(std::abs(m_window->bandView().visibleBand().cursor() - 99.25e6) < 25e3);
    }
};

QTEST_MAIN(tst_Jobs)
#include "tst_jobs.moc"
