// SPDX-License-Identifier: MIT
// The header of the plot uses both.
#undef QT_NO_KEYWORDS
#undef QT_NO_FOREACH
#include "plottedpanes.h"

#include <qcustomplot.h>

namespace {

std::unique_ptr<QCustomPlot> makePlot(QSize size)
{
    auto plot = std::make_unique<QCustomPlot>();
    plot->setFixedSize(size);
    plot->show();
    QCoreApplication::processEvents(); // lays it out
    return plot;
}

void paint(QCustomPlot& plot)
{
    plot.replot(QCustomPlot::rpQueuedRefresh);
    QCoreApplication::sendPostedEvents();
}

} // namespace

PlottedSpectrum::PlottedSpectrum(QSize size, double startHz, double stepHz,
                                 std::span<const std::vector<float>> sweeps)
    : m_plot(makePlot(size))
    , m_live(m_plot->addGraph())
    , m_held(m_plot->addGraph())
{
    double hertz = startHz;
    for (const std::vector<float>& levels : sweeps) {
        std::vector<QCPGraphData>& points = m_sweeps.emplace_back();
        hertz = startHz;
        for (const float level : levels) {
            points.emplace_back(hertz, static_cast<double>(level));
            hertz += stepHz;
        }
    }
    m_held->setPen(QPen(Qt::red));
    m_plot->xAxis->setRange(startHz, hertz);
    m_plot->yAxis->setRange(-120, 0);
}

PlottedSpectrum::~PlottedSpectrum() = default;

void PlottedSpectrum::show(std::size_t live, std::size_t held)
{
    const auto set = [this](QCPGraph* graph, std::size_t number) {
        const std::vector<QCPGraphData>& points = m_sweeps[number % m_sweeps.size()];
        graph->data()->set(QVector<QCPGraphData>(points.begin(), points.end()), true);
    };
    set(m_live, live);
    set(m_held, held);
    paint(*m_plot);
}

PlottedWaterfall::PlottedWaterfall(QSize size, int lines)
    : m_plot(makePlot(size))
    , m_map(new QCPColorMap(m_plot->xAxis, m_plot->yAxis))
{
    m_map->data()->setSize(size.width(), lines);
    m_map->data()->setRange({0, 1}, {0, 1});
    m_map->data()->fill(-120);
    m_map->setGradient(QCPColorGradient::gpCold);
    m_map->setDataRange({-120, 0});
    m_map->setInterpolate(false);
    m_plot->xAxis->setRange(0, 1);
    m_plot->yAxis->setRange(0, 1);
}

PlottedWaterfall::~PlottedWaterfall() = default;

void PlottedWaterfall::addLine(std::span<const float> levels)
{
    QCPColorMapData& data = *m_map->data();
    for (int line = 0; line + 1 < data.valueSize(); ++line) {
        for (int column = 0; column < data.keySize(); ++column)
            data.setCell(column, line, data.cell(column, line + 1));
    }
    for (int column = 0; column < data.keySize(); ++column)
        data.setCell(column, data.valueSize() - 1,
                     static_cast<double>(levels[static_cast<std::size_t>(column)]));
    paint(*m_plot);
}
