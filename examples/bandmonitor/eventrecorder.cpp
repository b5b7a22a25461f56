// SPDX-License-Identifier: MIT
#include "eventrecorder.h"

#include "counts.h"
#include "docks/modes.h"
#include "model/session.h"

#include <utility>

namespace bandmonitor {

EventRecorder::EventRecorder(Session* session, const Modes* modes, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_log(&session->events())
{
    connect(session, &Session::recordingChanged, this, [this] { m_hasBegun = false; });
    connect(session, &Session::opened, this, &EventRecorder::recordingOpened);
    connect(session, &Session::openFailed, this, [this](const QString& text) {
        m_log->add(EventKind::Recording, tr("Not opened: %1").arg(text));
    });
    connect(session, &Session::sweepShown, this, &EventRecorder::sweepShown);
    connect(session, &Session::begun, this, [this] {
        if (m_session->showsLive())
            m_log->add(EventKind::Recording, tr("Live input from %1").arg(m_session->fileName()));
    });
    connect(session, &Session::liveEnded, this, [this](const QString& text) {
        m_log->add(EventKind::Recording, tr("Live input has ended. %1").arg(text));
    });
    connect(session, &Session::liveFailed, this, [this](const QString& text) {
        m_log->add(EventKind::Recording, tr("No live input. %1").arg(text));
    });
    connect(&session->jobs(), &Jobs::jobChanged, this, &EventRecorder::jobChanged);
    connect(modes, &Modes::modeChanged, this, &EventRecorder::modeChanged);
}

EventRecorder::~EventRecorder() = default;

void EventRecorder::refreshTexts()
{
    m_text.refresh();
}

void EventRecorder::recordingOpened()
{
    const qint64 skippedLines = m_session->loader().skippedCount();
    QString text = tr("%1 opened: %2")
                       .arg(m_session->fileName(), sweepCountText(m_session->recording()->count()));
    if (skippedLines > 0)
        text += QLatin1String(", ") + skippedLinesText(skippedLines);
    m_log->add(EventKind::Recording, text);
}

void EventRecorder::modeChanged(Mode mode)
{
    QString title = Modes::title(mode);
    m_log->add(EventKind::Mode, tr("Mode: %1").arg(title.remove(QLatin1Char('&'))));
}

void EventRecorder::jobChanged(int id)
{
    const Job* job = m_session->jobs().list().find(id);
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
    for (const SignalTrack& track : m_session->watch().tracks())
        now.emplace(track.id, track.signal);
    if (m_session->watch().hasBegunAnew()) {
        // Once, however far the replay is put back step by step.
        if (!now.empty() && !std::exchange(m_hasBegun, true))
            m_log->add(EventKind::Signal, tr("Following the signals has restarted"));
        m_known = std::move(now);
        return;
    }
    m_hasBegun = false;
    // In the order of frequency.
    for (const SignalTrack& track : m_session->watch().tracks()) {
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
