// SPDX-License-Identifier: MIT
#pragma once

#include "bandpane.h"

#include <radiopanes/core/axisticks.h>
#include <radiopanes/core/columnreducer.h>
#include <radiopanes/core/levelline.h>
#include <radiopanes/core/measurements.h>
#include <radiopanes/radiopanes_export.h>

#include <guibase/colors/icolorbase.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace RadioPanes {

class FrequencyText;
class SpectrumPanePrivate;

/// What a spectrum can show of the same bins.
enum class Trace {
    Current, ///< The sweep that was given last.
    Average,
    Maximum,
    Minimum,
    Live = Current, ///< Its former name.
};
inline constexpr int traceCount = 4;
/// The slot of the colour set that the trace is drawn with.
RADIOPANES_EXPORT IColorBase::ECOLOR traceSlot(Trace trace);

/// Shows sweeps as curves: each column of pixels a line from the lowest to the highest level of its
/// bins, with grid, read-outs and a legend. The hold maximum lies behind as a line over a shadow.
///
/// Levels are reduced to columns once for every sweep and view; the time to draw follows the
/// pixels, whatever the number of bins.
///
/// Keys: up and down move the reference level by a division, with Control they change the dB of a
/// division; page up and page down move the cursor to the next peak at its left or right. Wheel:
/// with Shift the reference level, with Control the dB of a division. The rest is as in BandPane.
class RADIOPANES_EXPORT SpectrumPane : public BandPane
{
    Q_OBJECT
public:
    /// Makes the ticks for a grid of so many pixels.
    using GridTicks = std::function<std::vector<AxisTick>(int pixels)>;

    /// `text` must outlive the pane. `frequencyTicks` tells where the vertical grid lines stand.
    SpectrumPane(VisibleBand* view, const FrequencyText* text, GridTicks frequencyTicks,
                 QWidget* parent);
    ~SpectrumPane() override;

    /// The sweep that the trace shows, and a pyramid of it; its levels must stay until the next
    /// call for this trace. Null: none. Nothing at first.
    void setTrace(Trace trace, const Sweep& sweep, std::shared_ptr<const LevelPyramid> pyramid);
    /// Current and Maximum are visible at first.
    void setTraceVisible(Trace trace, bool visible);
    bool isTraceVisible(Trace trace) const;
    /// The trace as the legend names it.
    static QString traceName(Trace trace);

    /// The line of reference levels, in order of frequency; empty for none.
    void setReferenceLevels(std::vector<LevelPoint> points);
    /// A level that is drawn as a dashed line, in dB; nothing for none.
    void setThreshold(std::optional<double> levelDb);
    /// The first line of the read-out; empty for none.
    void setCaption(const QString& caption);
    const QString& caption() const;
    /// Whether the read-out tells the widths at -3 dB and of 99 % of the power at the cursor. Not
    /// at first.
    void setWidthsVisible(bool visible);
    bool areWidthsVisible() const;

    /// The levels at the bottom and the top of the pane, in dB.
    double lowLevel() const;
    double highLevel() const;
    /// The levels at the bottom and the top of the pane, in dB; 10 dB apart at least, and within
    /// -1,000 to 1,000 dB. Levels that are not finite change nothing.
    void setLevelRange(double low, double high);
    static constexpr int levelDivisions = 10;
    /// The level at the top, in dB; the range moves along.
    void setReferenceLevel(double levelDb);
    double decibelsPerDivision() const;
    /// 1 to 50 dB; the reference level stays.
    void setDecibelsPerDivision(double decibels);
    /// The next larger (above 0) or smaller of 1, 2, 5, 10, 20 and 50 dB a division.
    void stepDecibelsPerDivision(int steps);
    /// Moves the reference level by tenths of the range, upwards above 0.
    void stepReferenceLevel(double divisions);
    /// Ticks of the level axis for a scale of `pixels` pixels.
    std::vector<AxisTick> levelTicks(int pixels) const;

    /// The level of the current trace's bin at the frequency; nothing where the sweep has none.
    std::optional<float> levelAt(double hertz) const;
    /// The lines of the read-out: the caption, the cursor, the widths, then the pins; from the
    /// second pin on with their differences to the first one.
    QStringList readOut() const;
    /// The width of the current trace's bin at the frequency, in Hz; 0 where the sweep has none.
    double stepAt(double hertz) const;
    /// Moves the cursor to the next peak of the current trace that reaches the threshold or,
    /// without one, stands out of the noise; false when there is none.
    bool moveToPeak(Direction direction);
    /// The highest bin within a pin's reach.
    double snapped(double hertz) const override;

    QSize sizeHint() const override { return {960, 320}; }
    QSize minimumSizeHint() const override { return {240, 80}; }

Q_SIGNALS:
    /// lowLevel() or highLevel() is another one: axes and other panes follow.
    void levelRangeChanged();
    /// The trace is visible now, or no longer.
    void traceVisibleChanged(Trace trace, bool visible);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void updateReadOut();

    std::unique_ptr<SpectrumPanePrivate> d;
};

} // namespace RadioPanes
