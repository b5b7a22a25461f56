// SPDX-License-Identifier: MIT
#include "waterfallpane.h"

#include "visibleband.h"

#include <QPainter>

#include <cmath>

namespace RadioPanes {

namespace {

// Above this many bins in all lines the pyramids would take too much memory; zooming then reduces
// the bins themselves again.
constexpr qsizetype largestPyramidHistory = qsizetype{64} << 20;

} // namespace

WaterfallPane::WaterfallPane(VisibleBand* view, QWidget* parent)
    : BandPane(view, parent)
    , m_ramp(waterfallRamp())
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Waterfall"));
    connect(view, &VisibleBand::rangeChanged, this, &WaterfallPane::redrawAll);
}

WaterfallPane::~WaterfallPane() = default;

void WaterfallPane::setHistory(std::shared_ptr<const SweepHistory> history)
{
    m_history = std::move(history);
    m_position = -1;
    m_pyramids.assign(m_pyramids.size(), nullptr);
    update();
}

void WaterfallPane::setHint(const QString& text)
{
    m_hint = text;
    update();
}

void WaterfallPane::setLevelRange(double low, double high)
{
    if (!std::isfinite(low) || !std::isfinite(high))
        return;
    m_lowLevel = low;
    m_highLevel = std::max(high, low + 1);
    redrawAll();
}

void WaterfallPane::refreshColors()
{
    m_ramp = waterfallRamp();
    redrawAll();
}

bool WaterfallPane::isShown(qsizetype sweep) const
{
    return sweep >= 0 && sweep <= m_position && sweep > m_position - lineCount();
}

int WaterfallPane::imageRow(qsizetype sweep) const
{
    return static_cast<int>(lineCount() - 1 - sweep % lineCount());
}

void WaterfallPane::setPosition(qsizetype position, std::shared_ptr<const LevelPyramid> pyramid)
{
    if (!m_history || position < 0 || position >= m_history->count() || lineCount() == 0) {
        m_position = m_history && position < m_history->count() ? position : -1;
        update();
        return;
    }
    const qsizetype before = m_position;
    const qsizetype oldest = position - lineCount() + 1;
    m_position = position;
    if (before < 0 || std::abs(position - before) >= lineCount()) {
        m_pyramids.assign(m_pyramids.size(), nullptr);
        m_pyramids[static_cast<size_t>(imageRow(position))] = std::move(pyramid);
        drawLines(oldest, position);
    } else if (position > before) {
        for (qsizetype sweep = before + 1; sweep <= position; ++sweep)
            m_pyramids[static_cast<size_t>(imageRow(sweep))] = nullptr;
        m_pyramids[static_cast<size_t>(imageRow(position))] = std::move(pyramid);
        drawLines(before + 1, position);
    } else {
        for (qsizetype sweep = oldest; sweep < oldest + before - position; ++sweep) {
            if (sweep >= 0)
                m_pyramids[static_cast<size_t>(imageRow(sweep))] = nullptr;
        }
        drawLines(oldest, oldest + before - position - 1);
    }
    update();
}

void WaterfallPane::drawLines(qsizetype first, qsizetype last)
{
    for (qsizetype sweep = std::max(first, qsizetype{0}); sweep <= last; ++sweep)
        drawLine(sweep);
}

void WaterfallPane::drawLine(qsizetype sweep)
{
    const ColumnView columns{visibleBand().low(), visibleBand().high()};
    auto& pyramid = m_pyramids[static_cast<size_t>(imageRow(sweep))];
    const auto bins = static_cast<qsizetype>(m_history->largestBinCount());
    if (!pyramid && bins * lineCount() <= largestPyramidHistory)
        pyramid = std::make_shared<LevelPyramid>(m_history->sweep(sweep));
    if (pyramid)
        pyramid->reduceMaxima(columns, m_columns);
    else
        reduceToMaxima(m_history->sweep(sweep), columns, m_columns);
    auto* pixel = reinterpret_cast<QRgb*>(m_image.scanLine(imageRow(sweep)));
    for (const float maximum : m_columns)
        *pixel++ = colorOf(maximum);
}

QRgb WaterfallPane::colorOf(float level) const
{
    const double share = (static_cast<double>(level) - m_lowLevel) / (m_highLevel - m_lowLevel);
    const double index = std::clamp(share, 0.0, 1.0) * static_cast<double>(m_ramp.size() - 1);
    return m_ramp[static_cast<size_t>(index)];
}

void WaterfallPane::redrawAll()
{
    if (m_history && m_position >= 0 && lineCount() > 0)
        drawLines(m_position - lineCount() + 1, m_position);
    update();
}

void WaterfallPane::rebuild()
{
    const int lines = (height() + linePixels - 1) / linePixels;
    if (m_image.width() == width() && lineCount() == lines)
        return;
    // The rows belong to other sweeps when their number changes; the pyramids move with them.
    std::vector<std::shared_ptr<const LevelPyramid>> kept(static_cast<size_t>(lines));
    for (qsizetype sweep = m_position; lines > 0 && isShown(sweep) && sweep > m_position - lines;
         --sweep)
        kept[static_cast<size_t>(lines - 1 - sweep % lines)] =
            m_pyramids[static_cast<size_t>(imageRow(sweep))];
    m_pyramids = std::move(kept);
    m_image = QImage(width(), lines, QImage::Format_RGB32);
    m_image.fill(m_ramp.front());
    m_columns.resize(static_cast<size_t>(width()));
    redrawAll();
}

void WaterfallPane::resizeEvent(QResizeEvent* event)
{
    BandPane::resizeEvent(event);
    rebuild();
}

void WaterfallPane::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int lines = static_cast<int>(std::min<qsizetype>(m_position + 1, lineCount()));
    if (lines > 0) {
        const int newest = imageRow(m_position);
        const int upper = std::min(lines, static_cast<int>(lineCount()) - newest);
        painter.drawImage(QRect(0, 0, width(), upper * linePixels), m_image,
                          QRect(0, newest, width(), upper));
        if (upper < lines)
            painter.drawImage(QRect(0, upper * linePixels, width(), (lines - upper) * linePixels),
                              m_image, QRect(0, 0, width(), lines - upper));
    }
    painter.fillRect(0, lines * linePixels, width(), height() - lines * linePixels,
                     QColor(m_ramp.front()));
    if (m_position == 0 && m_history && m_history->count() > 1) {
        painter.setPen(paneColor(PaneSlot::ReadOut));
        painter.drawText(rect(), Qt::AlignCenter, m_hint);
    }
    paintOverlay(painter);
}

qsizetype WaterfallPane::sweepAt(int y) const
{
    const qsizetype sweep = y < 0 ? -1 : m_position - y / linePixels;
    return isShown(sweep) ? sweep : -1;
}

std::vector<AxisTick> WaterfallPane::timeTicks(int pixels, const TimeText& text) const
{
    // Labels belong to sweeps whose number is a multiple of the step, so that they move with the
    // lines instead of flickering.
    const double needed = 2.0 * fontMetrics().height() / linePixels;
    const auto step = static_cast<qsizetype>(std::max(niceStep(needed), 1.0));
    std::vector<AxisTick> ticks;
    for (qsizetype sweep = m_position - m_position % step; isShown(sweep); sweep -= step) {
        const double fromTop = static_cast<double>(m_position - sweep) * linePixels;
        ticks.push_back({static_cast<double>(sweep), pixels - 1 - fromTop - linePixels / 2.0,
                         text(m_history->sweep(sweep).timeUs)});
    }
    return ticks;
}

} // namespace RadioPanes
