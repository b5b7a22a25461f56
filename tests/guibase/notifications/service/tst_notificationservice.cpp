// SPDX-License-Identifier: MIT
#include <guibase/notifications/service/notificationservice.h>

#include "support/descriptorlimit.h"
#include "support/guardedtest.h"

#include <QTcpServer>
#include <QTcpSocket>

#include <netinet/in.h>
#include <sys/socket.h>

#include <memory>
#include <vector>

using namespace std::chrono_literals;
using Message = NotificationMessage;
using Role = NotificationService::Role;
using Services = std::vector<std::unique_ptr<NotificationService>>;

namespace {

QList<quint64> idsOf(const NotificationService& service)
{
    QList<quint64> ids;
    for (const NotificationStack::Entry& entry : service.stack().entries())
        ids << entry.id;
    return ids;
}

/// For entries in any order.
QMap<quint64, quint32> heightsOf(const NotificationService& service)
{
    QMap<quint64, quint32> heights;
    for (const NotificationStack::Entry& entry : service.stack().entries())
        heights.insert(entry.id, entry.height);
    return heights;
}

/// What a client reads until the server's list is complete, or up to the number of messages.
QList<Message> readMessages(QTcpSocket& socket, qsizetype count)
{
    QList<Message> messages;
    while (messages.size() < count) {
        if (socket.bytesAvailable() < Message::size &&
            !QTest::qWaitFor([&] { return socket.bytesAvailable() >= Message::size; }))
            break;
        messages << Message::decoded(socket.read(Message::size)).value_or(Message());
    }
    return messages;
}

} // namespace

