// SPDX-License-Identifier: MIT
#include "panels/jobspanel.h"

#include "model/jobs.h"
#include "model/panenames.h"
#include "model/replay.h"
#include "panels/emptyhint.h"
#include "panels/jobbar.h"
#include "panels/listtext.h"
#include "panels/panelactions.h"
#include "panels/wrappingrow.h"

#include <radiopanes/colors/contrast.h>
#include <radiopanes/colors/panecolors.h>

#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

namespace bandmonitor {

namespace {

constexpr int idRole = Qt::UserRole;
constexpr int cellPadding = 24;
constexpr int smallestColumn = 60;
constexpr int timeLineWidth = 70; // as long as the panel is narrow

constexpr const char* columnTitles[JobsPanel::ColumnCount] = {
    QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "Job"),
    QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "State"),
    QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "Time line"),
    QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "Started"),
    QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "Ended"),
};

/// A state as the planner colours tell them apart.
struct Appearance
{
    IColorBase::ECOLOR slot;
    const char* text;
};

constexpr Appearance ready{IColorBase::PlannerPlanned,
                           QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "Ready")};
constexpr Appearance waiting{IColorBase::PlannerAboutToStart,
                             QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "Waiting")};
constexpr Appearance running{IColorBase::PlannerRunning,
                             QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "Running")};
constexpr Appearance finished{IColorBase::PlannerFinished,
                              QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "Done")};
constexpr Appearance failed{IColorBase::PlannerFailed,
                            QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "Failed")};
constexpr Appearance calledOff{IColorBase::PlannerAborted,
                               QT_TRANSLATE_NOOP("bandmonitor::JobsPanel", "Called off")};
constexpr const Appearance* appearances[] = {&ready,    &waiting, &running,
                                             &finished, &failed,  &calledOff};

const Appearance& appearanceOf(const Job& job, bool isPlaying)
{
    switch (job.state) {
    case JobState::Waiting:
        // It looks at the sweeps that are played, and at no others.
        return isPlaying ? running : waiting;
    case JobState::Failed:
        return failed;
    case JobState::Done:
        return finished;
    case JobState::Ready:
        break;
    }
    return job.startedUs ? calledOff : ready;
}

} // namespace

JobsPanel::JobsPanel(Jobs* jobs, const Replay* replay, QWidget* parent)
    : Panel(parent)
    , m_jobs(jobs)
    , m_replay(replay)
    , m_list(new SortListView(this, "jobs"))
    , m_bars(new JobBarDelegate(this))
    , m_extent(new QLabel(this))
    , m_contextMenu(new QMenu(this))
{
    setAccessibleName(tr("Jobs"));
    setFocusProxy(m_list);
    buildList();
    buildActions();
    m_extent->setObjectName(QStringLiteral("jobTimes"));
    m_extent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_extent->setWordWrap(true);
    m_extent->setMargin(2); // from the edge of the window
    m_extent->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    WrappingRow* row = makeButtonRow(this, {m_run});
    row->addWidget(m_extent);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(m_list, 1);
    column->addLayout(row);

    connect(jobs, &Jobs::jobChanged, this, &JobsPanel::refresh);
    connect(jobs, &Jobs::jobsReset, this, &JobsPanel::refresh);
    connect(jobs, &QObject::destroyed, this, &JobsPanel::refresh);
    connect(replay, &Replay::playingChanged, this, &JobsPanel::refresh);
    connect(replay, &Replay::positionChanged, this, &JobsPanel::refreshTimes);
    connect(replay, &QObject::destroyed, this, &JobsPanel::refresh);
    connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, this, &JobsPanel::refresh);
    refresh();
}

JobsPanel::~JobsPanel() = default;

void JobsPanel::buildList()
{
    m_list->setAccessibleName(tr("Jobs"));
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setPlacingArrivals(true);
    m_list->SetCompareFunctionLength(ColumnCount);
    for (int column = 0; column < ColumnCount; ++column) {
        m_list->addColumn(tr(columnTitles[column]));
        m_list->SetCompareFunction(column, SortListView::_compStandardString);
    }
    for (const Column column : {Started, Ended, TimeLine})
        m_list->SetCompareFunction(column, SortListView::_compStandardNumeric);
    // No state may be cut off, whatever the language.
    int widest = 0;
    for (const Appearance* appearance : appearances)
        widest = std::max(widest, fontMetrics().horizontalAdvance(tr(appearance->text)));
    m_list->setColumnWidth(State, widest + cellPadding);
    for (const Column column : {Started, Ended})
        m_list->setColumnWidthMode(column, QHeaderView::ResizeToContents);
    // The time line shows both; who wants them in figures has the menu of the header.
    for (const Column column : {Started, Ended})
        m_list->setColumnHidden(column, true);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setMinimumSectionSize(smallestColumn);
    // Names give way in a narrow panel: their tool tips tell them in full.
    m_list->setColumnWidthMode(Name, QHeaderView::Stretch);
    m_list->setColumnWidth(TimeLine, timeLineWidth);
    m_list->setItemDelegateForColumn(TimeLine, m_bars);
    m_list->setSorting(Name, Qt::AscendingOrder);
    m_list->setShowSortIndicator(true);
    m_list->header()->setSortIndicator(Name, Qt::AscendingOrder);
    m_list->setContextMenu(m_contextMenu);
    new EmptyHint(tr("The jobs of the replay appear here, each with its state and its time."),
                  m_list);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &JobsPanel::refreshActions);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &JobsPanel::refreshActions);
    connect(m_list, &SortListView::clicked, this, &JobsPanel::runCurrent);
}

