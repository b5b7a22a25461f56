// SPDX-License-Identifier: MIT
#pragma once

#include "notificationsettings.h"

#include <guibase/notifications/protocol/notificationstack.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QQueue>
#include <QTimer>

#include <memory>

class NotificationConnection;
class NotificationServer;
class RetryPause;

/// Keeps the stack of pop-ups of this process in step with all programs of the computer, without
/// showing any. It becomes the server when the port is free, else a client of the server; alone it
/// keeps a list of its own, and tries to join the others now and then.
///
/// What other programs say is a hint: when they remove or resize an entry of this process, it is
/// announced again.
class NotificationService : public QObject
{
    Q_OBJECT
public:
    enum class Role {
        Joining,    ///< Without a list that counts, for a moment.
        Client,     ///< In step with a server.
        Server,     ///< Keeps the list for all.
        Standalone, ///< Keeps a list for itself.
    };
    Q_ENUM(Role)

    explicit NotificationService(const NotificationSettings& settings, QObject* parent = nullptr);
    /// Tells the others what is on its way, and leaves.
    ~NotificationService() override;

    /// Looks for a role; the answers come by signals. To be called once.
    void start();
    Role role() const { return m_role; }
    /// All pop-ups known here, those of other programs among them. One of this process appears in
    /// it when the list that counts has it.
    const NotificationStack& stack() const { return m_stack; }

    /// Enters a pop-up of this process; heights in pixels, cut at the protocol's limit. Ids differ
    /// from 0 and from one another.
    void add(quint64 id, int height);
    void resize(quint64 id, int height);
    void raise(quint64 id);
    void remove(quint64 id);

Q_SIGNALS:
    /// The stack has changed.
    void stackChanged();
    /// This process has another role in the common stack now.
    void roleChanged(NotificationService::Role role);

private:
    void negotiate();
    void becomeServer(std::unique_ptr<NotificationServer> server);
    void connectToServer();
    void becomeStandalone();
    void setRole(Role role);

    void onConnected();
    void onServerMessage(const NotificationMessage& message);
    void enterStep();
    void onAnswerMissing();
    void onConnectionLost();
    void dropConnection();

    /// Sends a change of this process to where it counts.
    void publish(const NotificationMessage& change);
    void send(const NotificationMessage& message);
    void acknowledge(const NotificationMessage& message);
    void waitForAnswer();
    void noteChange(const NotificationMessage& change);
    /// Announces what the list lacks or has with another height.
    void reconcile();
    void removeUnknown();

    struct Local
    {
        quint64 id;
        quint32 height;
    };
    Local* findLocal(quint64 id);

    const NotificationSettings m_settings;
    Role m_role = Role::Joining;
    NotificationStack m_stack;
    NotificationStack m_incoming; ///< The server's list until it is complete.
    QList<Local> m_local;
    std::unique_ptr<NotificationServer> m_server;
    NotificationConnection* m_connection = nullptr; // a child
    bool m_isInStep = false;
    QElapsedTimer m_inStepSince;
    QQueue<NotificationMessage> m_awaited; ///< Sent, and not come back yet.
    QTimer m_answerTimer;
    QElapsedTimer m_answerSince;
    QTimer m_retryTimer;
    QTimer m_correctionTimer;
    int m_losses = 0;
    std::unique_ptr<RetryPause> m_retryPause;
    std::unique_ptr<RetryPause> m_rejoinPause;
    std::unique_ptr<RetryPause> m_correctionPause;
};
