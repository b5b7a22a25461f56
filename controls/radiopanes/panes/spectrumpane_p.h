// SPDX-License-Identifier: MIT
#pragma once

#include "spectrumpane.h"
#include "spectrumraster_p.h"

#include <jtbase/wheelnotches.h>

#include <QFont>
#include <QImage>

#include <array>

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
    /// The picture, in device pixels, as it is to be now.
    const QImage& picture();
    void invalidate() { isDrawn = false; }

    // What is painted over the picture.
    void paintReferenceLevels(QPainter& painter) const;
    void paintThreshold(QPainter& painter) const;
    void paintPinNumbers(QPainter& painter) const;
    /// The read-out and the legend, which gives way to it.
    void paintTexts(QPainter& painter);

    double yOf(double level) const;
    QStringList readOut();
    /// The read-out as it fits into the pane: long lines are broken between their parts, and what
    /// would cover more than the upper half is left out, but never the line of the cursor.
    QStringList shownReadOut();
    QRect readOutRect(const QStringList& lines) const;

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
    QRect paintedReadOut;
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
    void paintLegend(QPainter& painter, const QRect& taken) const;
    QRect legendRect(const QSize& size, const QRect& taken) const;
    void paintBox(QPainter& painter, const QRect& place) const;

    PictureKey key;
    float lowest = 0; ///< The level at the bottom of the picture.
    float rowsPerDecibel = 1;
    bool isDrawn = false;
    SpectrumRaster raster;
    QImage* image = nullptr;
    std::array<Pixels, traceCount> pixels;
    std::vector<int> shadowTop;
};

} // namespace RadioPanes
