// SPDX-License-Identifier: MIT
#include "session.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace bandmonitor {

namespace {
constexpr qint64 grownTime = 100; // milliseconds
} // namespace

Session::Session(QObject* parent)
    : QObject(parent)
    , m_jobs(&m_replay)
{
    connect(&m_loader, &RecordingLoader::progress, this, &Session::loadProgress);
    connect(&m_loader, &RecordingLoader::finished, this, &Session::loaded);
    connect(&m_loader, &RecordingLoader::failed, this, [this](const QString& text) {
        loadingEnded();
        Q_EMIT openFailed(text);
    });
    connect(&m_loader, &RecordingLoader::cancelled, this, [this] {
        loadingEnded();
        Q_EMIT openCancelled();
    });
    connect(&m_replay, &Replay::positionChanged, this, &Session::showSweep);
}

Session::~Session() = default;

void Session::open(const QString& path)
{
    loadingEnded();
    m_loader.load(path);
}

void Session::loadProgress(qint64 done, qint64 total)
{
    Q_EMIT openProgress(done, total);
    const auto recording = m_loader.recording();
    if (!m_loader.isLoading() || recording->isEmpty())
        return;
    if (m_recording != recording) {
        takeOver(recording, QFileInfo(m_loader.path()).fileName(), Replay::Growth::Loading);
        m_sinceGrown.start();
    } else if (m_sinceGrown.elapsed() >= grownTime) {
        m_replay.recordingGrown();
        Q_EMIT grown();
        m_sinceGrown.start();
    }
}

void Session::loaded()
{
    if (m_recording != m_loader.recording())
        takeOver(m_loader.recording(), QFileInfo(m_loader.path()).fileName(),
                 Replay::Growth::Loading);
    loadingEnded();
    Q_EMIT opened();
}

/// What was loaded is all that there will be.
void Session::loadingEnded()
{
    if (!m_recording || m_recording != m_loader.recording())
        return;
    m_replay.recordingGrown();
    Q_EMIT grown();
    m_replay.setGrowth(Replay::Growth::None);
}

void Session::openLive(std::unique_ptr<LiveSource> source, std::size_t historyBytes)
{
    m_loader.cancel();
    auto next = std::make_unique<LiveInput>(std::move(source), historyBytes);
    if (isLive()) {
        m_nextLive = std::move(next);
        m_live->stop();
    } else {
        startLive(std::move(next));
    }
}

void Session::stopLive()
{
    m_nextLive.reset();
    if (isLive())
        m_live->stop();
}

void Session::startLive(std::unique_ptr<LiveInput> live)
{
    if (m_live)
        m_live.release()->deleteLater(); // it may be telling of its end
    m_live = std::move(live);
    m_hasLiveBegun = false;
    connect(m_live.get(), &LiveInput::grown, this, &Session::liveGrown);
    connect(m_live.get(), &LiveInput::statusChanged, this, &Session::liveChanged);
    connect(m_live.get(), &LiveInput::ended, this, &Session::liveInputEnded);
    connect(m_live.get(), &LiveInput::remarked, this,
            [this](const QString& text) { m_events.add(EventKind::Recording, text); });
    m_live->start();
    Q_EMIT liveChanged();
}

void Session::liveGrown()
{
    if (!m_hasLiveBegun) {
        m_hasLiveBegun = true;
        takeOver(m_live->recording(), m_live->name(), Replay::Growth::Live);
        m_replay.jump(m_replay.count() - 1);
        m_replay.play();
    }
    if (!showsLive())
        return; // a file was opened instead
    const qsizetype first = std::min(m_live->firstToKeep(), m_saver.firstNeeded(*m_recording));
    m_replay.recordingGrown(first);
    Q_EMIT grown();
    m_live->dropBefore(std::min(first, m_replay.position())); // a job may have gone back
}

void Session::liveInputEnded(const QString& reason)
{
    if (showsLive())
        m_replay.setGrowth(Replay::Growth::None);
    const QString text = tr("%1: %2").arg(m_live->name(), reason);
    if (m_hasLiveBegun || m_live->isStopped())
        Q_EMIT liveEnded(text);
    else
        Q_EMIT liveFailed(text);
    if (m_nextLive)
        startLive(std::move(m_nextLive));
}

void Session::save(const QString& path, const QByteArray& head)
{
    if (m_recording && !m_recording->isEmpty())
        m_saver.save(m_recording, path, head);
}

void Session::takeOver(std::shared_ptr<const Recording> recording, const QString& name,
                       Replay::Growth growth)
{
    if (isLive() && m_live->recording() != recording)
        stopLive();
    m_recording = std::move(recording);
    m_fileName = name;
    m_watch.setRecording(m_recording);
    m_jobs.reset();
    ++m_recordingNumber;
    m_events.setPlace({});
    Q_EMIT recordingChanged();
    m_replay.setRecording(m_recording); // shows the first sweep
    m_replay.setGrowth(growth);
    Q_EMIT begun();
}

void Session::showSweep(qsizetype position, qsizetype previous)
{
    m_watch.showSweep(position, previous);
    m_bearings.update(m_watch.tracks());
    m_events.setPlace({m_recordingNumber, position, m_replay.sweep().timeUs});
    Q_EMIT sweepShown(position, previous);
    m_jobs.sweepsPlayed(position, previous);
}

void Session::setReferenceLevels(const std::vector<LevelPoint>& points)
{
    if (points == m_referenceLevels)
        return;
    m_referenceLevels = points;
    Q_EMIT referenceLevelsChanged();
}

void Session::setThreshold(std::optional<double> levelDb)
{
    if (m_watch.setThreshold(levelDb) && m_replay.position() >= 0)
        showSweep(m_replay.position(), -1);
}

} // namespace bandmonitor
