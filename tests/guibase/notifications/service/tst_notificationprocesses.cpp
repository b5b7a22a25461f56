// SPDX-License-Identifier: MIT
#include "support/childprocess.h"
#include "support/guardedtest.h"

#include <QFile>
#include <QTcpServer>

#include <csignal>
#include <memory>
#include <vector>

namespace {

/// One process with pop-ups, and the last line that it wrote.
struct Child
{
    Child(quint16 port, int answerTime, int popups)
        : process(QStringLiteral(NOTIFICATIONCHILD),
                  {QString::number(port), QString::number(answerTime), QString::number(popups)})
        , count(popups)
    {}

    QList<QByteArray> state()
    {
        const QByteArray& output = process.readAll();
        const qsizetype end = output.lastIndexOf('\n');
        const qsizetype start = end > 0 ? output.lastIndexOf('\n', end - 1) + 1 : 0;
        return output.mid(start, end - start).split(' ');
    }
    void add()
    {
        process.writeLine("add");
        ++count;
    }
    bool isServer() { return state().value(0) == "Server"; }

    ChildProcess process;
    int count; ///< Of its pop-ups.
};

using Children = std::vector<std::unique_ptr<Child>>;

/// What is wrong with the common stack; empty when all processes are in step, each has all its
/// pop-ups, and none covers another.
QByteArray fault(const Children& children)
{
    QMap<int, int> places;
    QByteArray hash;
    int servers = 0;
    int total = 0;
    for (const auto& child : children) {
        const QList<QByteArray> state = child->state();
        if (state.size() != 2 + child->count)
            return "pop-ups are missing: " + state.join(' ');
        servers += child->isServer() ? 1 : 0;
        total += child->count;
        if (state.at(0) != "Server" && state.at(0) != "Client")
            return "one is alone";
        if (!hash.isEmpty() && hash != state.at(1))
            return "the lists differ";
        hash = state.at(1);
        for (const QByteArray& place : state.mid(2)) {
            const QList<QByteArray> parts = place.split(':');
            places.insert(parts.value(0).toInt(), parts.value(1).toInt());
        }
    }
    if (servers != 1 || places.size() != total)
        return "servers: " + QByteArray::number(servers);
    for (auto place = places.cbegin(); std::next(place) != places.cend(); ++place) {
        if (place.key() + place.value() + 6 > std::next(place).key())
            return "two pop-ups overlap";
    }
    return {};
}

/// Resident memory in megabytes.
qint64 memoryOf(const ChildProcess& process)
{
    QFile file(QStringLiteral("/proc/%1/statm").arg(process.processId()));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return file.readAll().split(' ').value(1).toLongLong() * 4096 / 1000000;
}

} // namespace

/// Waits until they are in step once: a change may be on its way the next moment.
#define TRY_IN_STEP(children)                                                                      \
    QVERIFY2(QTest::qWaitFor([&] { return fault(children).isEmpty(); }, 60000), fault(children))

class tst_NotificationProcesses : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void survivesItsServers_data()
    {
        TestRows<int, int> row; // processes, servers killed
        row("1 process", 1, 0);
        row("2 processes", 2, 1);
        row("8 racers", 8, 3);
        row("16 processes", 16, 3);
        if (qEnvironmentVariableIsSet("GUIBASE_MANY_PROCESSES"))
            row("64 processes", 64, 20);
    }
    void survivesItsServers()
    {
        const auto& [count, kills] = TestRows<int, int>::fetch();
        Children children = start(count);
        TRY_IN_STEP(children);
        for (int kill = 0; kill < kills; ++kill) {
            const auto server = serverOf(children);
            QVERIFY((*server)->process.send(SIGKILL));
            children.erase(server);
            children.front()->add();
            TRY_IN_STEP(children);
        }
    }
    void survivesStoppedServer()
    {
        Children children = start(4, 700);
        TRY_IN_STEP(children);
        for (int round = 0; round < 2; ++round) {
            const auto server = serverOf(children);
            QVERIFY((*server)->process.send(SIGSTOP));
            // Who waits for the server in vain shows its pop-ups alone.
            for (const auto& child : children) {
                if (child == *server)
                    continue;
                child->add();
                QTRY_COMPARE_WITH_TIMEOUT(child->state().value(0), "Standalone", 30000);
                QTRY_COMPARE(child->state().size(), 2 + child->count);
            }
            QVERIFY((*server)->process.send(SIGCONT));
            TRY_IN_STEP(children);
        }
    }
    void survivesHostileClient_data()
    {
        TestRows<QString> row;
        for (const char* manner : {"bytes", "sizes", "flood", "big", "random", "halfclose", "reset",
                                   "neverread", "crowd"})
            row(manner, QString::fromLatin1(manner));
    }
    void survivesHostileClient()
    {
        const auto& [manner] = TestRows<QString>::fetch();
        Children children = start(3);
        TRY_IN_STEP(children);
        const qint64 before = memoryOf((*serverOf(children))->process);
        {
            ChildProcess hostile(QStringLiteral("perl"),
                                 {QStringLiteral(HOSTILE_PL), QString::number(m_port), manner});
            QVERIFY(hostile.waitForLine("done"));
            for (const auto& child : children) {
                child->add();
                QTRY_COMPARE_WITH_TIMEOUT(child->state().size(), 2 + child->count, 20000);
            }
            QVERIFY(memoryOf((*serverOf(children))->process) < before + 30);
        }
        TRY_IN_STEP(children);
    }

protected:
    void prepare() override
    {
        // What the sanitizer keeps of freed memory would hide what the program keeps.
        qputenv("ASAN_OPTIONS", "quarantine_size_mb=4");
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        m_port = server.serverPort();
    }

private:
    /// Starts all at once.
    Children start(int count, int answerTime = 2000) const
    {
        Children children;
        for (int i = 0; i < count; ++i)
            children.push_back(std::make_unique<Child>(m_port, answerTime, 2));
        return children;
    }
    static Children::iterator serverOf(Children& children)
    {
        return std::find_if(children.begin(), children.end(),
                            [](const auto& child) { return child->isServer(); });
    }

    quint16 m_port = 0;
};

QTEST_MAIN(tst_NotificationProcesses)
#include "tst_notificationprocesses.moc"
