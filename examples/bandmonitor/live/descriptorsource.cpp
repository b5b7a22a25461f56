// SPDX-License-Identifier: MIT
#include "live/descriptorsource.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#include <utility>

namespace bandmonitor {

namespace {

/// Whether a read would return at once. A descriptor that others share is not made non-blocking:
/// they would notice.
bool isReadable(int descriptor)
{
    pollfd entry{descriptor, POLLIN, 0};
    return ::poll(&entry, 1, 0) > 0;
}

} // namespace

DescriptorSource::DescriptorSource(int descriptor, const QString& name)
    : m_name(name)
    , m_descriptor(descriptor)
{}

DescriptorSource::DescriptorSource(const QString& path)
    : m_name(QFileInfo(path).fileName())
    , m_path(path)
{}

DescriptorSource::~DescriptorSource()
{
    close();
}

std::unique_ptr<LiveSource> DescriptorSource::standardInput()
{
    return std::make_unique<DescriptorSource>(STDIN_FILENO, tr("standard input"));
}

void DescriptorSource::start()
{
    if (const QString problem = open(); !problem.isEmpty())
        end(problem);
    else
        wait();
}

/// Opens the FIFO without waiting for a writer. Returns what is wrong, or nothing.
QString DescriptorSource::open()
{
    if (!isFifo())
        return {};
    m_descriptor = ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    return m_descriptor >= 0 ? QString()
                             : tr("%1 cannot be read: %2")
                                   .arg(QDir::toNativeSeparators(m_path), qt_error_string(errno));
}

void DescriptorSource::close()
{
    m_notifier.reset();
    if (isFifo() && m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
}

void DescriptorSource::wait()
{
    m_isAtEnd = false;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &LiveSource::readyRead);
}

void DescriptorSource::stop()
{
    close();
    end(tr("stopped"));
}

qint64 DescriptorSource::read(char* to, qint64 size)
{
    if (m_descriptor < 0 || m_isAtEnd || !isReadable(m_descriptor))
        return 0;
    ssize_t count = -1;
    do {
        count = ::read(m_descriptor, to, static_cast<std::size_t>(size));
    } while (count < 0 && errno == EINTR);
    if (count > 0 || (count < 0 && errno == EAGAIN))
        return std::max<ssize_t>(count, 0);
    m_isAtEnd = true;
    m_notifier.reset();
    if (count == 0 && isFifo())
        QMetaObject::invokeMethod(this, &DescriptorSource::writerGone, Qt::QueuedConnection);
    else
        end(count == 0 ? tr("the sender has ended") : qt_error_string(errno));
    return 0;
}

void DescriptorSource::writerGone()
{
    if (m_descriptor < 0)
        return;
    close();
    if (const QString problem = open(); !problem.isEmpty()) {
        end(problem);
        return;
    }
    Q_EMIT restarted(tr("the writer has closed it; waiting for the next one"));
    wait();
}

void DescriptorSource::end(const QString& reason)
{
    QMetaObject::invokeMethod(
        this, [this, reason] { Q_EMIT ended(reason); }, Qt::QueuedConnection);
}

} // namespace bandmonitor
