// SPDX-License-Identifier: MIT
#include "live/sourcelabel.h"

#include "model/session.h"

#include <QLocale>

namespace bandmonitor {

namespace {

constexpr int refreshTime = 250; // milliseconds
constexpr int sideMargin = 6;
/// Many receivers tell the time in whole seconds.
constexpr qint64 notableUs = 1'500'000;

QString rateText(double sweeps)
{
    return SourceLabel::tr("%1 sweeps/s").arg(QLocale().toString(sweeps, 'f', sweeps < 20 ? 1 : 0));
}

} // namespace

SourceLabel::SourceLabel(Session* session, QWidget* parent)
    : QLabel(parent)
    , m_session(session)
{
    m_clock.start();
    setContentsMargins(sideMargin, 0, sideMargin, 0);
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(refreshTime);
    connect(&m_refresh, &QTimer::timeout, this, &SourceLabel::refresh);
    connect(session, &Session::sweepShown, this, &SourceLabel::sweepShown);
    connect(session, &Session::begun, this, &SourceLabel::refresh);
    connect(session, &Session::liveChanged, this, &SourceLabel::refresh);
    connect(&session->replay(), &Replay::playingChanged, this, [this] {
        m_replayed.clear();
        refresh();
    });
    setToolTip(tr("What is shown: live input, or the replay of a recording"));
    refresh();
}

SourceLabel::~SourceLabel() = default;

void SourceLabel::sweepShown(qsizetype position, qsizetype previous)
{
    if (previous >= 0 && position > previous)
        m_replayed.add(position - previous, m_clock.nsecsElapsed() / 1000);
    if (!m_refresh.isActive())
        m_refresh.start();
}

void SourceLabel::refresh()
{
    setText(m_session->isLive() ? liveText() : replayText());
}

QString SourceLabel::liveText() const
{
    const LiveInput& live = *m_session->live();
    switch (live.state()) {
    case LiveInput::State::Waiting:
        return tr("Live: waiting for the first sweep");
    case LiveInput::State::Stalled:
        return tr("Live: no sweeps are coming");
    default:
        break;
    }
    QStringList parts;
    if (!m_session->replay().isPlaying())
        parts << tr("paused");
    if (const std::optional<double> rate = live.watch().rate())
        parts << rateText(*rate);
    if (const qint64 behind = behindUs(); behind >= notableUs)
        parts << tr("%1 behind").arg(durationText(behind));
    return parts.isEmpty() ? tr("Live") : tr("Live: %1").arg(parts.join(QStringLiteral(", ")));
}

qint64 SourceLabel::behindUs() const
{
    const LiveInput& live = *m_session->live();
    const auto recording = live.recording();
    if (recording != m_session->recording() || recording->isEmpty())
        return live.watch().delayUs();
    const quint64 newest = recording->sweep(recording->count() - 1).timeUs;
    const quint64 shown = m_session->replay().sweep().timeUs;
    return live.watch().delayUs() + (newest > shown ? static_cast<qint64>(newest - shown) : 0);
}

QString SourceLabel::replayText() const
{
    if (!m_session->recording())
        return {};
    const std::optional<double> rate =
        m_session->replay().isPlaying() ? m_replayed.perSecond() : std::nullopt;
    return rate ? tr("Replay: %1").arg(rateText(*rate)) : tr("Replay");
}

} // namespace bandmonitor
