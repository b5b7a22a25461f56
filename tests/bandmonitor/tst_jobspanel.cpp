// SPDX-License-Identifier: MIT
#include "model/jobs.h"
#include "model/replay.h"
#include "model/samplegenerator.h"
#include "panels/jobbar.h"
#include "panels/jobspanel.h"
#include "recordings.h"
#include "support/guardedtest.h"

#include <radiopanes/colors/contrast.h>
#include <radiopanes/colors/panecolors.h>

#include <guibase/colors/colorcontrast.h>
#include <guibase/colors/colorset.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>
#include <valueframework/valueselection.h>

#include <optional>

using namespace bandmonitor;

class tst_JobsPanel : public GuardedTest
{
    Q_OBJECT
    ReadRecording m_sample;
    std::unique_ptr<Replay> m_replay;
    std::unique_ptr<Jobs> m_jobs;
    std::unique_ptr<JobsPanel> m_panel;
    int m_pause = -1;
    int m_fail = -1;

    QTreeWidgetItem* row(int id) const
    {
        const QString name = m_jobs->list().find(id)->name;
        return m_panel->list().findItem(name, JobsPanel::Name);
    }
    QColor colorOf(int id) const { return row(id)->background(JobsPanel::State).color(); }
    std::optional<JobBar> barOf(int id) const
    {
        const QVariant bar = row(id)->data(JobsPanel::TimeLine, JobBarDelegate::barRole);
        return bar.isValid() ? std::optional(bar.value<JobBar>()) : std::nullopt;
    }

    void prepare() override
    {
        GuiBase::Instance().GetTimeZone()->SetValue(0);
        m_replay = std::make_unique<Replay>();
        m_replay->setClock([] { return 0; }); // it plays, but gets nowhere by itself
        m_jobs = std::make_unique<Jobs>(m_replay.get());
        m_fail = m_jobs->addTask(QStringLiteral("Fail"), [] { return JobState::Failed; });
        m_pause = m_jobs->addPause(QStringLiteral("Pause"), [](qsizetype, qsizetype last) {
            return last >= 30 ? std::optional(last) : std::nullopt;
        });
        m_panel = std::make_unique<JobsPanel>(m_jobs.get(), m_replay.get());
        m_replay->setRecording(m_sample.recording);
        m_panel->show();
    }

    void tidy() override
    {
        m_panel.reset();
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
        QCOMPARE(row(m_pause)->text(JobsPanel::Ended), QStringLiteral("00:00:35"));
        m_jobs->reset();
        QVERIFY(!barOf(m_pause));
    }

    void keysStartAndCallOff()
    {
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        m_panel->setFocus();
        m_panel->list().setCurrentItem(row(m_pause));
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            QTest::keyClick(&m_panel->list(), key);
            QCOMPARE(colorOf(m_pause), paneColor(IColorBase::PlannerRunning));
            QTest::keyClick(&m_panel->list(), key);
            QCOMPARE(colorOf(m_pause), paneColor(IColorBase::PlannerAborted));
        }
    }

    void textsAreReadableOnAllColours()
    {
        m_jobs->run(m_fail);
        ColorSet::Instance().Backup();
        for (const char* color : {"#000", "#800", "#888", "#f00", "#ff0", "#2323dc", "#999999"}) {
            ColorSet::Instance().SetColor(IColorBase::PlannerFailed, QColor(QLatin1String(color)),
                                          true);
            QVERIFY(ColorContrast::ratio(colorOf(m_fail),
                                         row(m_fail)->foreground(JobsPanel::State).color()) >=
                    textContrast);
        }
        ColorSet::Instance().Restore();
        QVERIFY(qAbs(ColorContrast::ratio(QColor(0x76, 0x76, 0x76), Qt::white) - 4.54) < 0.005);
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

    void modelsMayGoBeforeThePanel()
    {
        m_jobs->run(m_pause);
        m_jobs.reset();
        QCOMPARE(m_panel->list().topLevelItemCount(), 0);
        m_replay.reset();
        QVERIFY(!m_panel->grab().isNull());
    }
};

QTEST_MAIN(tst_JobsPanel)
#include "tst_jobspanel.moc"
