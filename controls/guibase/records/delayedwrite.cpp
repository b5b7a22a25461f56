// SPDX-License-Identifier: MIT
#include "delayedwrite.h"

#include <jtbase/qtimerhelpers.h>

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>

DelayedWrite::DelayedWrite(std::function<void()> write)
    : m_write(std::move(write))
{}

DelayedWrite::~DelayedWrite()
{
    delete m_timer;
}

void DelayedWrite::noteChange()
{
    m_isPending = true;
    if (m_delay < 0)
        return;
    if (m_timer) {
        const qint64 left = qint64{m_delay} * longestDelays - m_sinceFirstChange.elapsed();
        m_timer->start(static_cast<int>(std::clamp<qint64>(left, 0, m_delay)));
        return;
    }
    m_sinceFirstChange.start();
    m_timer = QTimerHelpers::singleShot(m_delay, QCoreApplication::instance(), [this] {
        m_timer.clear(); // It deletes itself later; changes from now on need a new one.
        m_isPending = false;
        m_write();
    });
}

void DelayedWrite::cancel()
{
    delete m_timer;
    m_isPending = false;
}

void DelayedWrite::setDelay(int milliseconds)
{
    m_delay = milliseconds;
    delete m_timer;
    if (m_isPending)
        noteChange();
}
