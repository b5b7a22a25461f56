// SPDX-License-Identifier: MIT
#pragma once

#include "spectrumpane.h"
#include "spectrumraster_p.h"

#include <jtbase/wheelnotches.h>

#include <QFont>
#include <QImage>
#include <QRegion>
#include <QTextLayout>

#include <array>
#include <memory>
#include <utility>
#include <vector>

class QPainter;

namespace RadioPanes {

/// What a SpectrumPane shows, and the picture of its background, grid and traces, which is drawn
/// anew only when one of them has changed.
class SpectrumPanePrivate
{
public:
    struct TraceState
    {
        Sweep sweep;
        std::shared_ptr<const LevelPyramid> pyramid;
        bool isVisible = false;
        std::vector<LevelRange> columns; ///< Of the picture's width, for `view`.
        ColumnView view;

        bool isShown() const { return isVisible && !sweep.isEmpty(); }
    };

    SpectrumPanePrivate(SpectrumPane* pane, const FrequencyText* frequencyText,
                        SpectrumPane::GridTicks ticks);
    ~SpectrumPanePrivate();

    TraceState& trace(Trace kind) { return traces[static_cast<std::size_t>(kind)]; }
    const TraceState& trace(Trace kind) const { return traces[static_cast<std::size_t>(kind)]; }
    void invalidate() { isDrawn = false; }
    /// Has the pane painted where picture or texts have changed, but for what was painted just now.
    /// Not before showChanges(), where that is going to be called: what was painted may have been a
    /// copy of the pane.
    void updateStale(const QRegion& painted = {})
    {
        if (!isShowing && !stale.isEmpty())
            q->update(std::exchange(stale, {}).subtracted(painted));
    }
    /// Draws the picture when the event loop comes to it, once for all changes until then, and has
    /// the pane painted where the picture has changed.
    void showSoon();
    /// Draws the picture before, if it is another one by now.
    void paintPicture(QPainter& painter, const QRegion& region);

    // What is painted over the picture.
    void paintReferenceLevels(QPainter& painter) const;
    void paintThreshold(QPainter& painter) const;
    void paintPinNumbers(QPainter& painter) const;
    /// The read-out and the legend, which gives way to it.
    void paintTexts(QPainter& painter, const QRegion& region);

    double yOf(double level) const;
    QStringList readOut();
    /// Brings `texts` up to date; where they change is stale.
    void layOutTexts();

    SpectrumPane* q;
    const FrequencyText* text;
    SpectrumPane::GridTicks frequencyTicks;
    std::array<TraceState, traceCount> traces;
    std::vector<LevelPoint> referenceLevels;
    std::optional<double> thresholdDb;
    QString caption;
    bool areWidthsVisible = false;
    double lowLevel = -120;
    double highLevel = 0;
    WheelNotches wheel;
    /// The read-out and the legend as they fit into the pane.
    struct Texts
    {
        QStringList lines; ///< What the read-out tells,
        QFont font;        ///< and what else it was laid out for.
        QSize paneSize;
        std::vector<std::unique_ptr<QTextLayout>> rows;
        QRect readOut;
        std::vector<Trace> legendTraces;
        QFont legendFont;
        QSize legendSize;
        QRect legend; ///< Null for none.
    };
    Texts texts;
    /// The ticks of the level axis: the axis and the picture ask for them with every painting.
    struct LevelTicks
    {
        AxisRange range;
        QFont font;
        std::vector<AxisTick> ticks;
    };
    LevelTicks levelTicks;
    /// The bandwidth in the view, while neither the view nor the sweep changes.
    struct OccupiedWidth
    {
        Extent view;
        std::optional<Extent> width;
    };
    std::optional<OccupiedWidth> occupied;

private:
    /// All that the picture depends on, but the traces.
    struct PictureKey
    {
        QSize pixels;
        double low = 0;
        double high = 0;
        ColumnView view;
        std::vector<QRgb> colors;
        std::vector<int> gridRows;
        std::vector<int> gridColumns;

        bool operator==(const PictureKey&) const = default;
    };
    /// The pixels that a trace takes in each column.
    struct Pixels
    {
        std::vector<int> top;
        std::vector<int> bottom;

        /// No pixel in any of so many columns.
        void clear(std::size_t width);
    };

    /// Draws the picture, in device pixels, unless it is still as it is to be.
    void drawPicture();
    void showChanges();
    PictureKey makeKey() const;
    void draw();
    void reduce(TraceState& state) const;
    /// By how many rows a line is thicker than one.
    int addedRows() const;
    void makeCurve(const TraceState& state, Pixels& place) const;
    /// A line along the highest or lowest levels; returns the row of each column's level.
    std::vector<int> makeOutline(const TraceState& state, float LevelRange::*level,
                                 Pixels& place) const;
    /// From the level to a row of the picture.
    int rowOf(float level) const;
    QString readOutLine(const QString& title, double hertz) const;
    QString difference(double hertz, double fromHertz) const;
    QString widths(double hertz);
    void layOutReadOut();
    QRect readOutRect() const;
    std::vector<Trace> shownTraces() const;
    void paintLegend(QPainter& painter) const;
    QSize legendSize();
    QRect legendRect(const QRect& taken);
    void paintBox(QPainter& painter, const QRect& place) const;

    PictureKey key;
    float lowest = 0; ///< The level at the bottom of the picture.
    float rowsPerDecibel = 1;
    bool isDrawn = false;
    bool isShowing = false; ///< showChanges() is going to be called.
    QRegion stale;          ///< Where the pane was not yet told to be painted anew.
    SpectrumRaster raster;
    const QImage* image = nullptr; ///< Of the raster.
    std::array<Pixels, traceCount> pixels;
    std::vector<int> shadowTop;
};

} // namespace RadioPanes
