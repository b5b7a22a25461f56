// SPDX-License-Identifier: MIT
#include "liveinput.h"

#include <QPointer>

#include <algorithm>
#include <limits>

namespace bandmonitor {

namespace {

constexpr qint64 pieceSize = qint64{128} * 1024;
constexpr int publishTime = 25;       // milliseconds
constexpr int statusTime = 250;       // milliseconds
constexpr std::size_t sweepShare = 4; // a sweep takes at most this part of the history

} // namespace

LiveInput::LiveInput(std::unique_ptr<LiveSource> source, std::size_t historyBytes, QObject* parent)
    : QObject(parent)
    , m_source(std::move(source))
    , m_historyBytes(historyBytes)
    , m_buffer(std::make_unique_for_overwrite<char[]>(pieceSize))
{
    m_parser.setMaximumLevels(std::numeric_limits<std::size_t>::max());
    m_parser.setMaximumSweep(historyBytes / sizeof(float) / sweepShare);
    for (QTimer* timer : {&m_slice, &m_publish, &m_settle, &m_stall})
        timer->setSingleShot(true);
    m_slice.setInterval(0);
    m_publish.setTimerType(Qt::PreciseTimer);
    m_settle.setInterval(std::chrono::seconds(1));
    connect(&m_slice, &QTimer::timeout, this, &LiveInput::slice);
    connect(&m_publish, &QTimer::timeout, this, &LiveInput::publish);
    connect(&m_settle, &QTimer::timeout, this, [this] {
        m_parser.settle(true);
        publish();
    });
    connect(&m_stall, &QTimer::timeout, this, [this] { setState(State::Stalled); });
    connect(m_source.get(), &LiveSource::readyRead, this, [this] {
        if (!m_slice.isActive())
            m_slice.start();
    });
    connect(m_source.get(), &LiveSource::restarted, this, &LiveInput::restarted);
    connect(m_source.get(), &LiveSource::said, &m_said, &FloodGate::add);
    connect(m_source.get(), &LiveSource::ended, this, [this](const QString& reason) {
        m_isLast = true;
        m_reason = reason;
        m_slice.start();
    });
    connect(&m_remarks, &FloodGate::passed, this, &LiveInput::remarked);
    connect(&m_said, &FloodGate::passed, this, &LiveInput::remarked);
}

LiveInput::~LiveInput() = default;

void LiveInput::start()
{
    m_clock.start();
    m_sincePublish.start();
    m_source->start();
}

void LiveInput::stop()
{
    m_isStopped = true;
    m_source->stop();
}

void LiveInput::slice()
{
    QElapsedTimer clock;
    clock.start();
    qint64 count = 0;
    do {
        count = m_isStopped ? 0 : m_source->read(m_buffer.get(), pieceSize);
        m_parser.feed({m_buffer.get(), static_cast<std::size_t>(count)});
    } while (count > 0 && clock.elapsed() < m_sliceTime.count());
    if (count > 0) {
        m_slice.start();
    } else if (m_isLast) {
        finish();
        return;
    } else {
        m_parser.settle(false);
        m_settle.start();
    }
    const bool isNews =
        m_recording->count() > m_watch.sweepCount() || m_parser.skippedCount() > m_toldSkipped;
    if (isNews && !m_publish.isActive())
        m_publish.start(std::max(publishTime - static_cast<int>(m_sincePublish.elapsed()), 0));
}

void LiveInput::publish()
{
    m_sincePublish.start();
    const qsizetype before = m_watch.sweepCount();
    const QStringList remarks = m_watch.take(*m_recording, m_clock.nsecsElapsed() / 1000);
    for (const QString& remark : remarks)
        m_remarks.add(remark);
    remarkSkipped();
    if (m_watch.sweepCount() == before)
        return;
    m_stall.start(std::chrono::milliseconds(m_watch.stallAfterUs() / 1000));
    setState(State::Running);
    if (!m_sinceStatus.isValid() || m_sinceStatus.elapsed() >= statusTime) {
        m_sinceStatus.start();
        Q_EMIT statusChanged();
    }
    Q_EMIT grown();
}

void LiveInput::remarkSkipped()
{
    const qint64 skipped = m_parser.skippedCount() - m_toldSkipped;
    if (skipped == 0)
        return;
    m_toldSkipped = m_parser.skippedCount();
    m_remarks.add(skipped == 1
                      ? tr("A line was skipped. %1").arg(m_parser.lastFault())
                      : tr("%1 lines were skipped. %2").arg(skipped).arg(m_parser.lastFault()));
}

void LiveInput::setState(State state)
{
    if (state == m_state)
        return;
    if (state == State::Stalled)
        m_remarks.add(tr("No sweep has come for %1.").arg(durationText(m_watch.stallAfterUs())));
    else if (m_state == State::Stalled && state == State::Running)
        m_remarks.add(tr("Sweeps are coming again."));
    m_state = state;
    Q_EMIT statusChanged();
}

void LiveInput::restarted(const QString& reason)
{
    m_parser.finish();
    publish();
    m_watch.restart();
    m_remarks.add(tr("%1: %2").arg(name(), reason));
    m_stall.stop();
    setState(State::Waiting);
}

void LiveInput::finish()
{
    if (m_state == State::Ended)
        return;
    for (QTimer* timer : {&m_publish, &m_settle, &m_stall})
        timer->stop();
    const QPointer<LiveInput> guard(this);
    m_parser.finish();
    publish();
    if (!guard)
        return;
    m_stall.stop();
    m_remarks.flush();
    m_said.flush();
    setState(State::Ended);
    if (!guard)
        return;
    const bool isOther = m_recording->count() == 0 && m_parser.skippedCount() > 0;
    Q_EMIT ended(isOther ? m_reason + QStringLiteral(". ") + m_parser.reasonForNoSweep()
                         : m_reason);
}

} // namespace bandmonitor
