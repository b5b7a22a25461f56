// SPDX-License-Identifier: MIT
#include "waterfallpane.h"

#include "panepainter_p.h"
#include "placebox_p.h"
#include "repeatedrows_p.h"
#include "visibleband.h"
#include "waterfalllines_p.h"

#include <radiopanes/colors/panecolors.h>
#include <radiopanes/core/measurements.h>

#include <jtbase/wheelnotches.h>

#include <QKeyEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace RadioPanes {

namespace {

constexpr int legendMargin = 4;
constexpr int legendWidth = 96;
constexpr int mostTimeZoom = 4;
constexpr int leastTimeZoom = -20;
constexpr qsizetype levelsAtOnce = qsizetype{8} << 20; // some milliseconds of work

} // namespace

class WaterfallPanePrivate
{
public:
    explicit WaterfallPanePrivate(WaterfallPane* pane)
        : q(pane)
    {}

    int lineHeight() const { return WaterfallPane::linePixels << std::max(timeZoom, 0); }
    void setColors(double low, double high);
    /// Shows the sweeps before this one; -1 to follow the current one.
    void setShown(qsizetype newest);
    void draw();
    void rebuild();
    void paintLines(QPainter& painter) const;
    void paintLegend(QPainter& painter) const;

    WaterfallPane* q;
    WaterfallLines lines;
    QTimer moreLines;
    QString hint;
    ColorMap map = ColorMap::ColorSet;
    int timeZoom = 0;
    qsizetype heldAt = -1;  ///< The newest sweep shown after scrolling back; -1 follows.
    int scrolledPixels = 0; ///< Of a line that is not full.
    WheelNotches zoomWheel;
    WheelNotches scrollWheel;
    PlaceBox placeBox{q, [this](const QPoint& pointer) { return q->placeAt(pointer); }};
};

