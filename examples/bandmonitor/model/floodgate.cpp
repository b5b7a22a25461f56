// SPDX-License-Identifier: MIT
#include "floodgate.h"

#include <utility>

namespace bandmonitor {

FloodGate::FloodGate(QObject* parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(defaultWindow);
    connect(&m_timer, &QTimer::timeout, this, &FloodGate::flush);
}

FloodGate::~FloodGate() = default;

void FloodGate::add(const QString& line)
{
    if (!m_timer.isActive()) {
        m_passed = 0;
        m_timer.start();
    }
    if (m_passed < linesAtOnce) {
        ++m_passed;
        Q_EMIT passed(line);
        return;
    }
    ++m_heldBack;
    m_last = line;
}

void FloodGate::flush()
{
    const qint64 count = std::exchange(m_heldBack, 0);
    if (count == 1)
        Q_EMIT passed(m_last);
    else if (count > 1)
        Q_EMIT passed(tr("%1 more messages; the last one: %2").arg(count).arg(m_last));
}

} // namespace bandmonitor
