// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <chrono>

/// Where the programs of a computer meet, and how much they put up with from one another: every
/// program of every user can reach a port of the computer.
struct NotificationSettings
{
    static constexpr quint16 defaultPort = 59028;

    /// On the local loopback address.
    quint16 port = defaultPort;
    /// How long a server may owe an answer, a new connection its first message, and a new server
    /// its predecessor's clients the time to come back.
    std::chrono::milliseconds answerTime{5000};
    /// After a lost connection; doubles with each loss.
    std::chrono::milliseconds firstPause{20};
    /// So many losses in a row lead to standalone mode.
    int retries = 10;
    /// In standalone mode until the next attempt; doubles with each failure, up to ten times this.
    std::chrono::milliseconds rejoinPause{30000};

    qsizetype maximumClients = 128;
    qsizetype entriesPerProcess = 1024;
    qsizetype maximumEntries = 4096;
    /// Bytes that a reader may leave unread, beyond what the system holds.
    qint64 sendBuffer = qint64{256} * 1024;
    /// What a server takes from one client; the rest waits in the client's buffer.
    int messagesPerSecond = 2000;
};
