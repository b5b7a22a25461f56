// SPDX-License-Identifier: MIT
#pragma once

#include "joblist.h"

#include <QObject>

#include <functional>
#include <optional>
#include <vector>

namespace bandmonitor {

class Replay;

/// Runs the jobs of a replay. Some are done at once, others wait for a certain sweep.
class Jobs : public QObject
{
    Q_OBJECT
public:
    /// Returns Done or Failed; nothing when the user has cancelled it.
    using Task = std::function<std::optional<JobState>()>;
    /// Finds the sweep that the job waits for among those from `first` to `last`, the shown one;
    /// nothing when none of them is.
    using Condition = std::function<std::optional<qsizetype>(qsizetype first, qsizetype last)>;

    /// The replay must outlive the jobs.
    explicit Jobs(Replay* replay, QObject* parent = nullptr);
    ~Jobs() override;

    int addTask(const QString& name, Task task);
    /// A job that waits for a sweep while the replay plays, and then pauses at it.
    int addPause(const QString& name, Condition condition);
    const JobList& list() const { return m_list; }

    /// All jobs are new again: another recording.
    void reset();
    /// The sweeps after `previous` up to `position` were played. Does nothing unless the replay
    /// plays.
    void sweepsPlayed(qsizetype position, qsizetype previous);

public Q_SLOTS:
    /// Does the job. One that waits is called off; one that begins to wait starts the replay.
    void run(int id);

Q_SIGNALS:
    /// A job has ended; `text` is one line for the user.
    void report(const QString& text);
    /// The job has another state now.
    void jobChanged(int id);
    /// All jobs are new again.
    void jobsReset();

private:
    void finish(int id, JobState state);

    Replay* m_replay;
    JobList m_list;
    std::vector<Task> m_tasks;           ///< By id; empty for a job that waits.
    std::vector<Condition> m_conditions; ///< By id; empty for one that does not.
};

} // namespace bandmonitor
