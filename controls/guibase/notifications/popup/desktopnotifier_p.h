// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QLocalSocket>
#include <QObject>
#include <QString>

class QIcon;

/// Hands notifications to the desktop's own service over the session bus, and never waits for
/// anyone: joining the bus takes until the bus answers, so it is asked first whether it is awake.
/// Without a bus or a service nothing happens.
class DesktopNotifier : public QObject
{
    Q_OBJECT
public:
    DesktopNotifier();
    ~DesktopNotifier() override;

    /// `text` is plain. An icon without a picture is left out.
    void notify(const QString& title, const QString& text, const QIcon& icon);

private:
    struct Note
    {
        QString title;
        QString text;
        QImage image; ///< Null without an icon.
    };

    void sendWaiting();

    QLocalSocket m_probe;
    bool m_isBusAwake = false;
    QList<Note> m_waiting;
};
