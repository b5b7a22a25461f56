// SPDX-License-Identifier: MIT
// The notification service over real sockets: a server that tells 32 clients ("ours") against a
// bare loop that writes the same bytes to 32 sockets; getting into step with 500 entries ("ours")
// against ten round trips of one message. Then 64 processes: how long one pop-up that closes takes
// to be known by all, and how often an idle one wakes up.
#include "ratio.h"

#include <guibase/notifications/service/notificationserver.h>
#include <guibase/notifications/service/notificationservice.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>
#include <QProcess>
#include <QSocketNotifier>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <memory>
#include <thread>
#include <vector>

using Message = NotificationMessage;

namespace {

constexpr int clientCount = 32;
constexpr int batch = 500;
constexpr double broadcastLimit = 2.0;
constexpr double stepLimit = 1.0;
constexpr int roundTrips = 10;
constexpr int entryCount = 500;
constexpr int processCount = 64;
constexpr double reflowLimit = 200; // milliseconds
constexpr int idleSeconds = 10;

int connectTo(quint16 port)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
        qFatal("Nobody listens.");
    return socket;
}

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

/// Reads whatever comes to some sockets in a thread of its own, and counts the bytes.
class Drain
{
public:
    explicit Drain(quint16 port)
    {
        for (int i = 0; i < clientCount; ++i)
            m_sockets.push_back({connectTo(port), POLLIN, 0});
        m_thread = std::thread([this] { run(); });
    }
    ~Drain()
    {
        m_isOver = true;
        m_thread.join();
        for (const pollfd& socket : m_sockets)
            ::close(socket.fd);
    }
    qint64 count() const { return m_count; }

private:
    void run()
    {
        std::array<char, 65536> buffer{};
        while (!m_isOver) {
            ::poll(m_sockets.data(), m_sockets.size(), 10);
            for (const pollfd& socket : m_sockets) {
                if ((socket.revents & POLLIN) != 0)
                    m_count += ::read(socket.fd, buffer.data(), buffer.size());
            }
        }
    }

    std::vector<pollfd> m_sockets;
    std::atomic<qint64> m_count = 0;
    std::atomic<bool> m_isOver = false;
    std::thread m_thread;
};

constexpr qint64 batchBytes = qint64{clientCount} * batch * Message::size;

void broadcastByServer(benchmark::State& state)
{
    NotificationSettings settings;
    settings.port = freePort();
    settings.answerTime = std::chrono::hours(1); // The readers have nothing to say.
    NotificationStack stack;
    NotificationServer server(settings, stack);
    if (!server.listen())
        qFatal("The port is taken.");
    const Drain drain(settings.port);
    while (server.clientCount() < clientCount)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    server.publish({Message::Add, 1, 100}, NotificationStack::nobody);
    while (drain.count() < 2 * clientCount * Message::size)
        QCoreApplication::processEvents();
    qint64 expected = drain.count();
    for (auto _ : state) {
        for (quint32 i = 0; i < batch; ++i) {
            server.publish({Message::Resize, 1, i}, NotificationStack::nobody);
            QCoreApplication::processEvents(); // As if each came by itself.
        }
        expected += batchBytes;
        while (drain.count() < expected)
            QCoreApplication::processEvents();
    }
}

void broadcastByHand(benchmark::State& state)
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    const Drain drain(server.serverPort());
    std::vector<int> sockets;
    for (int i = 0; i < clientCount; ++i) {
        sockets.push_back(::accept(static_cast<int>(server.socketDescriptor()), nullptr, nullptr));
        // Like ours: each message leaves at once. The system would gather several in a packet.
        const int yes = 1;
        ::setsockopt(sockets.back(), IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
    }
    const QByteArray bytes = Message{Message::Resize, 1, 100}.encoded();
    qint64 expected = 0;
    for (auto _ : state) {
        for (int i = 0; i < batch; ++i) {
            for (const int socket : sockets) {
                if (::send(socket, bytes.data(), Message::size, 0) != Message::size)
                    qFatal("A socket does not take 18 bytes.");
            }
        }
        expected += batchBytes;
        while (drain.count() < expected)
            std::this_thread::yield();
    }
    for (const int socket : sockets)
        ::close(socket);
}

/// A server with 500 entries in a thread of its own.
class ServerThread
{
public:
    ServerThread()
    {
        m_settings.port = freePort();
        m_context.moveToThread(&m_thread);
        m_thread.start();
        QMetaObject::invokeMethod(
            &m_context,
            [this] {
                m_service = std::make_unique<NotificationService>(m_settings);
                m_service->start();
                for (quint64 id = 1; id <= entryCount; ++id)
                    m_service->add(id, 100);
            },
            Qt::BlockingQueuedConnection);
    }
    ~ServerThread()
    {
        QMetaObject::invokeMethod(
            &m_context, [this] { m_service.reset(); }, Qt::BlockingQueuedConnection);
        m_thread.quit();
        m_thread.wait();
    }
    const NotificationSettings& settings() const { return m_settings; }

private:
    NotificationSettings m_settings;
    QThread m_thread;
    QObject m_context;
    std::unique_ptr<NotificationService> m_service;
};

std::unique_ptr<NotificationService> joined(const NotificationSettings& settings)
{
    auto service = std::make_unique<NotificationService>(settings);
    service->start();
    while (service->role() != NotificationService::Role::Client)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (service->stack().entries().size() < entryCount)
        qFatal("The list is not complete.");
    return service;
}

