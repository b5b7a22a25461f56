// SPDX-License-Identifier: MIT
#include "errorhandler.h"

#include "immortal_p.h"

#include <QDateTime>
#include <QFile>
#include <QLoggingCategory>
#include <QMutex>

#include <atomic>

namespace {

std::atomic<quint32> traceFlags = ErrorHandler::defaultTraceFlags;

const QLoggingCategory& traceCategory()
{
    static const Immortal<QLoggingCategory> category("trov.trace");
    return category.object;
}

struct TraceFile
{
    QMutex mutex;
    std::unique_ptr<QFile> file;
};

TraceFile& traceFile()
{
    static Immortal<TraceFile> file;
    return file.object;
}

std::unique_ptr<IMessageDlg>& messageDlg()
{
    static Immortal<std::unique_ptr<IMessageDlg>> dialog;
    return dialog.object;
}

void appendToTraceFile(QString line)
{
    TraceFile& trace = traceFile();
    const QMutexLocker locker(&trace.mutex);
    if (!trace.file)
        return;
    line.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
    const QString time = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    trace.file->write(QStringLiteral("%1 %2\n").arg(time, line).toUtf8());
    trace.file->flush();
}

} // namespace

quint32 ErrorHandler::GetTraceFlags()
{
    return traceFlags.load(std::memory_order_relaxed);
}

void ErrorHandler::SetTraceFlags(quint32 flags)
{
    traceFlags.store(flags, std::memory_order_relaxed);
}

bool ErrorHandler::IsTraceEnabled(quint32 bits)
{
    return (GetTraceFlags() & bits) != 0;
}

void ErrorHandler::Trace(quint32 bits, const char* module, int line, const QString& text)
{
    if (!IsTraceEnabled(bits))
        return;
    const QString message =
        QStringLiteral("%1(%2): ").arg(QString::fromUtf8(module), QString::number(line)) + text;
    // Not a warning: a trace reports, and must neither alarm users nor fail tests.
    qCInfo(traceCategory).noquote() << message;
    appendToTraceFile(message);
}

bool ErrorHandler::SetTraceFile(const QString& fileName)
{
    std::unique_ptr<QFile> file;
    if (!fileName.isEmpty()) {
        file = std::make_unique<QFile>(fileName);
        if (!file->open(QIODevice::WriteOnly | QIODevice::Append))
            return false;
    }
    TraceFile& trace = traceFile();
    const QMutexLocker locker(&trace.mutex);
    trace.file = std::move(file);
    return true;
}

void ErrorHandler::Assertion(const char* condition, const char* module, int line)
{
    Trace(TraceAssertions, module, line,
          QStringLiteral("assertion failed: ") + QString::fromUtf8(condition));
}

IMessageDlg* ErrorHandler::GetMessageDlg()
{
    return messageDlg().get();
}

void ErrorHandler::SetMessageDlg(std::unique_ptr<IMessageDlg> dialog)
{
    // The former dialog dies last, when the new one is already to be had.
    messageDlg().swap(dialog);
}