void JobsPanel::buildActions()
{
    m_run =
        addPanelAction(this, tr("&Start"), Qt::Key_Space, tr("Starts the job, or calls it off"));
    m_run->setObjectName(QStringLiteral("runJob"));
    connect(m_run, &QAction::triggered, this, &JobsPanel::runCurrent);
    m_contextMenu->addAction(m_run);
}

int JobsPanel::currentJob() const
{
    const QTreeWidgetItem* row = m_list->currentItem();
    return row != nullptr ? row->data(Name, idRole).toInt() : -1;
}

void JobsPanel::runCurrent()
{
    if (m_jobs)
        m_jobs->run(currentJob());
}

void JobsPanel::changeEvent(QEvent* event)
{
    Panel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refresh();
}

void JobsPanel::refresh()
{
    refreshRows();
    refreshTimes();
    refreshActions();
}

void JobsPanel::refreshRows()
{
    const std::size_t count = m_jobs ? m_jobs->list().jobs().size() : 0;
    if (m_rows.size() > count) {
        m_rows.clear();
        m_list->clear();
    }
    for (std::size_t id = m_rows.size(); id < count; ++id) {
        auto* row = new SortListViewItem(m_list);
        row->SetColCount(ColumnCount);
        row->setData(Name, idRole, static_cast<int>(id));
        m_rows.push_back(row);
    }
    for (std::size_t id = 0; id < count; ++id)
        fillRow(*m_rows[id], m_jobs->list().jobs()[id]);
    m_list->sort();
}

void JobsPanel::fillRow(SortListViewItem& row, const Job& job)
{
    const Appearance& appearance = appearanceOf(job, m_replay && m_replay->isPlaying());
    const QColor color = paneColor(appearance.slot);
    const bool hasEnded = job.startedUs && job.state != JobState::Waiting;
    const quint64 started = job.startedUs.value_or(0);
    row.setText(Name, job.name);
    row.setText(State, tr(appearance.text));
    row.setBackground(State, color);
    row.setForeground(State, readableOn(color, m_list->palette().color(QPalette::Text)));
    const quint64 now = m_replay ? m_replay->sweep().timeUs : started;
    const auto timeText = [now](quint64 timeUs) { return recordedTime(timeUs, now); };
    row.setText(Started, job.startedUs ? timeText(started) : QString());
    row.setText(Ended, hasEnded ? timeText(job.timeUs) : QString());
    for (const Column column : {Started, TimeLine})
        row.SetSortKey(column, QString::number(started));
    row.SetSortKey(Ended, QString::number(hasEnded ? job.timeUs : 0));
    const JobBar bar{started, hasEnded ? job.timeUs : now, color};
    row.setData(TimeLine, JobBarDelegate::barRole,
                job.startedUs ? QVariant::fromValue(bar) : QVariant());
    QString spoken = tr("%1: %2").arg(job.name, tr(appearance.text));
    if (hasEnded)
        spoken = tr("%1, from %2 to %3").arg(spoken, timeText(started), timeText(job.timeUs));
    else if (job.startedUs)
        spoken = tr("%1, since %2").arg(spoken, timeText(started));
    row.setToolTip(Name, spoken);
    row.setToolTip(TimeLine, spoken);
    row.setData(TimeLine, Qt::AccessibleTextRole, spoken);
}

void JobsPanel::refreshTimes()
{
    const auto recording = m_replay ? m_replay->recording() : nullptr;
    JobTimes times;
    if (recording && !recording->isEmpty()) {
        times.firstUs = recording->sweep(recording->first()).timeUs;
        times.lastUs = std::max(times.firstUs, recording->sweep(recording->count() - 1).timeUs);
        times.nowUs = m_replay->sweep().timeUs;
    }
    m_extent->setText(times.nowUs ? tr("Time line: %1 to %2, now %3")
                                        .arg(recordedTime(times.firstUs, *times.nowUs),
                                             recordedTime(times.lastUs, *times.nowUs),
                                             recordedTime(*times.nowUs, *times.nowUs))
                                  : tr("No recording"));
    if (m_jobs && times.nowUs) {
        for (const Job& job : m_jobs->list().jobs()) {
            if (job.state == JobState::Waiting && static_cast<std::size_t>(job.id) < m_rows.size())
                fillRow(*m_rows[static_cast<std::size_t>(job.id)], job);
        }
    }
    if (times == m_bars->times())
        return;
    m_bars->setTimes(times);
    m_list->viewport()->update();
}

void JobsPanel::refreshActions()
{
    const Job* job = m_jobs ? m_jobs->list().find(currentJob()) : nullptr;
    const bool isWaiting = job != nullptr && job->state == JobState::Waiting;
    m_run->setText(isWaiting ? tr("&Call off") : tr("&Start"));
    m_run->setEnabled(job != nullptr);
}

} // namespace bandmonitor
