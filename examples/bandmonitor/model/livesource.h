// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

namespace bandmonitor {

/// Where live input comes from: bytes that arrive over time. No call ever waits for them, and no
/// signal comes from within a call.
class LiveSource : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    ~LiveSource() override;

    /// For the operator, as a file name or a command.
    virtual QString name() const = 0;
    /// Begins. To be called once.
    virtual void start() = 0;
    /// Has what sends the bytes end; ended() follows.
    virtual void stop() = 0;
    /// Takes over up to `size` bytes; 0 when none are there.
    virtual qint64 read(char* to, qint64 size) = 0;

Q_SIGNALS:
    /// There are bytes to read.
    void readyRead();
    /// What is read from now on begins anew; `reason` is one line for the operator.
    void restarted(const QString& reason);
    /// The sender says something beside the bytes; one line.
    void said(const QString& line);
    /// Nothing more will come than what can be read still. `reason` is one line for the operator.
    void ended(const QString& reason);
};

} // namespace bandmonitor
