// SPDX-License-Identifier: MIT
#include "recordingsaver.h"

#include "recordingwriter.h"

#include <QElapsedTimer>
#include <QSaveFile>

#include <algorithm>
#include <limits>

namespace bandmonitor {

namespace {

constexpr qint64 sliceTime = 8; // milliseconds
constexpr qsizetype pieceSize = qsizetype{256} * 1024;

} // namespace

RecordingSaver::RecordingSaver(QObject* parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &RecordingSaver::slice);
}

RecordingSaver::~RecordingSaver()
{
    for (bool isGood = isSaving(); isGood && m_file->isOpen();)
        isGood = writePiece();
}

void RecordingSaver::save(std::shared_ptr<const Recording> recording, const QString& path,
                          const QByteArray& head)
{
    m_recording = std::move(recording);
    m_file = std::make_unique<QSaveFile>(path);
    m_text = head;
    m_next = m_recording->first();
    m_end = m_recording->count();
    m_file->open(QIODevice::WriteOnly);
    m_timer.start();
}

qsizetype RecordingSaver::firstNeeded(const Recording& recording) const
{
    return m_recording.get() == &recording ? m_next : std::numeric_limits<qsizetype>::max();
}

/// False when it could not be written. The file is closed with its last piece.
bool RecordingSaver::writePiece()
{
    while (m_next < m_end && m_text.size() < pieceSize)
        appendSweepText(m_text, m_recording->sweep(m_next++));
    // The commit alone does not tell of a full disk.
    const bool isWritten = m_file->isOpen() && m_file->write(m_text) == m_text.size() &&
                           m_file->flush() && (m_next < m_end || m_file->commit());
    m_text.resize(0); // keeps its memory
    return isWritten;
}

void RecordingSaver::slice()
{
    QElapsedTimer clock;
    clock.start();
    bool isGood = true;
    do {
        isGood = writePiece();
    } while (isGood && m_next < m_end && clock.elapsed() < sliceTime);
    if (isGood && m_next < m_end) {
        m_timer.start();
        return;
    }
    const QString path = m_file->fileName();
    const QString reason = isGood ? QString() : m_file->errorString();
    end();
    if (isGood)
        Q_EMIT saved(path);
    else
        Q_EMIT failed(path, reason);
}

void RecordingSaver::end()
{
    m_timer.stop();
    if (m_file->isOpen())
        m_file->cancelWriting();
    m_file.reset();
    m_recording.reset();
    m_text.clear();
}

} // namespace bandmonitor
