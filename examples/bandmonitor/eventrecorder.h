// SPDX-License-Identifier: MIT
#pragma once

#include "docks/mode.h"
#include "model/panenames.h"
#include "model/signaltracker.h"

#include <radiopanes/panes/frequencytext.h>

#include <QObject>

#include <unordered_map>

namespace bandmonitor {

class EventLog;
class Modes;
class Session;

/// Writes what happens in a session and in its window to the session's event log.
class EventRecorder : public QObject
{
    Q_OBJECT
public:
    /// Both must outlive this object.
    EventRecorder(Session* session, const Modes* modes, QObject* parent = nullptr);
    ~EventRecorder() override;

public Q_SLOTS:
    /// Unit or resolution have changed.
    void refreshTexts();

private:
    void recordingOpened();
    /// Writes which followed signals came and which ones are no longer followed. At a beginning,
    /// when all signals are new, it only writes that they are.
    void sweepShown();
    void jobChanged(int id);
    void modeChanged(Mode mode);
    QString textOf(const Signal& signal) const;

    Session* m_session;
    EventLog* m_log;
    FrequencyText m_text;
    std::unordered_map<std::uint32_t, Signal> m_known; ///< By the number of the track.
    bool m_hasBegun =
        false; ///< The last event about signals was that following them has restarted.
};

} // namespace bandmonitor
