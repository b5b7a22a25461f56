// SPDX-License-Identifier: MIT
#include "terminationsignals_p.h"

#include <jtbase/errorhandler.h>

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <ctime>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr char module[] = "trovappstartup/terminationsignals";
constexpr std::array<int, 3> signalNumbers{SIGTERM, SIGINT, SIGHUP};
constexpr int repeatSeconds = 1;

/// Where the handler writes; -1 without an object.
std::atomic<int> writeEnd{-1};
struct alignas(2 * sizeof(int)) Request // otherwise clang calls a library that may lock
{
    int signal; ///< 0 for none.
    int second;
};
/// In one piece: the next signal may come in another thread at the same time.
std::atomic<Request> firstRequest{Request{0, 0}};
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<Request>::is_always_lock_free,
              "a signal handler uses them");

/// One that does not go back when the clock is set.
int monotonicSecond()
{
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<int>(now.tv_sec);
}

extern "C" void handleTerminationSignal(int number)
{
    const int savedError = errno;
    const Request request{number, monotonicSecond()};
    Request first{0, 0};
    if (firstRequest.compare_exchange_strong(first, request)) {
        const int descriptor = writeEnd.load();
        const char byte = 1;
        if (descriptor >= 0 && ::write(descriptor, &byte, 1) < 0) {
            // The pair is full: the request is under way already.
        }
    } else if (number != first.signal || request.second - first.second > repeatSeconds) {
        ::signal(number, SIG_DFL);
        ::raise(number); // ends the process as soon as this handler has returned
    }
    errno = savedError;
}

bool prepareDescriptor(int descriptor)
{
    return ::fcntl(descriptor, F_SETFD, FD_CLOEXEC) == 0 &&
           ::fcntl(descriptor, F_SETFL, O_NONBLOCK) == 0;
}

} // namespace

class TerminationSignalsPrivate
{
public:
    ~TerminationSignalsPrivate()
    {
        for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
            if (replaced[i])
                ::sigaction(signalNumbers[i], &former[i], nullptr);
        }
        if (ignoresFileSize)
            ::signal(SIGXFSZ, SIG_DFL);
        writeEnd = -1;
        notifier.reset();
        for (const int descriptor : descriptors) {
            if (descriptor >= 0)
                ::close(descriptor);
        }
    }

    void install()
    {
        firstRequest = Request{0, 0};
        struct sigaction action = {};
        action.sa_handler = &handleTerminationSignal;
        action.sa_flags = SA_RESTART;
        ::sigemptyset(&action.sa_mask);
        for (const int number : signalNumbers)
            ::sigaddset(&action.sa_mask, number);
        for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
            if (::sigaction(signalNumbers[i], nullptr, &former[i]) != 0 ||
                former[i].sa_handler == SIG_IGN)
                continue;
            replaced[i] = ::sigaction(signalNumbers[i], &action, nullptr) == 0;
        }
        struct sigaction fileSize = {};
        if (::sigaction(SIGXFSZ, nullptr, &fileSize) == 0 && fileSize.sa_handler == SIG_DFL)
            ignoresFileSize = ::signal(SIGXFSZ, SIG_IGN) != SIG_ERR;
    }

    std::array<int, 2> descriptors{-1, -1};
    std::array<struct sigaction, signalNumbers.size()> former{};
    std::array<bool, signalNumbers.size()> replaced{};
    bool ignoresFileSize = false;
    std::unique_ptr<QSocketNotifier> notifier;
};

TerminationSignals::TerminationSignals()
    : d(std::make_unique<TerminationSignalsPrivate>())
{
    if (!TROV_ASSERT(writeEnd < 0, module))
        return;
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, d->descriptors.data()) != 0 ||
        !prepareDescriptor(d->descriptors[0]) || !prepareDescriptor(d->descriptors[1])) {
        ErrorHandler::Trace(ErrorHandler::TracePlatform, module, __LINE__,
                            QStringLiteral("Termination signals cannot be watched"));
        return;
    }
    d->notifier = std::make_unique<QSocketNotifier>(d->descriptors[0], QSocketNotifier::Read);
    connect(d->notifier.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(d->descriptors[0], &byte, 1) > 0) {
        }
        Q_EMIT requested();
    });
    writeEnd = d->descriptors[1];
    d->install();
}

#else

class TerminationSignalsPrivate
{};

TerminationSignals::TerminationSignals() = default;

#endif

TerminationSignals::~TerminationSignals() = default;
