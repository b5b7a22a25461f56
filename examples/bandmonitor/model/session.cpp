// SPDX-License-Identifier: MIT
#include "session.h"

#include <QFileInfo>

namespace bandmonitor {

Session::Session(QObject* parent)
    : QObject(parent)
    , m_jobs(&m_replay)
{
    connect(&m_loader, &RecordingLoader::progress, this, &Session::openProgress);
    connect(&m_loader, &RecordingLoader::finished, this, &Session::takeOver);
    connect(&m_loader, &RecordingLoader::failed, this, &Session::openFailed);
    connect(&m_loader, &RecordingLoader::cancelled, this, &Session::openCancelled);
    connect(&m_replay, &Replay::positionChanged, this, &Session::showSweep);
}

Session::~Session() = default;

void Session::open(const QString& path)
{
    m_loader.load(path);
}

void Session::takeOver()
{
    m_recording = m_loader.recording();
    m_fileName = QFileInfo(m_loader.path()).fileName();
    m_watch.setRecording(m_recording);
    m_jobs.reset();
    Q_EMIT recordingChanged();
    m_replay.setRecording(m_recording); // shows the first sweep
    Q_EMIT opened();
}

void Session::showSweep(qsizetype position, qsizetype previous)
{
    m_watch.showSweep(position, previous);
    m_bearings.update(m_watch.tracks());
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
