// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QObject>

#include <functional>
#include <memory>

class QEvent;

namespace QObjectHelpers {

/// Watches the events of one object with a function.
///
/// The filter is a child of the watched object and dies with it; deleting it earlier ends the
/// watch. The handler may delete the filter, and the watched object too: then the event goes no
/// further. Without a watched object or a handler nothing happens.
class JTBASE_EXPORT EventFilter : public QObject
{
    Q_OBJECT
public:
    /// Returns true to consume the event.
    using Handler = std::function<bool(QObject* watched, QEvent* event)>;

    /// Begins to watch.
    EventFilter(QObject* watched, Handler handler);
    ~EventFilter() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::shared_ptr<const Handler> m_handler;
};

/// Turns a signal of which only the text is known at compile time into a function call.
///
/// The handler is a child of the sender and dies with it; the function may delete both.
class JTBASE_EXPORT SignalHandler : public QObject
{
    Q_OBJECT
public:
    /// `signal` is a signature as SIGNAL() makes it. isConnected() tells whether the sender has it;
    /// when not, the function is never called, and nothing is reported.
    SignalHandler(QObject* sender, const char* signal, std::function<void()> handler);
    ~SignalHandler() override;

    /// Whether the sender has the signal.
    bool isConnected() const;

public Q_SLOTS:
    /// Calls the function.
    void handle();

private:
    std::shared_ptr<const std::function<void()>> m_handler;
    bool m_connected = false;
};

} // namespace QObjectHelpers
