// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QObject>
#include <QPointer>

#include <functional>

class QEvent;

namespace QObjectHelpers {

/// Watches the events of one object with a function.
///
/// The filter is a child of the watched object and dies with it; deleting it earlier ends the watch.
class JTBASE_EXPORT EventFilter : public QObject
{
    Q_OBJECT
public:
    /// Returns true to consume the event.
    using Handler = std::function<bool(QObject* watched, QEvent* event)>;

    EventFilter(QObject* watched, Handler handler);
    ~EventFilter() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Handler m_handler;
};

/// Turns a signal of which only the text is known at compile time into a function call.
///
/// The handler is a child of the sender and dies with it.
class JTBASE_EXPORT SignalHandler : public QObject
{
    Q_OBJECT
public:
    /// `signal` is a signature as SIGNAL() makes it. isConnected() tells whether it exists.
    SignalHandler(QObject* sender, const char* signal, std::function<void()> handler);
    ~SignalHandler() override;

    bool isConnected() const;

public Q_SLOTS:
    void handle();

private:
    std::function<void()> m_handler;
    bool m_connected = false;
};

} // namespace QObjectHelpers
