// SPDX-License-Identifier: MIT
#include "receivercontrol.h"

#include "centre/bandview.h"
#include "model/panenames.h"
#include "model/session.h"
#include "receiver/receiverpanel.h"
#include "settings/settings.h"

#include <radiopanes/panes/spectrumpane.h>

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

} // namespace

ReceiverControl::ReceiverControl(ReceiverPanel* panel, BandView* bandView, Session* session,
                                 QObject* parent)
    : QObject(parent)
    , m_panel(panel)
    , m_bandView(bandView)
    , m_session(session)
    , m_replay(&session->replay())
    , m_settings(Settings::receiver())
{
    m_panel->setSettings(m_settings);
    apply();
    connect(m_panel, &ReceiverPanel::centreEdited, this, &ReceiverControl::centreEdited);
    connect(m_panel, &ReceiverPanel::spanEdited, this, &ReceiverControl::spanEdited);
    connect(m_panel, &ReceiverPanel::startTimeEdited, this, &ReceiverControl::startTimeEdited);
    connect(m_panel, &ReceiverPanel::edited, this, &ReceiverControl::edited);
    connect(m_panel, &ReceiverPanel::editingFinished, this, &ReceiverControl::followWindow);
    connect(m_panel, &ReceiverPanel::editingFinished, this, &ReceiverControl::followReplay);
    connect(&m_bandView->visibleBand(), &VisibleBand::rangeChanged, this,
            &ReceiverControl::followWindow);
    connect(m_replay, &Replay::positionChanged, this, &ReceiverControl::followReplay);
    connect(m_session, &Session::opened, this, &ReceiverControl::recordingOpened);
}

ReceiverControl::~ReceiverControl() = default;

void ReceiverControl::recordingOpened()
{
    if (!m_hasRecording) {
        restoreWindow();
        restoreStartTime();
    }
    m_hasRecording = true;
    const Sweep sweep = m_replay->sweep();
    if (!sweep.isEmpty())
        m_panel->setSamplesOfSweep(sweep.segments.front().samples);
    followWindow();
    followReplay();
}

void ReceiverControl::restoreWindow()
{
    VisibleBand& view = m_bandView->visibleBand();
    const auto centre = static_cast<double>(m_settings.centreHz);
    const double half = static_cast<double>(m_settings.spanHz) / 2;
    if (half > 0 && centre + half > view.bandLow() && centre - half < view.bandHigh())
        view.setVisible(centre - half, centre + half);
}

void ReceiverControl::restoreStartTime()
{
    const QDateTime& time = m_settings.startTime;
    const auto recording = m_replay->recording();
    if (time.isValid() && recording && time >= timeOf(recording->sweep(0)) &&
        time <= timeOf(recording->sweep(recording->count() - 1)))
        goTo(time);
}

void ReceiverControl::centreEdited(qint64 hertz)
{
    VisibleBand& view = m_bandView->visibleBand();
    const double centre = std::clamp(static_cast<double>(hertz), view.bandLow(), view.bandHigh());
    // The span gives way at the ends of the band: else the whole band could not be left.
    const double half = std::min(
        {(view.high() - view.low()) / 2, centre - view.bandLow(), view.bandHigh() - centre});
    view.setVisible(centre - half, centre + half);
    followWindow();
}

void ReceiverControl::spanEdited(qint64 hertz)
{
    VisibleBand& view = m_bandView->visibleBand();
    const double centre = (view.low() + view.high()) / 2;
    const double half = static_cast<double>(hertz) / 2;
    if (hertz == 0)
        view.showAll();
    else
        view.setVisible(centre - half, centre + half);
    followWindow();
}

void ReceiverControl::followWindow()
{
    if (!m_hasRecording)
        return;
    const VisibleBand& view = m_bandView->visibleBand();
    const qint64 span = std::llround(view.high() - view.low());
    m_settings.centreHz = std::llround((view.low() + view.high()) / 2);
    m_settings.spanHz = view.showsAll() ? 0 : span;
    m_panel->showWindow(m_settings.centreHz, span);
    Settings::setReceiver(m_settings);
}

void ReceiverControl::startTimeEdited(const QDateTime& time)
{
    m_settings.startTime = time;
    Settings::setReceiver(m_settings);
    goTo(time);
    followReplay();
}

void ReceiverControl::goTo(const QDateTime& time)
{
    const auto recording = m_replay->recording();
    if (!recording)
        return;
    qsizetype position = 0; // times may run backward
    while (position < recording->count() - 1 && timeOf(recording->sweep(position)) < time)
        ++position;
    m_replay->jump(position);
}

void ReceiverControl::followReplay()
{
    const Sweep sweep = m_replay->sweep();
    if (m_hasRecording && !sweep.isEmpty())
        m_panel->showTime(timeOf(sweep));
}

void ReceiverControl::edited()
{
    ReceiverSettings settings = m_panel->settings();
    settings.centreHz = m_settings.centreHz;
    settings.spanHz = m_settings.spanHz;
    settings.startTime = m_settings.startTime;
    if (settings == m_settings)
        return;
    m_settings = settings;
    Settings::setReceiver(m_settings);
    apply();
}

void ReceiverControl::apply()
{
    m_bandView->setTrace(m_settings.trace());
    SpectrumPane& spectrum = m_bandView->spectrum();
    spectrum.setThreshold(m_settings.thresholdDb);
    const QString address = m_settings.addressText();
    spectrum.setCaption(address.isEmpty() ? address : tr("Receiver %1").arg(address));
    m_session->setThreshold(m_settings.recordedThresholdDb());
}

} // namespace bandmonitor
