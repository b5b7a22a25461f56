// SPDX-License-Identifier: MIT
#pragma once

#include "model/joblist.h"

#include <QPointer>
#include <QWidget>

#include <vector>

class QAction;
class QLabel;
class QMenu;
class SortListView;
class SortListViewItem;

namespace bandmonitor {

class JobBarDelegate;
class Jobs;
class JobsMenu;
class Replay;

/// The jobs of the replay as a list, each with its state in the planner colours of the colour set
/// and a bar on a time line from the first to the last sweep.
///
/// Return, Space, Enter and a double click on a row trigger the job's entry in the jobs menu, and
/// so does the context menu; without that menu the list only shows.
class JobsPane : public QWidget
{
    Q_OBJECT
public:
    enum Column { Name, State, TimeLine, Started, Ended, ColumnCount };

    /// Both may go before the pane, which is empty then. Jobs may be added later.
    JobsPane(Jobs* jobs, const Replay* replay, QWidget* parent = nullptr);
    ~JobsPane() override;

    /// Once all jobs are known. The menu is not owned and may go before the pane.
    void setMenu(JobsMenu* menu);
    SortListView& list() { return *m_list; }
    /// Start or call off the current job, for the overview of keys.
    const QList<QAction*>& jobActions() const { return m_actions; }

public Q_SLOTS:
    /// Jobs or their states, the recording, the time zone or the colours have changed.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildList();
    void buildActions();
    void refreshRows();
    void fillRow(SortListViewItem& row, const Job& job);
    void refreshTimes();
    void refreshActions();
    /// Those that stand in the list for the state; -1 without a current row.
    int currentJob() const;
    void trigger(int id);

    QPointer<Jobs> m_jobs;
    QPointer<const Replay> m_replay;
    QPointer<JobsMenu> m_menu;
    SortListView* m_list;
    JobBarDelegate* m_bars;
    QLabel* m_extent;
    QMenu* m_contextMenu;
    QAction* m_run = nullptr;
    QList<QAction*> m_actions;
    std::vector<SortListViewItem*> m_rows; ///< By the id of the job; they belong to the list.
};

} // namespace bandmonitor
