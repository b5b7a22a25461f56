// SPDX-License-Identifier: MIT
#include "waterfallpane.h"

#include "visibleband.h"

#include <radiopanes/colors/panecolors.h>

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

namespace RadioPanes {

namespace {

// Above this many bins in all lines the pyramids would take too much memory; zooming then reduces
// the bins themselves again.
constexpr qsizetype largestPyramidHistory = qsizetype{64} << 20;
constexpr int legendMargin = 4;
constexpr int legendWidth = 96;

} // namespace

class WaterfallPanePrivate
{
public:
    explicit WaterfallPanePrivate(WaterfallPane* pane)
        : q(pane)
    {}

    qsizetype lineCount() const { return image.height(); }
    bool isShown(qsizetype sweep) const;
    int imageRow(qsizetype sweep) const;
    std::span<QRgb> line(qsizetype sweep);
    std::shared_ptr<const LevelPyramid>& pyramidOf(qsizetype sweep);
    void forgetOld();
    void drawLine(qsizetype sweep);
    void drawLines(qsizetype first, qsizetype last);
    void redrawAll();
    void rebuild();
    void paintLegend(QPainter& painter) const;

    WaterfallPane* q;
    std::shared_ptr<const SweepHistory> history;
    QString hint;
    qsizetype position = -1;
    double lowLevel = -120;
    double highLevel = 0;
    ColorMap map = ColorMap::ColorSet;
    ColorRamp ramp = colorRamp(ColorMap::ColorSet);
    QImage image; ///< One row per line; sweep i in row lineCount() - 1 - i % lineCount().
    std::vector<std::shared_ptr<const LevelPyramid>> pyramids; ///< Beside the rows of the image.
    qsizetype oldest = 0;       ///< Sweeps before it have no pyramid.
    std::vector<float> columns; ///< The highest levels.
};

WaterfallPane::WaterfallPane(VisibleBand* view, QWidget* parent)
    : BandPane(view, parent)
    , d(std::make_unique<WaterfallPanePrivate>(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Waterfall"));
    setLegendVisible(false);
    connect(view, &VisibleBand::rangeChanged, this, [this] { d->redrawAll(); });
}

WaterfallPane::~WaterfallPane() = default;

void WaterfallPane::setHistory(std::shared_ptr<const SweepHistory> history)
{
    d->history = std::move(history);
    d->position = -1;
    d->oldest = 0;
    d->pyramids.assign(d->pyramids.size(), nullptr);
    update();
}

void WaterfallPane::setHint(const QString& text)
{
    d->hint = text;
    update();
}

void WaterfallPane::setLevelRange(double low, double high)
{
    if (!std::isfinite(low) || !std::isfinite(high))
        return;
    d->lowLevel = low;
    d->highLevel = std::max(high, low + 1);
    d->redrawAll();
}

void WaterfallPane::refreshColors()
{
    d->ramp = colorRamp(d->map);
    d->redrawAll();
}

void WaterfallPane::setColorMap(ColorMap map)
{
    d->map = map;
    refreshColors();
}

ColorMap WaterfallPane::colorMap() const
{
    return d->map;
}

bool WaterfallPanePrivate::isShown(qsizetype sweep) const
{
    return sweep >= 0 && sweep <= position && sweep > position - lineCount();
}

int WaterfallPanePrivate::imageRow(qsizetype sweep) const
{
    return static_cast<int>(lineCount() - 1 - sweep % lineCount());
}

std::shared_ptr<const LevelPyramid>& WaterfallPanePrivate::pyramidOf(qsizetype sweep)
{
    return pyramids[static_cast<size_t>(imageRow(sweep))];
}

std::span<QRgb> WaterfallPanePrivate::line(qsizetype sweep)
{
    return {reinterpret_cast<QRgb*>(image.scanLine(imageRow(sweep))),
            static_cast<size_t>(image.width())};
}

/// The levels that pyramids refer to go with their sweeps.
void WaterfallPanePrivate::forgetOld()
{
    const qsizetype first = history->first();
    if (first <= oldest)
        return;
    for (qsizetype sweep = std::max(oldest, position - lineCount() + 1); sweep < first; ++sweep) {
        if (isShown(sweep))
            pyramidOf(sweep).reset();
    }
    oldest = first;
}

void WaterfallPane::setPosition(qsizetype position, std::shared_ptr<const LevelPyramid> pyramid)
{
    if (!d->history || position < 0 || position >= d->history->count() || d->lineCount() == 0) {
        d->position = d->history && position < d->history->count() ? position : -1;
        update();
        return;
    }
    d->forgetOld();
    const qsizetype before = std::exchange(d->position, position);
    const qsizetype oldest = position - d->lineCount() + 1;
    const bool isFar = before < 0 || std::abs(position - before) >= d->lineCount();
    // The lines that were not there before.
    const qsizetype first = isFar || position < before ? oldest : before + 1;
    const qsizetype last = isFar || position > before ? position : oldest + before - position - 1;
    for (qsizetype sweep = std::max<qsizetype>(first, 0); sweep <= last; ++sweep)
        d->pyramidOf(sweep) = sweep == position ? std::move(pyramid) : nullptr;
    d->drawLines(first, last);
    update();
}

void WaterfallPanePrivate::drawLines(qsizetype first, qsizetype last)
{
    for (qsizetype sweep = std::max<qsizetype>(first, 0); sweep <= last; ++sweep) {
        if (sweep >= history->first())
            drawLine(sweep);
        else // it is gone: it cannot be drawn anew
            std::ranges::fill(line(sweep), ramp.front());
    }
}

void WaterfallPanePrivate::drawLine(qsizetype sweep)
{
    const ColumnView view{q->visibleBand().low(), q->visibleBand().high()};
    auto& pyramid = pyramidOf(sweep);
    const auto bins = static_cast<qsizetype>(history->largestBinCount());
    if (!pyramid && bins * lineCount() <= largestPyramidHistory)
        pyramid = std::make_shared<LevelPyramid>(history->sweep(sweep));
    if (pyramid)
        pyramid->reduceMaxima(view, columns);
    else
        reduceToMaxima(history->sweep(sweep), view, columns);
    std::ranges::transform(columns, line(sweep).begin(),
                           [this](float level) { return q->colorOf(level); });
}

QRgb WaterfallPane::colorOf(float level) const
{
    const double share = (static_cast<double>(level) - d->lowLevel) / (d->highLevel - d->lowLevel);
    const double index = std::clamp(share, 0.0, 1.0) * static_cast<double>(d->ramp.size() - 1);
    return d->ramp[static_cast<size_t>(index)];
}

void WaterfallPanePrivate::redrawAll()
{
    if (history && position >= 0 && lineCount() > 0) {
        forgetOld();
        drawLines(position - lineCount() + 1, position);
    }
    q->update();
}

void WaterfallPanePrivate::rebuild()
{
    const int lines = (q->height() + WaterfallPane::linePixels - 1) / WaterfallPane::linePixels;
    if (image.width() == q->width() && lineCount() == lines)
        return;
    // The rows belong to other sweeps when their number changes; the pyramids move with them.
    std::vector<std::shared_ptr<const LevelPyramid>> kept(static_cast<size_t>(lines));
    for (qsizetype sweep = position; lines > 0 && isShown(sweep) && sweep > position - lines;
         --sweep)
        kept[static_cast<size_t>(lines - 1 - sweep % lines)] = pyramidOf(sweep);
    pyramids = std::move(kept);
    image = QImage(q->width(), lines, QImage::Format_RGB32);
    image.fill(ramp.front());
    columns.resize(static_cast<size_t>(q->width()));
    redrawAll();
}

void WaterfallPane::resizeEvent(QResizeEvent* event)
{
    BandPane::resizeEvent(event);
    d->rebuild();
}

void WaterfallPane::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int lines = static_cast<int>(std::min<qsizetype>(d->position + 1, d->lineCount()));
    if (lines > 0) {
        const int newest = d->imageRow(d->position);
        const int upper = std::min(lines, static_cast<int>(d->lineCount()) - newest);
        painter.drawImage(QRect(0, 0, width(), upper * linePixels), d->image,
                          QRect(0, newest, width(), upper));
        if (upper < lines)
            painter.drawImage(QRect(0, upper * linePixels, width(), (lines - upper) * linePixels),
                              d->image, QRect(0, 0, width(), lines - upper));
    }
    painter.fillRect(0, lines * linePixels, width(), height() - lines * linePixels,
                     QColor(d->ramp.front()));
    if (d->position == 0 && d->history && d->history->count() > 1) {
        painter.setPen(paneColor(PaneSlot::ReadOut));
        painter.drawText(rect(), Qt::AlignCenter, d->hint);
    }
    paintOverlay(painter);
    if (isLegendVisible())
        d->paintLegend(painter);
}

void WaterfallPanePrivate::paintLegend(QPainter& painter) const
{
    const QFontMetrics metrics = q->fontMetrics();
    const auto textOf = [](double level) { return QStringLiteral("%1 dB").arg(qRound(level)); };
    const QString low = textOf(lowLevel);
    const QString high = textOf(highLevel);
    const int lowWidth = metrics.horizontalAdvance(low);
    const int highWidth = metrics.horizontalAdvance(high);
    const int width = lowWidth + highWidth + legendWidth + 4 * legendMargin;
    const QRect box(q->width() - width - legendMargin, legendMargin, width,
                    metrics.height() + 2 * legendMargin);
    painter.fillRect(box, q->palette().color(QPalette::Window));
    QImage bar(static_cast<int>(ramp.size()), 1, QImage::Format_RGB32);
    std::ranges::copy(ramp, reinterpret_cast<QRgb*>(bar.scanLine(0)));
    const QRect inside = box.adjusted(legendMargin, legendMargin, -legendMargin, -legendMargin);
    painter.drawImage(inside.adjusted(lowWidth + legendMargin, 0, -highWidth - legendMargin, 0),
                      bar);
    painter.setPen(q->palette().color(QPalette::WindowText));
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter, low);
    painter.drawText(inside, Qt::AlignRight | Qt::AlignVCenter, high);
}

qsizetype WaterfallPane::sweepAt(int y) const
{
    const qsizetype sweep = y < 0 ? -1 : d->position - y / linePixels;
    return d->isShown(sweep) ? sweep : -1;
}

std::vector<AxisTick> WaterfallPane::timeTicks(int pixels, const TimeText& text) const
{
    // Labels belong to sweeps whose number is a multiple of the step, so that they move with the
    // lines instead of flickering.
    const double needed = 2.0 * fontMetrics().height() / linePixels;
    const auto step = static_cast<qsizetype>(std::max(niceStep(needed), 1.0));
    std::vector<AxisTick> ticks;
    for (qsizetype sweep = d->position - d->position % step; d->isShown(sweep); sweep -= step) {
        const double fromTop = static_cast<double>(d->position - sweep) * linePixels;
        ticks.push_back({static_cast<double>(sweep), pixels - 1 - fromTop - linePixels / 2.0,
                         text(d->history->sweep(sweep).timeUs)});
    }
    return ticks;
}

} // namespace RadioPanes