/// The time of one message to the server and back, in nanoseconds.
qint64 roundTrip(NotificationService& client, int height)
{
    bool isBack = false;
    const auto connection = QObject::connect(&client, &NotificationService::stackChanged, &client,
                                             [&isBack] { isBack = true; });
    QElapsedTimer timer;
    timer.start();
    client.resize(entryCount + 1, height);
    while (!isBack)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QObject::disconnect(connection);
    return timer.nsecsElapsed();
}

void getIntoStep(benchmark::State& state, const NotificationSettings& settings)
{
    for (auto _ : state) {
        auto service = joined(settings);
        state.PauseTiming();
        service.reset();
        state.ResumeTiming();
    }
}

void makeRoundTrips(benchmark::State& state, const NotificationSettings& settings)
{
    const auto client = joined(settings);
    client->add(entryCount + 1, 1);
    while (client->stack().indexOf(entryCount + 1) < 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    int height = 1;
    for (auto _ : state) {
        for (int i = 0; i < roundTrips; ++i)
            roundTrip(*client, ++height);
    }
}

/// A process with one pop-up: closes it when a line comes, and writes the number of entries and the
/// time (steady clock) after each change.
int runChild(quint16 port)
{
    NotificationSettings settings;
    settings.port = port;
    NotificationService service(settings);
    QObject::connect(&service, &NotificationService::stackChanged, &service, [&service] {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        std::printf("%lld %lld\n", static_cast<long long>(service.stack().entries().size()),
                    static_cast<long long>(std::chrono::nanoseconds(now).count()));
        std::fflush(stdout);
    });
    QSocketNotifier input(0, QSocketNotifier::Read);
    const auto id = static_cast<quint64>(QCoreApplication::applicationPid());
    QObject::connect(&input, &QSocketNotifier::activated, &service, [&service, id] {
        char byte = 0;
        if (::read(0, &byte, 1) == 1)
            service.remove(id);
        else
            QCoreApplication::quit();
    });
    service.start();
    service.add(id, 100);
    return QCoreApplication::exec();
}

using Processes = std::vector<std::unique_ptr<QProcess>>;

/// When the last of the processes has come to know so many entries; 0 when one never does.
qint64 lastTimeOf(const Processes& processes, int entries)
{
    qint64 last = 0;
    for (const auto& process : processes) {
        QByteArray line;
        while (!line.startsWith(QByteArray::number(entries) + ' ')) {
            if (!process->canReadLine() && !process->waitForReadyRead(20000))
                return 0;
            line = process->readLine();
        }
        last = std::max(last, line.split(' ').value(1).trimmed().toLongLong());
    }
    return last;
}

int wakeUpsOf(const QProcess& process)
{
    QFile file(QStringLiteral("/proc/%1/status").arg(process.processId()));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray status = file.readAll();
    const QByteArray key("\nvoluntary_ctxt_switches:");
    return status.mid(status.indexOf(key) + key.size()).split('\n').first().trimmed().toInt();
}

bool runProcesses(qint64 roundTripTime)
{
    const QString port = QString::number(freePort());
    Processes processes;
    for (int i = 0; i < processCount; ++i) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->start(QCoreApplication::applicationFilePath(),
                                {QStringLiteral("--child"), port});
    }
    if (lastTimeOf(processes, processCount) == 0) {
        std::fprintf(stderr, "the processes do not get into step\n");
        return false;
    }
    const qint64 start =
        std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
    processes[processCount / 2]->write("x");
    processes[processCount / 2]->waitForBytesWritten();
    const qint64 end = lastTimeOf(processes, processCount - 1);
    const double reflow = static_cast<double>(end - start) / 1e6;
    const std::string name = "until " + std::to_string(processCount) +
                             " processes know of a closing pop-up, against the time allowed";
    const std::string roundTrip = withUnit(static_cast<double>(roundTripTime) / 1e6, 3, " ms");
    const bool isKnownSoon =
        printRatio(name, withUnit(reflow, 1, " ms") + " (a round trip: " + roundTrip + ")",
                   withUnit(reflowLimit, 0, " ms"), reflow / reflowLimit, 1);
    // What has to be done once after a start is over then.
    std::this_thread::sleep_for(NotificationSettings().answerTime * 1.2);
    std::vector<int> before;
    for (const auto& process : processes)
        before.push_back(wakeUpsOf(*process));
    std::this_thread::sleep_for(std::chrono::seconds(idleSeconds));
    int most = 0;
    for (size_t i = 0; i < processes.size(); ++i)
        most = std::max(most, wakeUpsOf(*processes[i]) - before[i]);
    const bool isIdle = printRatio("wake-ups of the busiest idle process, against one a second",
                                   std::to_string(most), std::to_string(idleSeconds),
                                   static_cast<double>(most) / idleSeconds, 0.9);
    for (const auto& process : processes)
        process->closeWriteChannel();
    for (const auto& process : processes)
        process->waitForFinished();
    return end != 0 && isKnownSoon && isIdle;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--child"))
        return runChild(arguments.value(2).toUShort());

    qint64 roundTripTime = 0;
    int result = 0;
    {
        const ServerThread server;
        RatioRun run;
        run.compare("telling 32 clients", broadcastLimit, broadcastByServer, broadcastByHand,
                    RatioRun::Clock::Wall);
        run.compare(
            "into step with 500 entries against 10 round trips", stepLimit,
            [&server](benchmark::State& state) { getIntoStep(state, server.settings()); },
            [&server](benchmark::State& state) { makeRoundTrips(state, server.settings()); },
            RatioRun::Clock::Wall);
        result = run.run(argc, argv);
        const auto client = joined(server.settings());
        client->add(entryCount + 1, 1);
        for (int i = 2; i < 50; ++i)
            roundTripTime = roundTrip(*client, i);
    }
    return runProcesses(roundTripTime) ? result : 1;
}
