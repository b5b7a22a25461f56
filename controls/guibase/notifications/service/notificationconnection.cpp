// SPDX-License-Identifier: MIT
#include "notificationconnection.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <array>

#ifdef Q_OS_LINUX
#include <sys/socket.h>
#endif

namespace {

/// Each message of a client is one to all others, each of a server's only a change of a list.
constexpr int messagesPerTurn = 64;
constexpr int serverMessagesPerTurn = 1024;
/// A program that comes back announces all its pop-ups at once.
constexpr int burstSeconds = 2;
constexpr int budgetPause = 50; // milliseconds

/// Gives the system what it takes, and returns the number of bytes. The toolkit's own way wakes the
/// event loop up twice for each reader, which costs more than the bytes do. Errors count as nothing
/// taken: the socket finds them itself.
qsizetype sendAtOnce(qintptr descriptor, QByteArrayView bytes)
{
#ifdef Q_OS_LINUX
    const ssize_t sent = ::send(static_cast<int>(descriptor), bytes.data(),
                                static_cast<size_t>(bytes.size()), MSG_DONTWAIT | MSG_NOSIGNAL);
    return std::max<qsizetype>(sent, 0);
#else
    Q_UNUSED(descriptor)
    Q_UNUSED(bytes)
    return 0;
#endif
}

} // namespace

NotificationConnection::NotificationConnection(QTcpSocket* socket, qint64 sendBuffer,
                                               int messagesPerSecond, QObject* parent)
    : QObject(parent)
    , m_socket(socket)
    , m_sendBuffer(sendBuffer)
    , m_messagesPerSecond(messagesPerSecond)
    , m_messagesPerTurn(messagesPerSecond > 0 ? messagesPerTurn : serverMessagesPerTurn)
    , m_budget(burstSeconds * messagesPerSecond)
{
    m_sinceRefill.start();
    m_socket->setParent(this);
    m_socket->setReadBufferSize(qint64{2} * m_messagesPerTurn * NotificationMessage::size);
    // Each message is a step that others wait for.
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(m_socket, &QTcpSocket::connected, this, [this] {
        m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        Q_EMIT connected();
    });
    connect(m_socket, &QTcpSocket::readyRead, this, &NotificationConnection::readSome);
    connect(m_socket, &QTcpSocket::disconnected, this, &NotificationConnection::close);
    connect(m_socket, &QTcpSocket::errorOccurred, this, &NotificationConnection::close);
}

NotificationConnection::~NotificationConnection()
{
    m_socket->disconnect(this);
}

void NotificationConnection::connectToPort(quint16 port)
{
    m_socket->connectToHost(QHostAddress(QHostAddress::LocalHost), port);
}

bool NotificationConnection::isConnected() const
{
    return !m_isClosed && m_socket->state() == QAbstractSocket::ConnectedState;
}

void NotificationConnection::send(const QByteArray& messages)
{
    if (!isConnected())
        return;
    const QByteArrayView all(messages);
    const qint64 waiting = m_socket->bytesToWrite();
    const QByteArrayView rest =
        all.sliced(waiting == 0 ? sendAtOnce(m_socket->socketDescriptor(), all) : 0);
    if (waiting + rest.size() > m_sendBuffer)
        close();
    else if (!rest.isEmpty())
        m_socket->write(rest.data(), rest.size());
}

void NotificationConnection::close()
{
    if (m_isClosed)
        return;
    m_isClosed = true;
    QMetaObject::invokeMethod(this, &NotificationConnection::closed, Qt::QueuedConnection);
    m_socket->abort();
}

void NotificationConnection::flush()
{
    if (isConnected())
        m_socket->flush();
}

void NotificationConnection::readSome()
{
    std::array<char, NotificationMessage::size> bytes{};
    for (int left = allowance(); left > 0; --left) {
        if (m_isClosed || m_socket->bytesAvailable() < NotificationMessage::size)
            return;
        m_socket->read(bytes.data(), NotificationMessage::size);
        m_budget -= 1;
        const auto message = NotificationMessage::decoded(QByteArrayView(bytes));
        if (!message) {
            close();
            return;
        }
        m_hasSpoken = true;
        Q_EMIT received(*message);
    }
    if (!m_isClosed && m_socket->bytesAvailable() >= NotificationMessage::size)
        readLater(m_messagesPerSecond > 0 && m_budget < 1 ? budgetPause : 0);
}

void NotificationConnection::readLater(int milliseconds)
{
    if (m_isReadPlanned)
        return;
    m_isReadPlanned = true;
    QTimer::singleShot(milliseconds, this, [this] {
        m_isReadPlanned = false;
        readSome();
    });
}

int NotificationConnection::allowance()
{
    if (m_messagesPerSecond <= 0)
        return m_messagesPerTurn;
    const double seconds = static_cast<double>(m_sinceRefill.restart()) / 1000;
    m_budget = std::min<double>(m_budget + seconds * m_messagesPerSecond,
                                burstSeconds * m_messagesPerSecond);
    return std::min(static_cast<int>(m_budget), m_messagesPerTurn);
}
