// SPDX-License-Identifier: MIT
#include "notificationservice.h"

#include "notificationconnection.h"
#include "notificationserver.h"
#include "retrypause_p.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTcpSocket>

#include <algorithm>

using namespace std::chrono_literals;
using Message = NotificationMessage;

namespace {

/// An answer that is later than this by the clock was missed because this process slept.
constexpr auto sleepTolerance = 1s;
constexpr auto firstCorrectionPause = 20ms;

quint32 wireHeight(int height)
{
    return std::min(static_cast<quint32>(std::max(height, 0)), Message::maximumHeight);
}

} // namespace

NotificationService::NotificationService(const NotificationSettings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_retryPause(std::make_unique<RetryPause>(settings.firstPause, settings.answerTime))
    , m_rejoinPause(std::make_unique<RetryPause>(settings.rejoinPause, settings.rejoinPause * 10))
    , m_correctionPause(std::make_unique<RetryPause>(firstCorrectionPause, settings.answerTime))
{
    for (QTimer* timer : {&m_answerTimer, &m_retryTimer, &m_correctionTimer})
        timer->setSingleShot(true);
    m_answerTimer.setInterval(settings.answerTime);
    m_answerTimer.callOnTimeout(this, &NotificationService::onAnswerMissing);
    m_retryTimer.callOnTimeout(this, &NotificationService::negotiate);
    m_correctionTimer.callOnTimeout(this, &NotificationService::reconcile);
}

NotificationService::~NotificationService()
{
    if (m_connection != nullptr) {
        m_connection->disconnect(this);
        m_connection->flush();
    }
}

void NotificationService::start()
{
    negotiate();
}

void NotificationService::negotiate()
{
    auto server = std::make_unique<NotificationServer>(m_settings, m_stack);
    if (server->listen())
        becomeServer(std::move(server));
    else
        connectToServer();
}

void NotificationService::becomeServer(std::unique_ptr<NotificationServer> server)
{
    m_server = std::move(server);
    connect(m_server.get(), &NotificationServer::published, this, [this](const Message& change) {
        noteChange(change);
        Q_EMIT stackChanged();
    });
    QTimer::singleShot(m_settings.answerTime, this, &NotificationService::removeUnknown);
    setRole(Role::Server);
    reconcile();
}

void NotificationService::connectToServer()
{
    m_incoming.clear();
    m_connection = new NotificationConnection(new QTcpSocket, m_settings.sendBuffer, 0, this);
    connect(m_connection, &NotificationConnection::connected, this,
            &NotificationService::onConnected);
    connect(m_connection, &NotificationConnection::received, this,
            &NotificationService::onServerMessage);
    connect(m_connection, &NotificationConnection::closed, this,
            &NotificationService::onConnectionLost);
    m_connection->connectToPort(m_settings.port);
    waitForAnswer();
}

void NotificationService::becomeStandalone()
{
    m_losses = 0;
    m_retryPause->reset();
    m_retryTimer.start(m_rejoinPause->next());
    setRole(Role::Standalone);
    reconcile();
}

void NotificationService::setRole(Role role)
{
    if (m_role == role)
        return;
    m_role = role;
    Q_EMIT roleChanged(role);
}

void NotificationService::onConnected()
{
    const qsizetype count = std::min(m_local.size(), m_settings.entriesPerProcess);
    for (const Local& local : m_local.first(count))
        send({Message::Add, local.id, local.height});
    // A server drops who has nothing to say; this changes nothing.
    if (m_local.isEmpty())
        send({Message::Raise});
}

void NotificationService::onServerMessage(const Message& message)
{
    NotificationStack& stack = m_isInStep ? m_stack : m_incoming;
    stack.apply(message);
    const bool isDiverged = message.listHash != 0 && message.listHash != stack.hash();
    if (isDiverged || stack.entries().size() > m_settings.maximumEntries) {
        m_connection->close();
        return;
    }
    if (message.type == Message::Connected && !m_isInStep)
        enterStep();
    acknowledge(message);
    if (!m_isInStep)
        return;
    noteChange(message);
    Q_EMIT stackChanged();
}

void NotificationService::enterStep()
{
    m_isInStep = true;
    m_inStepSince.start();
    m_stack = m_incoming;
    m_incoming.clear();
    m_answerTimer.stop();
    if (!m_awaited.isEmpty())
        waitForAnswer();
    m_rejoinPause->reset();
    setRole(Role::Client);
}

void NotificationService::onAnswerMissing()
{
    if (m_answerSince.hasExpired((m_settings.answerTime + sleepTolerance).count())) {
        waitForAnswer();
        return;
    }
    dropConnection();
    becomeStandalone();
}

void NotificationService::onConnectionLost()
{
    const bool wasInStep = m_isInStep;
    dropConnection();
    if (wasInStep && m_inStepSince.hasExpired(m_settings.answerTime.count())) {
        m_losses = 0;
        m_retryPause->reset();
    }
    if (m_role == Role::Standalone || ++m_losses > m_settings.retries) {
        becomeStandalone();
        return;
    }
    setRole(Role::Joining);
    // Whoever has lost its server wants to be the next one at once.
    if (m_losses == 1) {
        negotiate();
        return;
    }
    const auto pause = m_retryPause->next();
    const auto spread =
        QRandomGenerator::global()->bounded(1 + static_cast<int>(pause.count()) / 2);
    m_retryTimer.start(pause + std::chrono::milliseconds(spread));
}

void NotificationService::dropConnection()
{
    m_connection->disconnect(this);
    m_connection->close();
    m_connection->deleteLater();
    m_connection = nullptr;
    m_isInStep = false;
    m_awaited.clear();
    m_answerTimer.stop();
}

void NotificationService::add(quint64 id, int height)
{
    m_local.append({id, wireHeight(height)});
    if (m_role != Role::Joining)
        reconcile();
    else if (m_local.size() <= m_settings.entriesPerProcess)
        publish({Message::Add, id, wireHeight(height)});
}

void NotificationService::resize(quint64 id, int height)
{
    Local* local = findLocal(id);
    if (local == nullptr || local->height == wireHeight(height))
        return;
    local->height = wireHeight(height);
    publish({Message::Resize, id, local->height});
}

void NotificationService::raise(quint64 id)
{
    if (findLocal(id) != nullptr)
        publish({Message::Raise, id});
}

void NotificationService::remove(quint64 id)
{
    if (m_local.removeIf([id](const Local& local) { return local.id == id; }) == 0)
        return;
    publish({Message::Remove, id});
    if (m_role != Role::Joining)
        reconcile(); // There may be room for one that waits.
}

void NotificationService::publish(const Message& change)
{
    if (m_server != nullptr) {
        m_server->publish(change, NotificationStack::nobody);
        return;
    }
    if (m_connection != nullptr && m_connection->isConnected())
        send(change);
    if (m_role == Role::Standalone || (m_role == Role::Joining && change.type != Message::Add)) {
        m_stack.apply(change);
        Q_EMIT stackChanged();
    }
}

void NotificationService::send(const Message& message)
{
    m_connection->send(message.encoded());
    m_awaited.enqueue(message);
    if (!m_answerTimer.isActive())
        waitForAnswer();
}

void NotificationService::acknowledge(const Message& message)
{
    if (m_awaited.isEmpty())
        return;
    const Message& first = m_awaited.head();
    if (first.type != message.type || first.id != message.id || first.value != message.value)
        return;
    m_awaited.dequeue();
    if (!m_isInStep)
        return;
    m_answerTimer.stop();
    if (!m_awaited.isEmpty())
        waitForAnswer();
}

void NotificationService::waitForAnswer()
{
    m_answerSince.start();
    m_answerTimer.start();
}

void NotificationService::noteChange(const Message& change)
{
    const Local* local = findLocal(change.id);
    const bool isWrong =
        local != nullptr && (change.type == Message::Remove ||
                             (change.type == Message::Resize && change.value != local->height));
    if (!isWrong || m_correctionTimer.isActive())
        return;
    m_correctionPause->resetAfter(m_settings.answerTime * 2);
    m_correctionTimer.start(m_correctionPause->next());
}

void NotificationService::reconcile()
{
    QHash<quint64, quint32> listed;
    for (const NotificationStack::Entry& entry : m_stack.entries())
        listed.insert(entry.id, entry.height);
    QSet<quint64> awaited;
    for (const Message& message : m_awaited)
        awaited.insert(message.id);
    const QList<Local> locals = m_local;
    qsizetype announced = std::count_if(locals.begin(), locals.end(), [&](const Local& local) {
        return listed.contains(local.id) || awaited.contains(local.id);
    });
    for (const Local& local : locals) {
        if (awaited.contains(local.id))
            continue;
        const auto entry = listed.constFind(local.id);
        if (entry != listed.constEnd() && *entry != local.height) {
            publish({Message::Resize, local.id, local.height});
        } else if (entry == listed.constEnd() && announced < m_settings.entriesPerProcess) {
            ++announced;
            publish({Message::Add, local.id, local.height});
        }
    }
    Q_EMIT stackChanged();
}

void NotificationService::removeUnknown()
{
    if (m_server == nullptr)
        return;
    const QList<quint64> ids = m_stack.idsOf(NotificationStack::nobody);
    for (const quint64 id : ids) {
        if (findLocal(id) == nullptr)
            m_server->publish({Message::Remove, id}, NotificationStack::nobody);
    }
}

NotificationService::Local* NotificationService::findLocal(quint64 id)
{
    const auto found = std::find_if(m_local.begin(), m_local.end(),
                                    [id](const Local& local) { return local.id == id; });
    return found == m_local.end() ? nullptr : &*found;
}
