// SPDX-License-Identifier: MIT
#include "receivercontrol.h"

#include "centre/bandview.h"
#include "model/panenames.h"
#include "model/session.h"
#include "receiver/receiverpanel.h"

#include <radiopanes/panes/frequencytext.h>
#include <radiopanes/panes/spectrumpane.h>

#include <valueframework/undorecording.h>

#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>

namespace bandmonitor {

namespace {

constexpr quint64 microsecondsPerMillisecond = 1000;

QDateTime timeOf(const Sweep& sweep)
{
    return QDateTime::fromMSecsSinceEpoch(
        static_cast<qint64>(sweep.timeUs / microsecondsPerMillisecond), Qt::UTC);
}

qint64 centreOf(const VisibleBand& view)
{
    return std::llround((view.low() + view.high()) / 2);
}

qint64 spanOf(const VisibleBand& view)
{
    return std::llround(view.high() - view.low());
}

} // namespace

ReceiverControl::ReceiverControl(std::shared_ptr<SessionValues> values, ReceiverPanel* panel,
                                 BandView* bandView, Session* session, QObject* parent)
    : QObject(parent)
    , m_values(std::move(values))
    , m_panel(panel)
    , m_bandView(bandView)
    , m_session(session)
    , m_replay(&session->replay())
{
    apply();
    SessionValues& v = *m_values;
    m_followers.push_back(SessionValues::follow({&v.centre}, [this] { steerCentre(); }));
    m_followers.push_back(SessionValues::follow({&v.span}, [this] { steerSpan(); }));
    m_followers.push_back(SessionValues::follow({&v.startTime}, [this] { steerTime(); }));
    m_followers.push_back(SessionValues::follow({&v.resolution, &v.gain, &v.attenuation, &v.samples,
                                                 &v.address, &v.isAddressHexadecimal, &v.threshold},
                                                [this] { apply(); }));
    connect(m_panel, &ReceiverPanel::editingFinished, this, &ReceiverControl::followWindow);
    connect(m_panel, &ReceiverPanel::editingFinished, this, &ReceiverControl::followReplay);
    connect(&m_bandView->visibleBand(), &VisibleBand::rangeChanged, this,
            &ReceiverControl::followWindow);
    connect(m_replay, &Replay::positionChanged, this, &ReceiverControl::followReplay);
    connect(m_session, &Session::begun, this, &ReceiverControl::recordingBegun);
    connect(
        m_session, &Session::opened, this, [this] { restoreStartTime(); },
        Qt::SingleShotConnection);
}

ReceiverControl::~ReceiverControl() = default;

void ReceiverControl::recordingBegun()
{
    if (!m_hasRecording)
        restoreWindow();
    m_hasRecording = true;
    m_recording = m_session->recording();
    const Sweep sweep = m_replay->sweep();
    if (!sweep.isEmpty())
        m_panel->setSamplesOfSweep(sweep.segments.front().samples);
    const QScopedValueRollback steering(m_isSteering, true);
    followWindow();
    followReplay();
}

bool ReceiverControl::isReady() const
{
    return m_hasRecording && m_session;
}

void ReceiverControl::restoreWindow()
{
    VisibleBand& view = m_bandView->visibleBand();
    const auto centre = static_cast<double>(m_values->centre.GetValue());
    const double half = static_cast<double>(m_values->span.GetValue()) / 2;
    if (!m_values->showsWholeBand.GetValue() && half > 0 && centre + half > view.bandLow() &&
        centre - half < view.bandHigh())
        view.setVisible(centre - half, centre + half);
}

void ReceiverControl::restoreStartTime()
{
    const QDateTime& time = m_values->enteredStart.GetValue();
    const auto recording = m_replay->recording();
    if (time.isValid() && recording && time >= timeOf(recording->sweep(recording->first())) &&
        time <= timeOf(recording->sweep(recording->count() - 1)))
        goTo(time);
}

void ReceiverControl::steerCentre()
{
    VisibleBand& view = m_bandView->visibleBand();
    const qint64 hertz = m_values->centre.GetValue();
    if (!isReady() || hertz == centreOf(view))
        return;
    const QScopedValueRollback steering(m_isSteering, true);
    const auto wanted = static_cast<double>(hertz);
    const double centre = std::clamp(wanted, view.bandLow(), view.bandHigh());
    // The span gives way at the ends of the band: else the whole band could not be left.
    const double half = std::min(
        {(view.high() - view.low()) / 2, centre - view.bandLow(), view.bandHigh() - centre});
    view.setVisible(centre - half, centre + half);
    followWindow();
    if (wanted != centre) {
        const FrequencyText text;
        Q_EMIT centreRefused(
            tr("%1 lies outside the recording, which reaches from %2 to %3.")
                .arg(text.full(wanted), text.full(view.bandLow()), text.full(view.bandHigh())));
    }
}

void ReceiverControl::steerSpan()
{
    VisibleBand& view = m_bandView->visibleBand();
    const qint64 hertz = m_values->span.GetValue();
    if (!isReady() || hertz == spanOf(view))
        return;
    const QScopedValueRollback steering(m_isSteering, true);
    const double centre = (view.low() + view.high()) / 2;
    const double half = static_cast<double>(hertz) / 2;
    if (hertz == 0 || hertz >= std::llround(view.bandHigh() - view.bandLow()))
        view.showAll();
    else
        view.setVisible(centre - half, centre + half);
    followWindow();
}

void ReceiverControl::followWindow()
{
    // While a recording is being opened the view changes, but not by the user.
    if (!isReady() || m_recording.lock() != m_session->recording())
        return;
    const VisibleBand& view = m_bandView->visibleBand();
    const auto follow = [&](ValueNumeric<qint64>& value, qint64 hertz) {
        if (m_isSteering || !m_panel->isTyping(value))
            value.SetValue(hertz);
    };
    SessionValues::Step step;
    if (!m_isSteering && !m_bandView->isFollowingSpan())
        step = m_values->step(tr("Move the view"), m_moves.next());
    follow(m_values->centre, centreOf(view));
    follow(m_values->span, spanOf(view));
    m_values->showsWholeBand.SetValue(view.showsAll());
}

void ReceiverControl::steerTime()
{
    if (!m_session)
        return;
    const QDateTime time = m_values->startTime.GetValue();
    const Sweep sweep = m_replay->sweep();
    if (!sweep.isEmpty() && time == timeOf(sweep))
        return;
    m_values->enteredStart.SetValue(time);
    const QScopedValueRollback steering(m_isSteering, true);
    goTo(time);
    followReplay();
}

void ReceiverControl::goTo(const QDateTime& time)
{
    const auto recording = m_replay->recording();
    if (!recording)
        return;
    qsizetype position = recording->first(); // times may run backward
    while (position < recording->count() - 1 && timeOf(recording->sweep(position)) < time)
        ++position;
    m_replay->jump(position);
}

void ReceiverControl::followReplay()
{
    if (!isReady())
        return;
    const Sweep sweep = m_replay->sweep();
    if (!sweep.isEmpty() && (m_isSteering || !m_panel->isTyping(m_values->startTime)))
        m_values->startTime.SetValue(timeOf(sweep));
}

void ReceiverControl::apply()
{
    if (!m_session)
        return;
    const ReceiverSettings settings = m_values->receiver();
    m_bandView->setTrace(settings.trace());
    SpectrumPane& spectrum = m_bandView->spectrum();
    spectrum.setThreshold(settings.thresholdDb);
    const QString address = settings.addressText();
    spectrum.setCaption(address.isEmpty() ? address : tr("Receiver %1").arg(address));
    m_session->setThreshold(settings.recordedThresholdDb());
}

} // namespace bandmonitor
