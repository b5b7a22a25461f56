// SPDX-License-Identifier: MIT
#include "jobs.h"

#include "replay.h"

namespace bandmonitor {

Jobs::Jobs(Replay* replay, QObject* parent)
    : QObject(parent)
    , m_replay(replay)
{}

Jobs::~Jobs() = default;

int Jobs::addTask(const QString& name, Task task)
{
    m_tasks.push_back(std::move(task));
    m_conditions.emplace_back();
    return m_list.add(name);
}

int Jobs::addPause(const QString& name, Condition condition)
{
    m_tasks.emplace_back();
    m_conditions.push_back(std::move(condition));
    return m_list.add(name);
}

void Jobs::reset()
{
    m_list.reset();
    Q_EMIT jobsReset();
}

void Jobs::finish(int id, JobState state)
{
    m_list.setState(id, state, m_replay->sweep().timeUs);
    const QString name = m_list.find(id)->name;
    if (state == JobState::Done)
        Q_EMIT report(tr("%1: done").arg(name));
    else if (state == JobState::Failed)
        Q_EMIT report(tr("%1: failed").arg(name));
    Q_EMIT jobChanged(id);
}

void Jobs::run(int id)
{
    const Job* job = m_list.find(id);
    if (job == nullptr)
        return;
    const Task& task = m_tasks[static_cast<std::size_t>(id)];
    if (task) {
        if (const std::optional<JobState> state = task())
            finish(id, *state);
        return;
    }
    const bool waits = job->state == JobState::Waiting;
    finish(id, waits ? JobState::Ready : JobState::Waiting);
    if (!waits)
        m_replay->play();
}

void Jobs::sweepsPlayed(qsizetype position, qsizetype previous)
{
    if (!m_replay->isPlaying() || previous < 0)
        return;
    for (const Job& job : m_list.jobs()) {
        const Condition& condition = m_conditions[static_cast<std::size_t>(job.id)];
        if (job.state != JobState::Waiting || !condition)
            continue;
        const std::optional<qsizetype> found = condition(previous + 1, position);
        if (!found)
            continue;
        m_replay->pause();
        if (*found != m_replay->position())
            m_replay->jump(*found);
        finish(job.id, JobState::Done);
    }
}

} // namespace bandmonitor
