// SPDX-License-Identifier: MIT
#include "recordings.h"
#include "support/guardedtest.h"

#include <jobs.h>
#include <jobsmenu.h>
#include <model/replay.h>
#include <model/samplegenerator.h>
#include <panes/contrast.h>
#include <panes/jobbar.h>
#include <panes/jobspane.h>
#include <panes/panecolors.h>

#include <guibase/colors/colorset.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>
#include <valueframework/valueselection.h>

#include <QAction>

#include <optional>

using namespace bandmonitor;

class tst_JobsPane : public GuardedTest
{
    Q_OBJECT
    ReadRecording m_sample;
    std::unique_ptr<Replay> m_replay;
    std::unique_ptr<Jobs> m_jobs;
    std::unique_ptr<JobsPane> m_pane;
    std::unique_ptr<JobsMenu> m_menu;
    int m_pause = -1;
    int m_fail = -1;

    QTreeWidgetItem* row(int id) const
    {
        const QString name = m_jobs->list().find(id)->name;
        return m_pane->list().findItem(name, JobsPane::Name);
    }
    QColor colorOf(int id) const { return row(id)->background(JobsPane::State).color(); }
    std::optional<JobBar> barOf(int id) const
    {
        const QVariant bar = row(id)->data(JobsPane::TimeLine, JobBarDelegate::barRole);
        return bar.isValid() ? std::optional(bar.value<JobBar>()) : std::nullopt;
    }

    void prepare() override
    {
        GuiBase::Instance().GetTimeZone()->SetValue(0);
        m_replay = std::make_unique<Replay>();
        m_replay->setClock([] { return 0; }); // it plays, but gets nowhere by itself
        m_jobs = std::make_unique<Jobs>(m_replay.get());
        m_pane = std::make_unique<JobsPane>(m_jobs.get(), m_replay.get());
        m_fail = m_jobs->addTask(QStringLiteral("Fail"), [] { return JobState::Failed; });
        m_pause = m_jobs->addPause(QStringLiteral("Pause"), [](qsizetype, qsizetype last) {
            return last >= 30 ? std::optional(last) : std::nullopt;
        });
        m_menu = std::make_unique<JobsMenu>(m_jobs.get(), nullptr);
        m_pane->setMenu(m_menu.get());
        m_replay->setRecording(m_sample.recording);
        m_pane->show();
    }

    void tidy() override
    {
        m_pane.reset();
        m_menu.reset();
        m_jobs.reset();
    }

private Q_SLOTS:
    void initTestCase() { m_sample.read(SampleGenerator().remaining().toStdString()); }

    void rowsTellTheStates()
    {
        QCOMPARE(colorOf(m_pause), paneColor(IColorBase::PlannerPlanned));
        QVERIFY(!barOf(m_pause));
        m_replay->jump(10);
        m_jobs->run(m_fail);
        QCOMPARE(colorOf(m_fail), paneColor(IColorBase::PlannerFailed));
        m_jobs->run(m_pause);
        QCOMPARE(colorOf(m_pause), paneColor(IColorBase::PlannerRunning));
        m_replay->pause();
        QCOMPARE(colorOf(m_pause), paneColor(IColorBase::PlannerAboutToStart));
        m_replay->jump(20); // the bar of a job that goes on grows
        QCOMPARE(barOf(m_pause)->fromUs, m_sample.recording->sweep(10).timeUs);
        QCOMPARE(barOf(m_pause)->toUs, m_sample.recording->sweep(20).timeUs);
        m_replay->play();
        m_replay->jump(35);
        m_jobs->sweepsPlayed(35, 20);
        QCOMPARE(colorOf(m_pause), paneColor(IColorBase::PlannerFinished));
        m_replay->jump(50);
        QCOMPARE(barOf(m_pause)->toUs, m_sample.recording->sweep(35).timeUs);
        QCOMPARE(row(m_pause)->text(JobsPane::Ended), QStringLiteral("00:00:35"));
        m_jobs->reset();
        QVERIFY(!barOf(m_pause));
    }

    void keysStartAndCallOff()
    {
        QVERIFY(QTest::qWaitForWindowActive(m_pane.get()));
        m_pane->setFocus();
        m_pane->list().setCurrentItem(row(m_pause));
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            QTest::keyClick(&m_pane->list(), key);
            QCOMPARE(colorOf(m_pause), paneColor(IColorBase::PlannerRunning));
            QTest::keyClick(&m_pane->list(), key);
            QCOMPARE(colorOf(m_pause), paneColor(IColorBase::PlannerAborted));
        }
        m_menu.reset(); // without the menu nothing can be started
        m_pane->refresh();
        QVERIFY(!m_pane->jobActions().constFirst()->isEnabled());
        QTest::keyClick(&m_pane->list(), Qt::Key_Return);
        QCOMPARE(colorOf(m_pause), paneColor(IColorBase::PlannerAborted));
    }

    void textsAreReadableOnAllColours()
    {
        m_jobs->run(m_fail);
        ColorSet::Instance().Backup();
        for (const char* color : {"#000", "#800", "#888", "#f00", "#ff0", "#2323dc", "#999999"}) {
            ColorSet::Instance().SetColor(IColorBase::PlannerFailed, QColor(QLatin1String(color)),
                                          true);
            QVERIFY(
                contrastRatio(colorOf(m_fail), row(m_fail)->foreground(JobsPane::State).color()) >=
                textContrast);
        }
        ColorSet::Instance().Restore();
        QVERIFY(qAbs(contrastRatio(QColor(0x76, 0x76, 0x76), Qt::white) - 4.54) < 0.005);
    }

    void barsStayInTheirCells()
    {
        JobBarDelegate delegate(nullptr);
        delegate.setTimes({100, 200, 150});
        const QRectF cell(10, 0, 104, 20);
        QVERIFY(delegate.barRect(cell, {200, 200, {}}).width() >= 2);
        QVERIFY(cell.contains(delegate.barRect(cell, {0, 900, {}})));
        QCOMPARE(delegate.barRect(cell, {150, 200, {}}), QRectF(62, 3, 50, 14));
    }

    void modelsMayGoBeforeThePane()
    {
        m_jobs->run(m_pause);
        m_menu.reset();
        m_jobs.reset();
        QCOMPARE(m_pane->list().topLevelItemCount(), 0);
        m_replay.reset();
        QVERIFY(!m_pane->grab().isNull());
    }
};

QTEST_MAIN(tst_JobsPane)
#include "tst_jobspane.moc"
