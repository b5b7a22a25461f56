// SPDX-License-Identifier: MIT
#pragma once

#include "model/receiversettings.h"

#include <QObject>

namespace bandmonitor {

class BandView;
class ReceiverPanel;
class Replay;
class Session;

/// Lets the receiver panel steer what the spectrum shows, and lets the panel follow where that is
/// changed elsewhere. What the user sets is kept, and comes back at the next start.
class ReceiverControl : public QObject
{
    Q_OBJECT
public:
    /// All of them must outlive the control.
    ReceiverControl(ReceiverPanel* panel, BandView* bandView, Session* session, QObject* parent);
    ~ReceiverControl() override;

private:
    /// At the first recording, frequencies and start time that were kept are shown as far as it has
    /// them.
    void recordingOpened();
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

    ReceiverPanel* m_panel;
    BandView* m_bandView;
    Session* m_session;
    Replay* m_replay;
    ReceiverSettings m_settings;
    bool m_hasRecording = false;
};

} // namespace bandmonitor
