// SPDX-License-Identifier: MIT
#pragma once

#include "bandpane.h"

#include <radiopanes/core/axisticks.h>
#include <radiopanes/core/columnreducer.h>
#include <radiopanes/core/levelline.h>
#include <radiopanes/radiopanes_export.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace RadioPanes {

class FrequencyText;

/// Shows one sweep as a curve: each column of pixels a line from the lowest to the highest level of
/// its bins, over the hold maximum, with grid and read-outs.
///
/// Levels are reduced to columns when a sweep comes or the view changes; painting follows the
/// pixels to be painted, whatever the number of bins.
class RADIOPANES_EXPORT SpectrumPane : public BandPane
{
    Q_OBJECT
public:
    using GridTicks = std::function<std::vector<AxisTick>(int pixels)>;

    /// `text` must outlive the pane. `frequencyTicks` tells where the vertical grid lines stand.
    SpectrumPane(VisibleBand* view, const FrequencyText* text, GridTicks frequencyTicks,
                 QWidget* parent);
    ~SpectrumPane() override;

    /// The sweep, and a pyramid of it; its levels must stay until the next call. Null: none.
    void setSweep(const Sweep& sweep, std::shared_ptr<const LevelPyramid> pyramid);
    /// As setSweep(), for the hold maximum that is drawn behind the curve.
    void setHold(const Sweep& hold, std::shared_ptr<const LevelPyramid> pyramid);
    void setHoldVisible(bool visible);

    /// The line of reference levels, in order of frequency; empty for none.
    void setReferenceLevels(std::vector<LevelPoint> points);

    /// A level that is drawn as a dashed line, in dB; nothing for none.
    void setThreshold(std::optional<double> levelDb);
    /// The first line of the read-out; empty for none.
    void setCaption(const QString& caption);
    const QString& caption() const { return m_caption; }

    double lowLevel() const { return m_lowLevel; }
    double highLevel() const { return m_highLevel; }
    /// The levels at the bottom and the top of the pane, in dB; 10 dB apart at least.
    void setLevelRange(double low, double high);
    /// Ticks of the level axis for a scale of `pixels` pixels.
    std::vector<AxisTick> levelTicks(int pixels) const;

    /// The level of the bin at the frequency; nothing where the sweep has none.
    std::optional<float> levelAt(double hertz) const { return m_curve.sweep.levelAt(hertz); }
    /// The lines of the read-out: the caption, the cursor, then the pins.
    QStringList readOut() const;

    QSize sizeHint() const override { return {960, 320}; }
    QSize minimumSizeHint() const override { return {240, 100}; }

public Q_SLOTS:
    /// Texts have changed: unit, resolution or zone.
    void refreshTexts();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateAround(double hertz) override;

private:
    struct Trace
    {
        Sweep sweep;
        std::shared_ptr<const LevelPyramid> pyramid;
        std::vector<LevelRange> columns;
    };

    void setTrace(Trace& trace, const Sweep& sweep, std::shared_ptr<const LevelPyramid> pyramid);
    void reduce(Trace& trace) const;
    void reduceAll();
    int yOf(double level) const;
    void paintGrid(QPainter& painter, const QRect& dirty) const;
    void paintHold(QPainter& painter, int first, int last) const;
    void paintCurve(QPainter& painter, int first, int last) const;
    void paintReferenceLevels(QPainter& painter) const;
    void paintThreshold(QPainter& painter) const;
    void paintPinNumbers(QPainter& painter) const;
    void paintReadOut(QPainter& painter) const;
    QString readOutLine(const QString& title, double hertz) const;
    QRect readOutRect() const;
    void updateReadOut();

    const FrequencyText* m_text;
    GridTicks m_frequencyTicks;
    Trace m_curve;
    Trace m_hold;
    std::vector<LevelPoint> m_referenceLevels;
    std::optional<double> m_thresholdDb;
    QString m_caption;
    bool m_holdVisible = true;
    double m_lowLevel = -120;
    double m_highLevel = 0;
    QRect m_paintedReadOut;
};

} // namespace RadioPanes