class tst_NotificationService : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void keepsInStep()
    {
        Services services = startServices(4);
        QCOMPARE(services[0]->role(), Role::Server);
        QCOMPARE(services[1]->role(), Role::Client);
        services[1]->raise(2);
        services[0]->resize(1, 500);
        services[2]->remove(3);
        QTRY_COMPARE(idsOf(*services[0]), (QList<quint64>{1, 4, 2}));
        for (const auto& service : services) {
            QTRY_COMPARE(service->stack().hash(), services[0]->stack().hash());
            QCOMPARE(idsOf(*service), (QList<quint64>{1, 4, 2}));
            QCOMPARE(service->stack().entries().first().height, 500U);
        }
        QSignalSpy changes(services[0].get(), &NotificationService::stackChanged);
        services[0]->resize(1, 500);
        QCOMPARE(changes.count(), 0);
        services.erase(services.begin() + 1); // The list forgets what a client had.
        QTRY_COMPARE(idsOf(*services[2]), (QList<quint64>{1, 4}));
    }
    void speaksTheProtocol()
    {
        const Services services = startServices(2);
        const auto socket = connectSocket();
        NotificationStack stack;
        stack.apply({Message::Add, 1, 10});
        stack.apply({Message::Add, 2, 20});
        QList<Message> expected{
            {Message::Add, 1, 10}, {Message::Add, 2, 20}, {Message::Connected, 0, 0, stack.hash()}};
        QCOMPARE(readMessages(*socket, 3), expected);
        const Message own{Message::Add, 99, 30};
        stack.apply(own);
        // Byte by byte, and two at once, with a hash that a client must not send.
        for (const char byte : own.encoded()) {
            socket->write(&byte, 1);
            socket->flush();
            QCoreApplication::processEvents();
        }
        socket->write(Message{Message::Raise, 99, 0, 5}.encoded() +
                      Message{Message::Raise, 12345}.encoded());
        expected = {{Message::Add, 99, 30, stack.hash()},
                    {Message::Raise, 99, 0, stack.hash()},
                    {Message::Raise, 12345, 0, stack.hash()}};
        QCOMPARE(readMessages(*socket, 3), expected);
    }
    void announcesAgainWhatStrangersChange()
    {
        const Services services = startServices(2);
        const auto stranger = connectSocket();
        for (const quint64 id : {1, 2}) {
            // The last one steals the entry, and takes it away by leaving.
            for (const Message& message :
                 {Message{Message::Resize, id, 9999}, Message{Message::Remove, id},
                  Message{Message::Add, id, 5}})
                stranger->write(message.encoded());
        }
        QTRY_COMPARE(services[0]->stack().countOf(1), 0);
        stranger->disconnectFromHost();
        for (const auto& service : services)
            QTRY_COMPARE(heightsOf(*service), (QMap<quint64, quint32>{{1, 10}, {2, 20}}));
    }
    void dropsClients_data()
    {
        TestRows<QByteArray> row;
        row("silent", QByteArray());
        row("unknown type behind a valid message",
            Message{Message::Raise, 99}.encoded() + QByteArray("\0\5", 2) + QByteArray(16, '\0'));
        row("message of a server", Message{Message::Connected}.encoded());
    }
    void dropsClients()
    {
        const auto& [bytes] = TestRows<QByteArray>::fetch();
        m_settings.answerTime = 300ms;
        const Services services = startServices(2);
        const auto socket = connectSocket();
        QSignalSpy disconnections(socket.get(), &QTcpSocket::disconnected);
        socket->write(bytes);
        QTRY_VERIFY(!disconnections.isEmpty());
        services[1]->add(50, 10);
        QTRY_COMPARE(idsOf(*services[0]), (QList<quint64>{1, 2, 50}));
    }
    void leavesServers_data()
    {
        TestRows<QByteArray, int, int> row; // greeting, answer time, connections that it costs
        row("silent", QByteArray(), 300, 1);
        row("with a wrong hash",
            Message{Message::Add, 55, 10}.encoded() +
                Message{Message::Connected, 0, 0, 4711}.encoded(),
            5000, 5);
    }
    void leavesServers()
    {
        const auto& row = TestRows<QByteArray, int, int>::fetch();
        m_settings.answerTime = std::chrono::milliseconds(std::get<1>(row));
        m_settings.firstPause = 1ms;
        m_settings.retries = 4;
        m_settings.rejoinPause = 200ms;
        auto server = std::make_unique<QTcpServer>();
        QVERIFY(server->listen(QHostAddress::LocalHost, m_settings.port));
        const auto service = startService();
        int connections = 0;
        connect(server.get(), &QTcpServer::newConnection, this, [&] {
            connections += service->role() == Role::Joining ? 1 : 0;
            server->nextPendingConnection()->write(std::get<0>(row));
        });
        service->add(1, 10);
        QTRY_COMPARE(service->role(), Role::Standalone);
        QCOMPARE(connections, std::get<2>(row));
        QCOMPARE(idsOf(*service), (QList<quint64>{1}));
        service->add(2, 10);
        service->remove(1);
        QCOMPARE(idsOf(*service), (QList<quint64>{2}));
        server.reset();
        QTRY_COMPARE(service->role(), Role::Server);
        QCOMPARE(idsOf(*service), (QList<quint64>{2}));
    }
    void holdsBackWhatIsTooMuch()
    {
        m_settings.entriesPerProcess = 3;
        const Services services = startServices(2);
        for (quint64 id = 10; id < 15; ++id)
            services[1]->add(id, 10);
        QTRY_COMPARE(idsOf(*services[0]), (QList<quint64>{1, 2, 10, 11}));
        services[1]->remove(10);
        services[1]->remove(2);
        QTRY_COMPARE(idsOf(*services[0]), (QList<quint64>{1, 11, 12, 13}));
        QCOMPARE(services[1]->role(), Role::Client);
    }
    void survivesLackOfDescriptors()
    {
        m_settings.firstPause = 1ms;
        m_settings.retries = 2;
        m_settings.rejoinPause = 100ms;
        const Services services = startServices(1);
        const int client = ::socket(AF_INET, SOCK_STREAM, 0);
        std::unique_ptr<NotificationService> other;
        {
            const DescriptorLimit none;
            sockaddr_in address{AF_INET, htons(m_settings.port), {htonl(INADDR_LOOPBACK)}, {}};
            QCOMPARE(::connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
            other = startService();
            other->add(50, 10);
            QTRY_COMPARE(other->role(), Role::Standalone);
            QCOMPARE(idsOf(*other), (QList<quint64>{50}));
        }
        QTcpSocket socket;
        socket.setSocketDescriptor(client);
        QCOMPARE(readMessages(socket, 2).last().type, Message::Connected);
        QTRY_COMPARE(idsOf(*services[0]), (QList<quint64>{1, 50}));
        QCOMPARE(other->role(), Role::Client);
    }

protected:
    void prepare() override
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        m_settings = {};
        m_settings.port = server.serverPort();
    }

private:
    std::unique_ptr<NotificationService> startService()
    {
        auto service = std::make_unique<NotificationService>(m_settings);
        service->start();
        return service;
    }
    /// The first one is the server; each has an entry with its number from 1, 10 times that high.
    Services startServices(int count)
    {
        Services services;
        for (int i = 1; i <= count; ++i) {
            services.push_back(startService());
            NotificationService& service = *services.back();
            service.add(static_cast<quint64>(i), 10 * i);
            if (!QTest::qWaitFor([&] { return service.stack().entries().size() == i; }))
                qFatal("A service does not get into step.");
        }
        return services;
    }
    std::unique_ptr<QTcpSocket> connectSocket() const
    {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(QHostAddress(QHostAddress::LocalHost), m_settings.port);
        if (!socket->waitForConnected())
            qFatal("Nobody listens.");
        return socket;
    }

    NotificationSettings m_settings;
};

QTEST_MAIN(tst_NotificationService)
#include "tst_notificationservice.moc"
