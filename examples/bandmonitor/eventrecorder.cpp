// SPDX-License-Identifier: MIT
#include "eventrecorder.h"

#include "jobs.h"
#include "model/eventlog.h"
#include "model/signalwatch.h"
#include "modes.h"

#include <QLocale>

#include <utility>

namespace bandmonitor {

EventRecorder::EventRecorder(EventLog* log, const Jobs* jobs, const Modes* modes,
                             const SignalWatch* watch, QObject* parent)
    : QObject(parent)
    , m_log(log)
    , m_jobs(jobs)
    , m_watch(watch)
{
    connect(jobs, &Jobs::jobChanged, this, &EventRecorder::jobChanged);
    connect(modes, &Modes::modeChanged, this, &EventRecorder::modeChanged);
}

EventRecorder::~EventRecorder() = default;

void EventRecorder::refreshTexts()
{
    m_text.refresh();
}

void EventRecorder::recordingOpened(const QString& fileName, qint64 sweeps, qint64 skippedLines)
{
    m_hasBegun = false;
    const QLocale locale;
    QString text = tr("%1 opened: %2 sweeps").arg(fileName, locale.toString(sweeps));
    if (skippedLines > 0)
        text += tr(", %1 lines skipped").arg(locale.toString(skippedLines));
    m_log->add(EventKind::Recording, text);
}

void EventRecorder::recordingFailed(const QString& text)
{
    m_log->add(EventKind::Recording, tr("Not opened: %1").arg(text));
}

void EventRecorder::modeChanged(Mode mode)
{
    QString title = Modes::title(mode);
    m_log->add(EventKind::Mode, tr("Mode: %1").arg(title.remove(QLatin1Char('&'))));
}

void EventRecorder::jobChanged(int id)
{
    const Job* job = m_jobs->list().find(id);
    if (job == nullptr)
        return;
    QString text;
    switch (job->state) {
    case JobState::Waiting:
        text = tr("%1: started");
        break;
    case JobState::Done:
        text = tr("%1: done");
        break;
    case JobState::Failed:
        text = tr("%1: failed");
        break;
    case JobState::Ready:
        text = tr("%1: called off");
        break;
    }
    m_log->add(EventKind::Job, text.arg(job->name));
}

QString EventRecorder::textOf(const Signal& signal) const
{
    return tr("%1, %2 dB").arg(m_text.full(signal.centreHz)).arg(signal.peakDb, 0, 'f', 1);
}

void EventRecorder::sweepShown()
{
    std::unordered_map<std::uint32_t, Signal> now;
    for (const SignalTrack& track : m_watch->tracks())
        now.emplace(track.id, track.signal);
    if (m_watch->hasBegunAnew()) {
        // Once, however far the replay is put back step by step.
        if (!now.empty() && !std::exchange(m_hasBegun, true))
            m_log->add(EventKind::Signal, tr("The signals are followed anew"));
        m_known = std::move(now);
        return;
    }
    m_hasBegun = false;
    // In the order of frequency.
    for (const SignalTrack& track : m_watch->tracks()) {
        if (!m_known.contains(track.id))
            m_log->add(EventKind::Signal, tr("Appeared: %1").arg(textOf(track.signal)));
    }
    for (const auto& [id, signal] : m_known) {
        if (!now.contains(id))
            m_log->add(EventKind::Signal, tr("Disappeared: %1").arg(textOf(signal)));
    }
    m_known = std::move(now);
}

} // namespace bandmonitor
