// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

#include <memory>
#include <span>
#include <vector>

class QCustomPlot;
class QCPColorMap;
class QCPGraph;
class QCPGraphData;

/// Two curves of one spectrum in QCustomPlot, for comparison. Each sweep stands ready in the form
/// that the plot takes.
class PlottedSpectrum
{
public:
    PlottedSpectrum(QSize size, double startHz, double stepHz,
                    std::span<const std::vector<float>> sweeps);
    ~PlottedSpectrum();

    /// Shows two of the sweeps and paints them.
    void show(std::size_t live, std::size_t held);

private:
    std::unique_ptr<QCustomPlot> m_plot;
    std::vector<std::vector<QCPGraphData>> m_sweeps;
    QCPGraph* m_live;
    QCPGraph* m_held;
};

/// A waterfall as a colour map in QCustomPlot, one cell for each column of pixels.
class PlottedWaterfall
{
public:
    PlottedWaterfall(QSize size, int lines);
    ~PlottedWaterfall();

    /// Moves all lines down by one, puts this one on top and paints.
    void addLine(std::span<const float> levels);

private:
    std::unique_ptr<QCustomPlot> m_plot;
    QCPColorMap* m_map;
};
