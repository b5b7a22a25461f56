// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

/// Tells an event filter whether the receiver of the event died while the filter handled it. Then
/// the event has no one to go to, and the filter must return true.
class SurvivalCheck
{
public:
    explicit SurvivalCheck(QObject* receiver)
        : m_receiver(receiver)
        , m_wasAlive(m_receiver != nullptr) // an object in its destructor counts as dead
    {}

    bool hasDied() const { return m_wasAlive && m_receiver.isNull(); }

private:
    QPointer<QObject> m_receiver;
    bool m_wasAlive;
};
