// SPDX-License-Identifier: MIT
#pragma once

#include "recording.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <memory>

namespace bandmonitor {

/// Loads a recording from a file in slices of the event loop's time, so that windows stay alive
/// without a second thread. Signals come from the event loop only, never from within load() or
/// cancel(). A slot may start another load or delete the loader; deleting it in the middle of
/// loading is safe and silent.
class RecordingLoader : public QObject
{
    Q_OBJECT

public:
    explicit RecordingLoader(QObject* parent = nullptr);
    ~RecordingLoader() override;

    /// Begins to load `path` (a file, or a resource such as samplePath()); what is being loaded
    /// is given up without a signal. Exactly one of finished(), failed() and cancelled() follows,
    /// unless another load() or the end of the loader comes first.
    void load(const QString& path);
    /// Gives up what is being loaded; cancelled() follows. Does nothing while nothing is being
    /// loaded.
    void cancel();
    bool isLoading() const;

    /// The path that load() got last.
    QString path() const;
    /// What has been read so far. It grows until finished(); null before the first load(), and
    /// a new one for each load().
    std::shared_ptr<const Recording> recording() const;
    /// How many lines were skipped, and the first of them as a text for the user.
    qint64 skippedCount() const;
    QString report() const;

    /// How long one slice may take before the event loop has its turn; 8 ms by default. With 0
    /// every slice is one piece.
    void setSliceTime(std::chrono::milliseconds time);
    /// How many bytes one piece has; 128 KiB by default, 1 at least.
    void setPieceSize(qint64 bytes);

Q_SIGNALS:
    /// `done` of `total` bytes are read; after every slice. `done` never falls.
    void progress(qint64 done, qint64 total);
    /// recording() is complete and has at least one sweep.
    void finished();
    /// The file cannot be read, or has no sweep; `text` is one line for the user.
    void failed(const QString& text);
    /// cancel() has given up what was being loaded.
    void cancelled();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace bandmonitor
