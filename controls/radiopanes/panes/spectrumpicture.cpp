// SPDX-License-Identifier: MIT
#include "spectrumpane_p.h"

#include "visibleband.h"

#include <radiopanes/colors/panecolors.h>

#include <QPainter>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <limits>

namespace RadioPanes {

namespace {

constexpr double holdShadowOpacity = 0.25;
// The traces from the one that is drawn first, behind the others, to the one on top.
constexpr std::array drawingOrder{Trace::Maximum, Trace::Minimum, Trace::Current, Trace::Average};

enum Color { BackgroundTop, BackgroundBottom, Grid, Shadow, FirstTrace };

QRgb rgbOf(IColorBase::ECOLOR slot)
{
    return paneColor(slot).rgb();
}

/// The smallest rectangle around what the scaled one covers.
QRect scaled(const QRect& rect, double factor)
{
    return QRectF(rect.x() * factor, rect.y() * factor, rect.width() * factor,
                  rect.height() * factor)
        .toAlignedRect();
}

} // namespace

SpectrumPanePrivate::PictureKey SpectrumPanePrivate::makeKey() const
{
    const double ratio = q->devicePixelRatioF();
    PictureKey result;
    result.pixels = {static_cast<int>(std::ceil(q->width() * ratio)),
                     static_cast<int>(std::ceil(q->height() * ratio))};
    result.low = lowLevel;
    result.high = highLevel;
    result.view = {q->frequencyAt(0), q->frequencyAt(result.pixels.width() / ratio)};
    result.colors = {rgbOf(PaneSlot::BackgroundHigh), rgbOf(PaneSlot::BackgroundLow),
                     rgbOf(PaneSlot::Grid), rgbOf(PaneSlot::Hold)};
    for (int number = 0; number < traceCount; ++number)
        result.colors.push_back(rgbOf(traceSlot(static_cast<Trace>(number))));
    for (const AxisTick& tick : q->levelTicks(q->height()))
        result.gridRows.push_back(
            static_cast<int>((q->height() - 1 - static_cast<int>(tick.position)) * ratio));
    std::ranges::reverse(result.gridRows);
    for (const AxisTick& tick : frequencyTicks(q->width())) {
        const double column = tick.position * ratio;
        if (column >= 0 && column < result.pixels.width())
            result.gridColumns.push_back(static_cast<int>(column));
    }
    return result;
}

void SpectrumPanePrivate::drawPicture()
{
    PictureKey wanted = makeKey();
    if (isDrawn && wanted == key)
        return;
    key = std::move(wanted);
    draw();
    isDrawn = true;
    const double ratio = q->devicePixelRatioF();
    for (const QRect& rect : raster.changes())
        stale += scaled(rect, 1 / ratio);
}

void SpectrumPanePrivate::showSoon()
{
    if (isShowing || !q->isVisible())
        return;
    isShowing = true;
    QMetaObject::invokeMethod(
        q, [this] { showChanges(); }, Qt::QueuedConnection);
}

void SpectrumPanePrivate::showChanges()
{
    isShowing = false;
    const QWindow* window = q->window()->windowHandle();
    if (q->isVisible() && window != nullptr && window->isExposed()) {
        drawPicture();
        layOutTexts();
        updateStale();
    } else {
        stale = {};
        q->update(); // draws when it comes to be painted
    }
}

void SpectrumPanePrivate::paintPicture(QPainter& painter, const QRegion& region)
{
    drawPicture();
    const double ratio = q->devicePixelRatioF();
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    for (const QRect& rect : region) {
        const QRect place = scaled(rect, ratio) & image->rect();
        painter.setClipRect(place); // one rectangle: the toolkit copies rows
        painter.drawImage(place.topLeft(), *image, place);
    }
    painter.restore();
}

void SpectrumPanePrivate::draw()
{
    lowest = static_cast<float>(key.low);
    rowsPerDecibel = static_cast<float>(key.pixels.height() / (key.high - key.low));
    SpectrumRaster::Content content;
    content.backgroundTop = key.colors[BackgroundTop];
    content.backgroundBottom = key.colors[BackgroundBottom];
    content.grid = key.colors[Grid];
    content.gridRows = key.gridRows;
    content.gridColumns = key.gridColumns;
    std::vector<SpectrumRaster::Line> lines;
    for (const Trace kind : drawingOrder) {
        TraceState& state = trace(kind);
        if (!state.isShown())
            continue;
        reduce(state);
        const auto number = static_cast<std::size_t>(kind);
        Pixels& place = pixels[number];
        const QRgb color = key.colors[FirstTrace + number];
        if (kind == Trace::Maximum) {
            shadowTop = makeOutline(state, &LevelRange::maximum, place);
            content.shadowTop = shadowTop;
            content.shadow = key.colors[Shadow];
            content.shadowOpacity = holdShadowOpacity;
        } else if (kind == Trace::Minimum) {
            makeOutline(state, &LevelRange::minimum, place);
        } else {
            makeCurve(state, place);
        }
        lines.push_back({place.top, place.bottom, color});
    }
    content.lines = lines;
    image = &raster.draw(key.pixels, content);
}

void SpectrumPanePrivate::reduce(TraceState& state) const
{
    const auto width = static_cast<std::size_t>(key.pixels.width());
    if (state.columns.size() == width && state.view == key.view)
        return;
    state.columns.resize(width);
    state.view = key.view;
    if (state.pyramid)
        state.pyramid->reduce(state.view, state.columns);
    else
        std::ranges::fill(state.columns, LevelRange());
}

int SpectrumPanePrivate::rowOf(float level) const
{
    const int height = key.pixels.height();
    const float position = (level - lowest) * rowsPerDecibel;
    return height - 1 -
           static_cast<int>(std::clamp(position, -1.0F, static_cast<float>(height + 1)));
}

int SpectrumPanePrivate::addedRows() const
{
    return std::max(qRound(q->devicePixelRatioF()), 1) - 1;
}

void SpectrumPanePrivate::Pixels::clear(std::size_t width)
{
    top.assign(width, std::numeric_limits<int>::max());
    bottom.assign(width, -1);
}

void SpectrumPanePrivate::makeCurve(const TraceState& state, Pixels& place) const
{
    const std::size_t width = state.columns.size();
    const int added = addedRows();
    place.clear(width);
    const LevelRange* before = nullptr;
    for (std::size_t x = 0; x < width; ++x) {
        const LevelRange& column = state.columns[x];
        if (column.isEmpty()) {
            before = nullptr;
            continue;
        }
        float top = column.maximum;
        float bottom = column.minimum;
        if (before != nullptr) { // reaches to the neighbour, so that the curve has no holes
            top = std::max(top, before->minimum);
            bottom = std::min(bottom, before->maximum);
        }
        place.top[x] = rowOf(top);
        place.bottom[x] = rowOf(bottom) + added;
        before = &column;
    }
}

std::vector<int> SpectrumPanePrivate::makeOutline(const TraceState& state, float LevelRange::*level,
                                                  Pixels& place) const
{
    const std::size_t width = state.columns.size();
    const int added = addedRows();
    place.clear(width);
    std::vector<int> rows(width, key.pixels.height());
    for (std::size_t x = 0; x < width; ++x) {
        if (state.columns[x].isEmpty())
            continue;
        rows[x] = rowOf(state.columns[x].*level);
        const bool isJoined = x > 0 && !state.columns[x - 1].isEmpty();
        const int neighbour = isJoined ? rows[x - 1] : rows[x];
        place.top[x] = std::min(rows[x], neighbour);
        place.bottom[x] = std::max(rows[x], neighbour) + added;
    }
    return rows;
}

} // namespace RadioPanes
