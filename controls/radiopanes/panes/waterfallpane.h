// SPDX-License-Identifier: MIT
#pragma once

#include "bandpane.h"
#include "historyplace.h"

#include <radiopanes/colors/levelcolors.h>
#include <radiopanes/core/axisticks.h>
#include <radiopanes/core/columnreducer.h>
#include <radiopanes/radiopanes_export.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace RadioPanes {

class WaterfallPanePrivate;

/// Shows the sweeps up to the current one, newest line on top, levels as colours.
///
/// The lines live in a ring: a new sweep costs one line and the painting, whatever the number of
/// bins and lines. What is shown depends only on the history, the current sweep, the time that the
/// user has scrolled and zoomed to and the size of the pane. Work that would keep the user waiting
/// is done in slices, from the top on.
///
/// Keys: up and down scroll by a line, page up and page down by a page, end follows the newest
/// sweep again; with Control up and down zoom in time. Wheel: with Shift it scrolls, with Control
/// it zooms in time. Dragging scrolls too. The rest is as in BandPane.
class RADIOPANES_EXPORT WaterfallPane : public BandPane
{
    Q_OBJECT
public:
    /// Writes the time of a sweep.
    using TimeText = std::function<QString(quint64 timeUs)>;

    /// The view is not owned and must outlive the pane.
    WaterfallPane(VisibleBand* view, QWidget* parent);
    ~WaterfallPane() override;

    /// Height of the line of one sweep, unless the user has zoomed in time.
    static constexpr int linePixels = 2;

    /// Null for none. Nothing is shown until setPosition(). Follows the newest sweep.
    void setHistory(std::shared_ptr<const SweepHistory> history);
    /// Makes the sweep the current one: the newest line, unless the user has scrolled back.
    /// `pyramid` is that sweep's, when the caller has it already.
    void setPosition(qsizetype position, std::shared_ptr<const LevelPyramid> pyramid = {});
    /// A text that is shown as long as there is one line only, but more could follow; none at
    /// first.
    void setHint(const QString& text);
    /// Makes the text of the place below the mouse pointer; none at first.
    void setPlaceText(PlaceText text);
    /// The levels of the first and the last colour, in dB; 1 dB apart at least.
    void setLevelRange(double low, double high);
    /// ColorMap::ColorSet at first.
    void setColorMap(ColorMap map);
    ColorMap colorMap() const;
    /// As set by setLevelRange() and setColorMap().
    const LevelColors& levelColors() const;

    /// Scrolls by so many lines, back in time above 0. Up to the current sweep it follows again.
    void scrollTime(qsizetype lines);
    /// Scrolls to the line of this sweep, which comes to the top.
    void scrollTo(qsizetype sweep);
    /// As scrollTime(), in pixels; parts of lines add up.
    void scrollTimeByPixels(int pixels);
    /// The current sweep is at the top again, also when it changes.
    void followNewest();
    /// Whether the current sweep is at the top; so at first.
    bool isFollowing() const;
    /// Twice as high lines, or half as many sweeps in one, for each step above 0; the reverse
    /// below. The line at `y` stays in place.
    void zoomTime(int steps, int y = 0);
    /// Above 0 the lines are 2, 4, ... times as high; below 0 a line shows the highest levels of 2,
    /// 4, ... sweeps. From -20 to 4; 0 at first.
    int timeZoom() const;
    /// The nearest one that is possible.
    void setTimeZoom(int zoom);
    /// The first and the last sweep shown; both -1 for none.
    std::pair<qsizetype, qsizetype> shownSweeps() const;

    /// Times for a scale of `pixels` pixels beside the pane, counted from its bottom. A label may
    /// have several lines.
    std::vector<AxisTick> timeTicks(int pixels, const TimeText& text) const;
    /// The newest sweep of the line at `y`; -1 when there is none, or no longer.
    qsizetype sweepAt(int y) const;
    /// The highest bin of the line there within a pin's reach.
    double snappedAt(const QPointF& place) const override;
    /// Whether the history is longer than a day, so that times need their date.
    bool isLongerThanADay() const;
    /// What is shown there; nothing where no line is, and no level where its sweeps have gone.
    std::optional<HistoryPlace> placeAt(const QPoint& position) const;
    /// The colour drawn for a level.
    QRgb colorOf(float level) const;

    QSize sizeHint() const override { return {960, 260}; }
    QSize minimumSizeHint() const override { return {240, 40}; }

public Q_SLOTS:
    /// Takes the colours anew.
    void refreshColors();

Q_SIGNALS:
    /// Other sweeps are shown, or at other places: axes follow.
    void timesChanged();
    /// levelColors() are others.
    void levelColorsChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void dragged(const QPoint& change, Qt::Orientation begun) override;

private:
    std::unique_ptr<WaterfallPanePrivate> d;
};

} // namespace RadioPanes
