// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QLocalSocket>
#include <QObject>
#include <QPair>
#include <QString>

/// Hands notifications to the desktop's own service over the session bus, and never waits for
/// anyone: joining the bus takes until the bus answers, so it is asked first whether it is awake.
/// Without a bus or a service nothing happens.
class DesktopNotifier : public QObject
{
    Q_OBJECT
public:
    DesktopNotifier();
    ~DesktopNotifier() override;

    void notify(const QString& title, const QString& text);

private:
    void sendWaiting();

    QLocalSocket m_probe;
    bool m_isBusAwake = false;
    QList<QPair<QString, QString>> m_waiting;
};
