// SPDX-License-Identifier: MIT
#pragma once

#include "model/panenames.h"
#include "model/recording.h"
#include "model/traceprocessor.h"

#include <radiopanes/core/holdmaximum.h>
#include <radiopanes/panes/frequencytext.h>
#include <radiopanes/panes/visibleband.h>

#include <QWidget>

#include <memory>

class Splitter;

namespace RadioPanes {
class FrequencyAxis;
class LevelPyramid;
class SideAxis;
class SpectrumPane;
class WaterfallPane;
} // namespace RadioPanes

namespace bandmonitor {

/// The spectrum with its axes and, below it, the waterfall of the same frequencies.
class BandView : public QWidget
{
    Q_OBJECT
public:
    explicit BandView(QWidget* parent = nullptr);
    ~BandView() override;

    VisibleBand& visibleBand() { return m_visibleBand; }
    SpectrumPane& spectrum() { return *m_spectrum; }
    WaterfallPane& waterfall() { return *m_waterfall; }
    /// Parts the spectrum from the waterfall.
    Splitter* splitter() const { return m_splitter; }
    /// The waterfall with its axis.
    QWidget* waterfallRow() const { return m_waterfallRow; }
    /// Puts the cursor there, and moves the view when it does not show the frequency.
    void showFrequency(double hertz);

    /// Shows the whole band of the recording; null for none. The hold maximum starts anew.
    void setRecording(std::shared_ptr<const Recording> recording);
    /// Makes the sweep at `position` the current one. The hold maximum takes in the sweeps after
    /// `previous`, or only the current one when `previous` is -1 or comes later.
    void showSweep(qsizetype position, qsizetype previous);
    qsizetype position() const { return m_position; }

    /// What the spectrum makes of the recorded sweeps; the waterfall shows them as they are. The
    /// hold maximum starts anew when it changes.
    void setTrace(const TraceSettings& settings);
    void setHoldVisible(bool visible);
    /// The hold maximum starts anew from the current sweep.
    void resetHold();

public Q_SLOTS:
    /// Unit, resolution, time zone or format have changed.
    void refreshTexts();
    void refreshColors();

private:
    void buildLayout();
    void fitLevels();
    void widenLevels(LevelRange levels);
    /// Shows the current sweep; the hold maximum takes in those from `firstHeld` on.
    void showTrace(qsizetype firstHeld);

    VisibleBand m_visibleBand;
    FrequencyText m_text;
    HoldMaximum m_hold;
    TraceProcessor m_processor;
    std::shared_ptr<const Recording> m_recording;
    std::shared_ptr<const LevelPyramid> m_pyramid; ///< Of the current sweep, as recorded.
    qsizetype m_position = -1;
    Splitter* m_splitter = nullptr;
    QWidget* m_waterfallRow = nullptr;
    SideAxis* m_levelAxis = nullptr;
    SpectrumPane* m_spectrum = nullptr;
    FrequencyAxis* m_frequencyAxis = nullptr;
    SideAxis* m_timeAxis = nullptr;
    WaterfallPane* m_waterfall = nullptr;
};

} // namespace bandmonitor
