// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace bandmonitor {

/// How far a job is. The order is that of a list that is sorted by state.
enum class JobState {
    Waiting, ///< Started; waits for its sweep.
    Failed,
    Done,
    Ready ///< Not started yet, or called off.
};

enum class JobOrder { Name, State, Time };

struct Job
{
    int id = 0;
    QString name;
    JobState state = JobState::Ready;
    quint64 timeUs = 0; ///< The sweep at which it came to its state; 0 as long as it is new.
    /// The sweep at which it was started last; nothing as long as it is new. A job that is Ready
    /// and has one was called off.
    std::optional<quint64> startedUs = std::nullopt;
};

/// The jobs of a replay and how far they are.
class JobList
{
public:
    /// Returns the job's id; ids are counted from 0.
    int add(const QString& name);
    /// Null for an unknown id.
    const Job* find(int id) const;
    /// Nothing for an unknown id.
    void setState(int id, JobState state, quint64 timeUs);
    /// All jobs are new again.
    void reset();
    const std::vector<Job>& jobs() const { return m_jobs; }
    /// The ids by name, by state and then name, or by time: the latest first, new ones last.
    std::vector<int> ids(JobOrder order) const;

private:
    std::vector<Job> m_jobs;
};

} // namespace bandmonitor
