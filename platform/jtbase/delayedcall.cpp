// SPDX-License-Identifier: MIT
#include "delayedcall.h"

#include "qtimerhelpers.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <utility>

DelayedCall::DelayedCall(std::function<void()> function)
    : m_function(std::move(function))
{}

DelayedCall::~DelayedCall()
{
    delete m_timer;
}

void DelayedCall::request()
{
    m_isRequested = true;
    if (m_delay < 0)
        return;
    if (!m_timer) {
        requestIn(m_delay);
        return;
    }
    const qint64 left = qint64{m_delay} * longestDelays - m_sinceFirstRequest.elapsed();
    m_timer->start(static_cast<int>(std::clamp<qint64>(left, 0, m_delay)));
}

void DelayedCall::requestIn(int milliseconds)
{
    m_isRequested = true;
    if (!m_timer)
        m_sinceFirstRequest.start();
    delete m_timer;
    m_timer = QTimerHelpers::singleShot(milliseconds, QCoreApplication::instance(), [this] {
        m_timer.clear(); // It deletes itself later; requests from now on need a new one.
        m_isRequested = false;
        const std::function<void()> function = m_function;
        function();
    });
}

void DelayedCall::cancel()
{
    delete m_timer;
    m_isRequested = false;
}

bool DelayedCall::isPending() const
{
    return m_timer != nullptr;
}

void DelayedCall::setDelay(int milliseconds)
{
    m_delay = milliseconds;
    delete m_timer;
    if (m_isRequested)
        request();
}
