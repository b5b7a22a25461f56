// SPDX-License-Identifier: MIT
#include "qobjecthelpers.h"

#include <QByteArray>
#include <QMetaMethod>
#include <QPointer>

#include <utility>

namespace QObjectHelpers {

EventFilter::EventFilter(QObject* watched, Handler handler)
    : QObject(watched)
    , m_handler(std::make_shared<const Handler>(std::move(handler)))
{
    if (watched != nullptr)
        watched->installEventFilter(this);
}

EventFilter::~EventFilter() = default;

bool EventFilter::eventFilter(QObject* watched, QEvent* event)
{
    // The handler may delete this filter, and the watched object with it.
    const std::shared_ptr<const Handler> handler = m_handler;
    if (!*handler)
        return false;
    const QPointer<QObject> alive(watched);
    const bool consumed = (*handler)(watched, event);
    return consumed || alive.isNull();
}

SignalHandler::SignalHandler(QObject* sender, const char* signal, std::function<void()> handler)
    : QObject(sender)
    , m_handler(std::make_shared<const std::function<void()>>(std::move(handler)))
{
    // SIGNAL() puts the digit of the method kind in front of the signature.
    if (sender == nullptr || signal == nullptr || *signal != char('0' + QSIGNAL_CODE))
        return;
    const QByteArray signature = QMetaObject::normalizedSignature(signal + 1);
    const QMetaObject* senderType = sender->metaObject();
    const int index = senderType->indexOfSignal(signature.constData());
    if (index < 0)
        return;
    const int slot = staticMetaObject.indexOfSlot("handle()");
    m_connected = connect(sender, senderType->method(index), this, staticMetaObject.method(slot));
}

SignalHandler::~SignalHandler() = default;

bool SignalHandler::isConnected() const
{
    return m_connected;
}

void SignalHandler::handle()
{
    // The handler may delete this object.
    const std::shared_ptr<const std::function<void()>> handler = m_handler;
    if (*handler)
        (*handler)();
}

} // namespace QObjectHelpers
