// SPDX-License-Identifier: MIT
#pragma once

#include "settings/sessionvalues.h"

#include <valueframework/undoburst.h>

#include <QObject>
#include <QPointer>

namespace bandmonitor {

class BandView;
class ReceiverPanel;
class Recording;
class Replay;
class Session;

/// Lets the values of the receiver steer what the spectrum shows, and lets them follow where that
/// is changed elsewhere: a view that the user moves is an undo step as well.
class ReceiverControl : public QObject
{
    Q_OBJECT
public:
    /// When the session has gone the control does nothing any more; the others must outlive it.
    ReceiverControl(std::shared_ptr<SessionValues> values, ReceiverPanel* panel, BandView* bandView,
                    Session* session, QObject* parent);
    ~ReceiverControl() override;

Q_SIGNALS:
    /// The user wants the centre to be where the band is not: it has gone to the band's edge. One
    /// line that says so.
    void centreRefused(const QString& text);

private:
    /// At the first recording, frequencies and start time that were kept are shown as far as it has
    /// them.
    void recordingBegun();
    bool isReady() const;
    void steerCentre();
    void steerSpan();
    void steerTime();
    void apply();
    void restoreWindow();
    void restoreStartTime();
    void followWindow();
    void followReplay();
    void goTo(const QDateTime& time);

    std::shared_ptr<SessionValues> m_values;
    ReceiverPanel* m_panel;
    BandView* m_bandView;
    QPointer<Session> m_session;
    Replay* m_replay;
    std::weak_ptr<const Recording> m_recording; ///< That is open.
    bool m_hasRecording = false;
    bool m_isSteering = false; ///< The view follows the values.
    UndoBurst m_moves;
    std::vector<SessionValues::Followers> m_followers;
};

} // namespace bandmonitor
