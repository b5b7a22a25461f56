// SPDX-License-Identifier: MIT
#pragma once

#include "recording.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class QSaveFile;

namespace bandmonitor {

/// Saves the sweeps of a recording in slices of the event loop's time; more may come and old ones
/// that are saved may go meanwhile. A file that is replaced stays as it is unless all is written.
/// Who deletes it waits until it is.
class RecordingSaver : public QObject
{
    Q_OBJECT
public:
    explicit RecordingSaver(QObject* parent = nullptr);
    ~RecordingSaver() override;

    /// Begins to save the sweeps that the recording has now, with `head` in front of them; what was
    /// being saved is given up. One of the signals follows.
    void save(std::shared_ptr<const Recording> recording, const QString& path,
              const QByteArray& head = {});
    bool isSaving() const { return m_recording != nullptr; }
    /// The oldest sweep of the recording that must stay for it; the largest number for none.
    qsizetype firstNeeded(const Recording& recording) const;

Q_SIGNALS:
    /// All is written.
    void saved(const QString& path);
    /// The file could not be written; `reason` is one line for the user.
    void failed(const QString& path, const QString& reason);

private:
    void slice();
    bool writePiece();
    void end();

    std::shared_ptr<const Recording> m_recording;
    std::unique_ptr<QSaveFile> m_file;
    QByteArray m_text;
    qsizetype m_next = 0;
    qsizetype m_end = 0;
    QTimer m_timer;
};

} // namespace bandmonitor
