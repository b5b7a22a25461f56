// SPDX-License-Identifier: MIT
#pragma once

#include "joblist.h"

#include <QObject>

#include <functional>
#include <optional>
#include <vector>

namespace bandmonitor {

class Replay;

/// Does the jobs of a replay: some at once, some when a sweep comes that they wait for.
class Jobs : public QObject
{
    Q_OBJECT
public:
    /// Done, Failed, or nothing when the user has called it off.
    using Task = std::function<std::optional<JobState>()>;
    /// The first sweep that is waited for among those from `first` to `last`, the shown one.
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
    /// The sweeps after `previous` up to `position` were played. Without playing no job looks.
    void sweepsPlayed(qsizetype position, qsizetype previous);

public Q_SLOTS:
    /// Does the job. One that waits is called off; one that begins to wait starts the replay.
    void run(int id);

Q_SIGNALS:
    /// For the user: what a job has come to.
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
