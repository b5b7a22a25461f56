// SPDX-License-Identifier: MIT
#pragma once

#include "receiver/receiversettings.h"

#include <QObject>

namespace bandmonitor {

class BandView;
class ReceiverPane;
class Replay;
class SignalWatch;

/// Lets the receiver panel steer what the spectrum shows, and lets the panel follow where that is
/// changed elsewhere. What the user sets is kept, and comes back at the next start.
class ReceiverControl : public QObject
{
    Q_OBJECT
public:
    /// All of them must outlive the control.
    ReceiverControl(ReceiverPane* pane, BandView* band, Replay* replay, SignalWatch* watch,
                    QObject* parent);
    ~ReceiverControl() override;

    const ReceiverSettings& settings() const { return m_settings; }
    /// Once the recording is shown. At the first one, frequencies and start time that were kept are
    /// shown as far as it has them.
    void recordingOpened();

Q_SIGNALS:
    /// The signals are to be detected anew.
    void detectionChanged();

private:
    void centreEdited(qint64 hertz);
    void spanEdited(qint64 hertz);
    void startTimeEdited(const QDateTime& time);
    void edited();
    void apply();
    void restoreWindow();
    void restoreStartTime();
    void followWindow();
    void followReplay();
    void goTo(const QDateTime& time);

    ReceiverPane* m_pane;
    BandView* m_band;
    Replay* m_replay;
    SignalWatch* m_watch;
    ReceiverSettings m_settings;
    bool m_hasRecording = false;
};

} // namespace bandmonitor
