// SPDX-License-Identifier: MIT
#pragma once

#include "bandpane.h"

#include <radiopanes/colors/colormap.h>
#include <radiopanes/core/axisticks.h>
#include <radiopanes/core/columnreducer.h>
#include <radiopanes/radiopanes_export.h>

#include <functional>
#include <memory>
#include <vector>

namespace RadioPanes {

class WaterfallPanePrivate;

/// Shows the sweeps up to the current one, newest line on top, levels as colours.
///
/// The lines live in a ring: a new sweep costs one line and the painting, whatever the number of
/// bins and lines. What is shown depends only on the history, the current sweep and the size of
/// the pane, so that resizing and zooming lose nothing.
class RADIOPANES_EXPORT WaterfallPane : public BandPane
{
    Q_OBJECT
public:
    /// Writes the time of a sweep.
    using TimeText = std::function<QString(quint64 timeUs)>;

    /// The view is not owned and must outlive the pane.
    WaterfallPane(VisibleBand* view, QWidget* parent);
    ~WaterfallPane() override;

    /// Height of the line of one sweep.
    static constexpr int linePixels = 2;

    /// Null for none. Nothing is shown until setPosition().
    void setHistory(std::shared_ptr<const SweepHistory> history);
    /// Makes the sweep the newest line. `pyramid` is that sweep's, when the caller has it already.
    void setPosition(qsizetype position, std::shared_ptr<const LevelPyramid> pyramid = {});
    /// A text that is shown as long as there is one line only, but more could follow; none at
    /// first.
    void setHint(const QString& text);
    /// The levels of the first and the last colour, in dB; 1 dB apart at least.
    void setLevelRange(double low, double high);
    /// ColorMap::ColorSet at first.
    void setColorMap(ColorMap map);
    ColorMap colorMap() const;

    /// Times for a scale of `pixels` pixels beside the pane, counted from its bottom.
    std::vector<AxisTick> timeTicks(int pixels, const TimeText& text) const;
    /// The sweep whose line is at `y`; -1 when there is none.
    qsizetype sweepAt(int y) const;
    /// The colour drawn for a level.
    QRgb colorOf(float level) const;

    QSize sizeHint() const override { return {960, 260}; }
    QSize minimumSizeHint() const override { return {240, 60}; }

public Q_SLOTS:
    /// Takes the colours anew.
    void refreshColors();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    std::unique_ptr<WaterfallPanePrivate> d;
};

} // namespace RadioPanes
