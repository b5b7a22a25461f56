// SPDX-License-Identifier: MIT
#include "serverend_p.h"

#include "cfgcenter.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThread>

#include <algorithm>
#include <atomic>

namespace {

constexpr const char* lastWords[] = {
    "The X11 connection broke",
    "The Wayland connection broke",
    "The Wayland connection experienced a fatal error",
};

QtMessageHandler formerHandler = nullptr;
std::atomic<bool> isWatching{false};
std::atomic<bool> hasBegunToStore{false};
QSemaphore stored;
/// How long other threads, each of which would end the program next, wait for the main thread.
constexpr int milliseconds = 3000;

bool isServerEnd(QtMsgType type, const QString& message)
{
    const auto begins = [&message](const char* words) {
        return message.startsWith(QLatin1String(words));
    };
    return type == QtWarningMsg && std::any_of(std::begin(lastWords), std::end(lastWords), begins);
}

void store()
{
    if (hasBegunToStore.exchange(true))
        return;
    CfgCenter::CommitAll();
    stored.release();
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (formerHandler != nullptr)
        formerHandler(type, context, message);
    QCoreApplication* application = QCoreApplication::instance();
    if (!isWatching || application == nullptr || !isServerEnd(type, message))
        return;
    if (QThread::currentThread() == application->thread()) {
        store();
    } else {
        QMetaObject::invokeMethod(application, &store, Qt::QueuedConnection);
        // Several threads may notice the end at the same time.
        if (stored.tryAcquire(1, milliseconds))
            stored.release();
    }
}

} // namespace

ServerEnd::ServerEnd()
{
    isWatching = true;
    hasBegunToStore = false;
    const QtMessageHandler former = qInstallMessageHandler(&handleMessage);
    if (former != &handleMessage)
        formerHandler = former;
}

ServerEnd::~ServerEnd()
{
    isWatching = false;
    const QtMessageHandler last = qInstallMessageHandler(formerHandler);
    if (last != &handleMessage)
        qInstallMessageHandler(last);
}
