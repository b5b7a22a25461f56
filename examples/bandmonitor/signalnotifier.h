// SPDX-License-Identifier: MIT
#pragma once

#include "model/panenames.h"
#include "model/ratelimit.h"
#include "model/signalalarm.h"

#include <radiopanes/panes/frequencytext.h>

#include <QObject>

namespace bandmonitor {

class MainWindow;

/// Raises a pop-up for each new signal that stays, but a few a minute at most, in one stack with
/// those of other programs. Its buttons follow the signal or ignore it from now on. The event log
/// lists what was notified, and what was one too many.
class SignalNotifier : public QObject
{
    Q_OBJECT
public:
    /// A child of the window.
    explicit SignalNotifier(MainWindow* window);
    ~SignalNotifier() override;

private:
    void sweepShown();
    void notify(const SignalTrack& track);

    MainWindow* m_window;
    SignalAlarm m_alarm;
    RateLimit m_limit;
    FrequencyText m_text;
};

} // namespace bandmonitor
