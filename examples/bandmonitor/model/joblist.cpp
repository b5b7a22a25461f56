// SPDX-License-Identifier: MIT
#include "joblist.h"

#include <algorithm>

namespace bandmonitor {

int JobList::add(const QString& name)
{
    const int id = static_cast<int>(m_jobs.size());
    m_jobs.push_back({id, name, JobState::Ready, 0});
    return id;
}

const Job* JobList::find(int id) const
{
    return id >= 0 && static_cast<std::size_t>(id) < m_jobs.size()
               ? &m_jobs[static_cast<std::size_t>(id)]
               : nullptr;
}

void JobList::setState(int id, JobState state, quint64 timeUs)
{
    if (find(id) == nullptr)
        return;
    Job& job = m_jobs[static_cast<std::size_t>(id)];
    // What is done at once starts and ends at the same sweep.
    if (job.state != JobState::Waiting && state != JobState::Ready)
        job.startedUs = timeUs;
    job.state = state;
    job.timeUs = timeUs;
}

void JobList::reset()
{
    for (Job& job : m_jobs) {
        job.state = JobState::Ready;
        job.timeUs = 0;
        job.startedUs.reset();
    }
}

std::vector<int> JobList::ids(JobOrder order) const
{
    std::vector<Job> sorted = m_jobs;
    std::sort(sorted.begin(), sorted.end(), [order](const Job& a, const Job& b) {
        if (order == JobOrder::State && a.state != b.state)
            return a.state < b.state;
        if (order == JobOrder::Time && a.timeUs != b.timeUs)
            return a.timeUs > b.timeUs;
        const int names = QString::localeAwareCompare(a.name, b.name);
        return names != 0 ? names < 0 : a.id < b.id;
    });
    std::vector<int> result;
    result.reserve(sorted.size());
    for (const Job& job : sorted)
        result.push_back(job.id);
    return result;
}

} // namespace bandmonitor
