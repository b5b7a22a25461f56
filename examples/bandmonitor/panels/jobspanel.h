// SPDX-License-Identifier: MIT
#pragma once

#include "model/joblist.h"
#include "panels/panel.h"

#include <QPointer>

#include <vector>

class QLabel;
class QMenu;
class SortListView;
class SortListViewItem;

namespace bandmonitor {

class JobBarDelegate;
class Jobs;
class Replay;

/// The jobs of the replay as a list, each with its state in the planner colours of the colour set
/// and a bar on a time line from the first to the last sweep.
///
/// Return, Space, Enter and a double click start the job of a row or call it off, and so does the
/// context menu.
class JobsPanel : public Panel
{
    Q_OBJECT
public:
    enum Column { Name, State, TimeLine, Started, Ended, ColumnCount };

    /// Both may go before the panel, which is empty then. All jobs must have been added.
    JobsPanel(Jobs* jobs, const Replay* replay, QWidget* parent = nullptr);
    ~JobsPanel() override;

    SortListView& list() { return *m_list; }
    /// Start or call off the current job.
    QList<QAction*> keyActions() const override { return {m_run}; }

public Q_SLOTS:
    void refreshTexts() override { refresh(); }
    /// The recording has grown or lost sweeps, or another sweep is shown.
    void refreshTimes();

protected:
    void changeEvent(QEvent* event) override;

private:
    /// Jobs or their states, the recording, the time zone or the colours have changed.
    void refresh();
    void buildList();
    void buildActions();
    void refreshRows();
    void fillRow(SortListViewItem& row, const Job& job);
    void refreshActions();
    /// The id of the job in the current row; -1 without one.
    int currentJob() const;
    void runCurrent();

    QPointer<Jobs> m_jobs;
    QPointer<const Replay> m_replay;
    SortListView* m_list;
    JobBarDelegate* m_bars;
    QLabel* m_extent;
    QMenu* m_contextMenu;
    QAction* m_run = nullptr;
    std::vector<SortListViewItem*> m_rows; ///< By the id of the job; they belong to the list.
};

} // namespace bandmonitor
