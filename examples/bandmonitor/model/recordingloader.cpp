// SPDX-License-Identifier: MIT
#include "recordingloader.h"

#include "recordingparser.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QTimer>

#include <algorithm>

namespace bandmonitor {

class RecordingLoader::Private
{
public:
    enum class State { Idle, Loading, Cancelled };

    explicit Private(RecordingLoader* owner)
        : q(owner)
    {
        timer.setInterval(0);
        timer.setSingleShot(true);
    }

    QString open();
    void slice();
    bool readPieces();
    void end();
    void release();
    void fail(const QString& text);
    QString shownPath() const { return QDir::toNativeSeparators(path); }

    RecordingLoader* q;
    QTimer timer;
    State state = State::Idle;
    QString path;
    QString openError;
    QFile file;
    qint64 total = 0;
    qint64 done = 0;
    quint64 generation = 0; ///< tells whether a slot began another load
    QByteArray buffer;
    std::shared_ptr<Recording> recording;
    std::unique_ptr<RecordingParser> parser;
    qint64 skippedCount = 0;
    QString report;
    std::chrono::milliseconds sliceTime{8};
    qint64 pieceSize = qint64{128} * 1024;
};

QString RecordingLoader::Private::open()
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists())
        return tr("%1 does not exist.").arg(shownPath());
    if (info.isDir())
        return tr("%1 is a folder, not a recording.").arg(shownPath());
    if (!info.isFile())
        return tr("%1 is not a regular file.").arg(shownPath());
    file.setFileName(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("%1 cannot be read: %2").arg(shownPath(), file.errorString());
    total = file.size();
    return {};
}

void RecordingLoader::Private::slice()
{
    if (state == State::Cancelled) {
        state = State::Idle;
        Q_EMIT q->cancelled();
        return;
    }
    if (!openError.isEmpty())
        return fail(openError);
    const bool more = readPieces();
    if (file.error() != QFileDevice::NoError)
        return fail(tr("%1 cannot be read: %2").arg(shownPath(), file.errorString()));

    const QPointer<RecordingLoader> guard(q);
    const quint64 current = generation;
    Q_EMIT q->progress(done, total);
    if (!guard || current != generation || state != State::Loading)
        return;
    if (more)
        timer.start();
    else
        end();
}

/// Reads for the time of one slice; false when there is nothing more to read.
bool RecordingLoader::Private::readPieces()
{
    QElapsedTimer clock;
    clock.start();
    do {
        // A file that grows meanwhile is read as far as it went when it was opened.
        const qint64 wanted = std::min(pieceSize, total - done);
        buffer.resize(static_cast<qsizetype>(wanted));
        const qint64 read = wanted > 0 ? file.read(buffer.data(), wanted) : 0;
        if (read <= 0)
            return false;
        done += read;
        parser->feed({buffer.constData(), static_cast<std::size_t>(read)});
        if (parser->isFull())
            return false;
    } while (clock.elapsed() < sliceTime.count());
    return done < total;
}

void RecordingLoader::Private::end()
{
    parser->finish();
    if (recording->isEmpty()) {
        const QString text = tr("%1 holds no sweep of a band scan.").arg(shownPath());
        return fail(text + u' ' + parser->reasonForNoSweep());
    }
    release();
    state = State::Idle;
    Q_EMIT q->finished();
}

/// Lets go of all that only loading needs, and keeps what the parser has to tell.
void RecordingLoader::Private::release()
{
    skippedCount = parser->skippedCount();
    report = parser->report();
    parser.reset();
    file.close();
    buffer.clear();
}

void RecordingLoader::Private::fail(const QString& text)
{
    release();
    state = State::Idle;
    Q_EMIT q->failed(text);
}

RecordingLoader::RecordingLoader(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    connect(&d->timer, &QTimer::timeout, this, [this] { d->slice(); });
}

RecordingLoader::~RecordingLoader() = default;

void RecordingLoader::load(const QString& path)
{
    ++d->generation;
    d->file.close();
    d->path = path;
    d->total = 0;
    d->done = 0;
    d->skippedCount = 0;
    d->report.clear();
    d->recording = std::make_shared<Recording>();
    d->parser = std::make_unique<RecordingParser>(d->recording);
    d->openError = d->open();
    d->state = Private::State::Loading;
    d->timer.start();
}

void RecordingLoader::cancel()
{
    if (!isLoading())
        return;
    d->state = Private::State::Cancelled;
    d->release();
    d->timer.start();
}

bool RecordingLoader::isLoading() const
{
    return d->state == Private::State::Loading;
}

QString RecordingLoader::path() const
{
    return d->path;
}

std::shared_ptr<const Recording> RecordingLoader::recording() const
{
    return d->recording;
}

qint64 RecordingLoader::skippedCount() const
{
    return d->parser ? d->parser->skippedCount() : d->skippedCount;
}

QString RecordingLoader::report() const
{
    return d->parser ? d->parser->report() : d->report;
}

void RecordingLoader::setSliceTime(std::chrono::milliseconds time)
{
    d->sliceTime = time;
}

void RecordingLoader::setPieceSize(qint64 bytes)
{
    d->pieceSize = std::max<qint64>(bytes, 1);
}

} // namespace bandmonitor
