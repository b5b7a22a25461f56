// SPDX-License-Identifier: MIT
#pragma once

#include "model/panenames.h"
#include "model/recording.h"
#include "model/traceprocessor.h"

#include <radiopanes/core/measurements.h>
#include <radiopanes/panes/bandpanes.h>
#include <radiopanes/panes/heldtraces.h>

#include <functional>
#include <memory>
#include <utility>

namespace RadioPanes {
class LevelPyramid;
}

namespace bandmonitor {

/// The spectrum and the waterfall of a recording.
class BandView : public BandPanes
{
    Q_OBJECT
public:
    explicit BandView(QWidget* parent = nullptr);
    ~BandView() override;

    /// Puts the cursor there, and moves the view when it does not show the frequency.
    void showFrequency(double hertz);
    /// Adds entries at the end of the panes' menu.
    void setMenuExtension(std::function<void(QMenu&)> extend) { m_extendMenu = std::move(extend); }
    void fillMenu(QMenu* menu) override;

    /// Shows the whole band of the recording; null for none. The hold maximum starts anew.
    void setRecording(std::shared_ptr<const Recording> recording);
    /// The recording has more sweeps. Sweeps outside the band widen it; the pins go with another
    /// band. While the newest sweep is the current one, the view follows the span of the sweeps: to
    /// where it has nothing in common with them and, as long as the user has not chosen a part, to
    /// whatever they cover.
    void recordingGrown();
    /// Whether the view is following the sweeps just now: it is not the user who moves it.
    bool isFollowingSpan() const { return m_isFollowingSpan; }
    /// Whether the sweeps of the recording leave the band.
    bool leavesBand() const;
    /// The recording is complete. Unless the levels that are shown were changed since its first
    /// sweeps came, they are chosen anew from all of it.
    void recordingCompleted();
    /// Makes the sweep at `position` the current one. The hold maximum takes in the sweeps after
    /// `previous`, or only the current one when `previous` is -1 or comes later. It starts anew
    /// when time goes back.
    void showSweep(qsizetype position, qsizetype previous);
    qsizetype position() const { return m_position; }

    /// What the spectrum makes of the recorded sweeps; the waterfall shows them as they are. The
    /// hold maximum starts anew when it changes.
    void setTrace(const TraceSettings& settings);
    /// The hold maximum starts anew from the current sweep.
    void resetHold();

private:
    void widenBand();
    void followSpan(const Extent& shown);
    void fitLevels();
    void widenLevels(LevelRange levels);
    /// Shows the current sweep; the hold maximum takes in those from `firstHeld` on.
    void showTrace(qsizetype firstHeld);

    std::function<void(QMenu&)> m_extendMenu;
    HeldTraces m_hold{&spectrum()};
    TraceProcessor m_processor;
    std::shared_ptr<const Recording> m_recording;
    std::shared_ptr<const LevelPyramid> m_pyramid; ///< Of the current sweep, as recorded.
    qsizetype m_position = -1;
    std::pair<double, double> m_fittedLevels; ///< Of the spectrum.
    Extent m_followed;                        ///< The view, unless the user has chosen another.
    bool m_isFollowingSpan = false;
};

} // namespace bandmonitor