WaterfallPane::WaterfallPane(VisibleBand* view, QWidget* parent)
    : BandPane(view, parent)
    , d(std::make_unique<WaterfallPanePrivate>(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Waterfall"));
    setLegendVisible(false);
    d->lines.setColors({colorRamp(d->map), -120, 0});
    d->lines.setBand({view->low(), view->high()});
    d->moreLines.setSingleShot(true);
    connect(&d->moreLines, &QTimer::timeout, this, [this] { d->draw(); });
    connect(view, &VisibleBand::rangeChanged, this, [this, view] {
        d->lines.setBand({view->low(), view->high()});
        d->draw();
        d->placeBox.refresh();
        Q_EMIT timesChanged(); // of sweeps that are gone only the lines had them
    });
}

WaterfallPane::~WaterfallPane() = default;

void WaterfallPane::setHistory(std::shared_ptr<const SweepHistory> history)
{
    d->lines.setHistory(std::move(history));
    d->heldAt = -1;
    d->placeBox.hide();
    update();
    Q_EMIT timesChanged();
}

void WaterfallPane::setHint(const QString& text)
{
    d->hint = text;
    update();
}

void WaterfallPane::setPlaceText(PlaceText text)
{
    d->placeBox.setText(std::move(text));
}

void WaterfallPane::setLevelRange(double low, double high)
{
    if (std::isfinite(low) && std::isfinite(high))
        d->setColors(low, std::max(high, low + 1));
}

void WaterfallPanePrivate::setColors(double low, double high)
{
    lines.setColors({colorRamp(map), low, high});
    draw();
    Q_EMIT q->levelColorsChanged();
    Q_EMIT q->timesChanged();
}

void WaterfallPane::refreshColors()
{
    d->setColors(levelColors().lowDb(), levelColors().highDb());
}

void WaterfallPane::setColorMap(ColorMap map)
{
    if (std::exchange(d->map, map) == map)
        return;
    refreshColors();
    Q_EMIT optionsChanged();
}

ColorMap WaterfallPane::colorMap() const
{
    return d->map;
}

const LevelColors& WaterfallPane::levelColors() const
{
    return d->lines.colors();
}

QRgb WaterfallPane::colorOf(float level) const
{
    return levelColors().of(level);
}

void WaterfallPane::setPosition(qsizetype position, std::shared_ptr<const LevelPyramid> pyramid)
{
    const SweepHistory* history = d->lines.history();
    const bool isThere = history != nullptr && position >= 0 && position < history->count();
    d->lines.setNewest(isThere ? position : -1, isThere ? std::move(pyramid) : nullptr);
    d->setShown(position > d->heldAt ? d->heldAt : -1);
}

void WaterfallPanePrivate::setShown(qsizetype newest)
{
    heldAt = newest;
    const qsizetype shown = heldAt >= 0 ? heldAt : lines.newest();
    const qsizetype before = lines.top();
    lines.setTop(shown < 0 ? -1 : shown / lines.sweepsPerLine());
    draw();
    if (lines.top() != before)
        placeBox.refresh();
    Q_EMIT q->timesChanged();
}

void WaterfallPanePrivate::draw()
{
    if (lines.top() >= 0 && lines.top() < lines.oldest() && !lines.isDrawn(lines.top())) {
        heldAt = (lines.oldest() + 1) * lines.sweepsPerLine() - 1; // the former place has gone
        lines.setTop(lines.oldest());
        Q_EMIT q->timesChanged();
    }
    if (!lines.draw(levelsAtOnce))
        moreLines.start(0);
    q->update();
}

void WaterfallPane::scrollTime(qsizetype count)
{
    if (count != 0)
        scrollTo((d->lines.top() - count) * d->lines.sweepsPerLine());
}

void WaterfallPane::scrollTo(qsizetype sweep)
{
    const qsizetype newest = d->lines.newest();
    if (newest < 0)
        return;
    const qsizetype size = d->lines.sweepsPerLine();
    const qsizetype oldest = std::min(d->lines.oldest(), d->lines.top());
    const qsizetype line = sweep < 0 ? oldest : std::max(sweep / size, oldest);
    d->setShown(line >= newest / size ? -1 : (line + 1) * size - 1);
}

void WaterfallPane::scrollTimeByPixels(int pixels)
{
    d->scrolledPixels += pixels;
    const int count = d->scrolledPixels / d->lineHeight();
    d->scrolledPixels -= count * d->lineHeight();
    scrollTime(count);
}

void WaterfallPane::followNewest()
{
    d->scrolledPixels = 0;
    d->setShown(-1);
}

bool WaterfallPane::isFollowing() const
{
    return d->heldAt < 0;
}

int WaterfallPane::timeZoom() const
{
    return d->timeZoom;
}

void WaterfallPane::setTimeZoom(int zoom)
{
    zoomTime(std::clamp(zoom, leastTimeZoom, mostTimeZoom) - d->timeZoom);
}

void WaterfallPane::zoomTime(int steps, int y)
{
    const int zoom = std::clamp(d->timeZoom + steps, leastTimeZoom, mostTimeZoom);
    if (zoom == d->timeZoom)
        return;
    const qsizetype anchor = sweepAt(y);
    d->timeZoom = zoom;
    d->scrolledPixels = 0;
    const qsizetype size = qsizetype{1} << std::max(-zoom, 0);
    d->lines.setSweepsPerLine(size);
    d->rebuild();
    qsizetype newest = isFollowing() ? -1 : (d->heldAt / size + 1) * size - 1;
    if (anchor >= 0 && (!isFollowing() || zoom > 0))
        newest = (anchor / size + y / d->lineHeight() + 1) * size - 1;
    d->setShown(newest >= d->lines.newest() ? -1 : newest);
    d->placeBox.refresh();
    Q_EMIT optionsChanged();
}

std::pair<qsizetype, qsizetype> WaterfallPane::shownSweeps() const
{
    if (d->lines.top() < 0)
        return {-1, -1};
    const qsizetype lowest = d->lines.top() - d->lines.rowCount() + 1;
    const qsizetype first =
        std::max(lowest * d->lines.sweepsPerLine(), d->lines.history()->first());
    const qsizetype last = d->lines.sweepsOf(d->lines.top()).second;
    return last < first ? std::pair<qsizetype, qsizetype>(-1, -1) : std::pair(first, last);
}

void WaterfallPanePrivate::rebuild()
{
    lines.resize(q->width(), (q->height() + lineHeight() - 1) / lineHeight());
}

void WaterfallPane::resizeEvent(QResizeEvent* event)
{
    BandPane::resizeEvent(event);
    d->rebuild();
    d->draw();
    d->placeBox.refresh();
    Q_EMIT timesChanged();
}

void WaterfallPane::keyPressEvent(QKeyEvent* event)
{
    const bool zooms = event->modifiers().testFlag(Qt::ControlModifier);
    const int page = std::max(d->lines.rowCount() - 1, 1);
    switch (event->key()) {
    case Qt::Key_Up:
        return zooms ? zoomTime(1) : scrollTime(-1);
    case Qt::Key_Down:
        return zooms ? zoomTime(-1) : scrollTime(1);
    case Qt::Key_PageUp:
        return scrollTime(-page);
    case Qt::Key_PageDown:
        return scrollTime(page);
    case Qt::Key_End:
        return followNewest();
    default:
        BandPane::keyPressEvent(event);
    }
}

void WaterfallPane::wheelEvent(QWheelEvent* event)
{
    const int angle = wheelAngle(*event);
    constexpr int linesPerNotch = 3;
    if (event->modifiers().testFlag(Qt::ControlModifier))
        zoomTime(d->zoomWheel.add(angle), event->position().toPoint().y());
    else if (event->modifiers().testFlag(Qt::ShiftModifier))
        scrollTime(-d->scrollWheel.add(angle * linesPerNotch));
    else
        return BandPane::wheelEvent(event);
    event->accept();
}

void WaterfallPane::dragged(const QPoint& change, Qt::Orientation begun)
{
    if (begun == Qt::Vertical)
        scrollTimeByPixels(-change.y());
    else
        BandPane::dragged(change, begun);
}

void WaterfallPane::mouseMoveEvent(QMouseEvent* event)
{
    BandPane::mouseMoveEvent(event);
    d->placeBox.follow(event->position().toPoint());
}

void WaterfallPane::leaveEvent(QEvent* event)
{
    BandPane::leaveEvent(event);
    d->placeBox.hide();
}

void WaterfallPane::paintEvent(QPaintEvent*)
{
    PanePainter painter(this);
    d->paintLines(painter);
    if (d->lines.newest() == 0 && d->lines.history()->count() > 1) {
        painter.setPen(paneColor(PaneSlot::ReadOut));
        painter.drawText(rect(), Qt::AlignCenter, d->hint);
    }
    paintOverlay(painter);
    if (isLegendVisible())
        d->paintLegend(painter);
    if (!isFollowing()) {
        const QString text = tr("Scrolled back: End follows the newest sweep");
        PlaceBox::paint(painter, *this,
                        {{PlaceBox::margin, PlaceBox::margin}, PlaceBox::sizeOf(*this, text)},
                        text);
    }
    d->placeBox.paint(painter);
}

void WaterfallPanePrivate::paintLines(QPainter& painter) const
{
    const QColor ground(lines.colors().ramp().front());
    const int height = lineHeight();
    const auto count = static_cast<int>(std::min<qsizetype>(lines.top() + 1, lines.rowCount()));
    if (count > 0) {
        const int newest = lines.rowOf(lines.top());
        const int upper = std::min(count, lines.rowCount() - newest);
        drawRepeatedRows(painter, {}, {lines.image(), newest, upper}, height);
        drawRepeatedRows(painter, {0, upper * height}, {lines.image(), 0, count - upper}, height);
    }
    painter.fillRect(0, count * height, q->width(), q->height() - count * height, ground);
    const qsizetype lowest = lines.top() - count + 1;
    for (qsizetype line = lines.nextMissing(lines.top(), lowest); line >= lowest;
         line = lines.nextMissing(line - 1, lowest))
        painter.fillRect(0, static_cast<int>(lines.top() - line) * height, q->width(), height,
                         ground);
}

void WaterfallPanePrivate::paintLegend(QPainter& painter) const
{
    const QFontMetrics metrics = q->fontMetrics();
    const LevelColors& colors = lines.colors();
    const auto textOf = [](double level) { return QStringLiteral("%1 dB").arg(qRound(level)); };
    const QString low = textOf(colors.lowDb());
    const QString high = textOf(colors.highDb());
    const int lowWidth = metrics.horizontalAdvance(low);
    const int highWidth = metrics.horizontalAdvance(high);
    const int width = lowWidth + highWidth + legendWidth + 4 * legendMargin;
    const QRect box(q->width() - width - legendMargin, legendMargin, width,
                    metrics.height() + 2 * legendMargin);
    painter.fillRect(box, q->palette().color(QPalette::Window));
    const ColorRamp& ramp = colors.ramp();
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
    const qsizetype line = y < 0 ? -1 : d->lines.top() - y / d->lineHeight();
    if (line < 0 || y >= height() + d->lineHeight())
        return -1;
    const qsizetype sweep = d->lines.sweepsOf(line).second;
    return sweep < d->lines.history()->first() ? -1 : sweep;
}

std::optional<HistoryPlace> WaterfallPane::placeAt(const QPoint& position) const
{
    const qsizetype line = d->lines.top() - position.y() / d->lineHeight();
    const std::optional<quint64> time = position.y() < 0 ? std::nullopt : d->lines.timeOf(line);
    if (!time)
        return std::nullopt;
    HistoryPlace place;
    place.timeUs = *time;
    place.hertz = frequencyAt(position.x() + 0.5);
    const SweepHistory& history = *d->lines.history();
    const qsizetype sweep = sweepAt(position.y());
    if (sweep < 0) { // its levels have gone
        place.stepHz = hertzOf(1);
        return place;
    }
    if (const auto bin = history.sweep(sweep).placeOf(place.hertz))
        place.stepHz = bin->segment->stepHz;
    // What the pixel shows.
    float highest = -std::numeric_limits<float>::infinity();
    const auto [first, last] = d->lines.sweepsOf(line);
    history.addMaxima(first, last + 1, {frequencyAt(position.x()), frequencyAt(position.x() + 1)},
                      {&highest, 1});
    if (std::isfinite(highest))
        place.levelDb = highest;
    return place;
}

double WaterfallPane::snappedAt(const QPointF& place) const
{
    const double hertz = frequencyAt(place.x());
    const auto y = static_cast<int>(place.y());
    std::optional<BinLevel> highest;
    if (sweepAt(y) >= 0) {
        const auto [first, last] = d->lines.sweepsOf(d->lines.top() - y / d->lineHeight());
        for (qsizetype sweep = first; sweep <= last; ++sweep) {
            const auto bin =
                highestNear(d->lines.history()->sweep(sweep), hertz, hertzOf(pinReach));
            if (bin && (!highest || bin->levelDb > highest->levelDb))
                highest = bin;
        }
    }
    return highest ? highest->hertz : hertz;
}

bool WaterfallPane::isLongerThanADay() const
{
    constexpr quint64 dayUs = 86'400'000'000;
    const SweepHistory* history = d->lines.history();
    if (history == nullptr || history->count() <= history->first())
        return false;
    const auto [from, to] =
        std::minmax({history->timeOf(history->first()), history->timeOf(history->count() - 1)});
    return to - from > dayUs;
}

std::vector<AxisTick> WaterfallPane::timeTicks(int pixels, const TimeText& text) const
{
    // Labels belong to lines whose number is a multiple of the step, so that they move with the
    // lines instead of flickering.
    std::vector<AxisTick> ticks;
    if (d->lines.top() < 0)
        return ticks;
    const int lineHeight = d->lineHeight();
    const qsizetype rows = text(0).count(QLatin1Char('\n')) + 1;
    const double needed = static_cast<double>((rows + 1) * fontMetrics().height()) / lineHeight;
    const auto step = static_cast<qsizetype>(std::max(niceStep(needed), 1.0));
    const qsizetype lowest = std::max<qsizetype>(d->lines.top() - d->lines.rowCount() + 1, 0);
    for (qsizetype line = d->lines.top() - d->lines.top() % step; line >= lowest; line -= step) {
        const double fromTop = static_cast<double>(d->lines.top() - line) * lineHeight;
        if (const std::optional<quint64> time = d->lines.timeOf(line))
            ticks.push_back({static_cast<double>(d->lines.sweepsOf(line).second),
                             pixels - 1 - fromTop - lineHeight / 2.0, text(*time)});
    }
    return ticks;
}

} // namespace RadioPanes
