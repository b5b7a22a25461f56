// SPDX-License-Identifier: MIT
#include "overviewpane.h"

#include "panepainter_p.h"
#include "placebox_p.h"

#include <radiopanes/colors/panecolors.h>
#include <radiopanes/core/overviewlevels.h>

#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace RadioPanes {

namespace {
constexpr qsizetype levelsAtOnce = qsizetype{8} << 20; // some milliseconds of work
constexpr int repaintInterval = 100;                   // of a strip that grows, in milliseconds
constexpr double timeOpacity = 0.8;
constexpr int cells = OverviewLevels::cellCount;
} // namespace

class OverviewPanePrivate
{
public:
    explicit OverviewPanePrivate(OverviewPane* pane)
        : q(pane)
    {}

    void draw();
    void paintMarks(QPainter& painter) const;
    void paintTimes(QPainter& painter) const;
    qsizetype firstSweep() const { return history ? history->first() : 0; }
    qsizetype sweepCount() const { return history ? history->count() : 0; }
    /// The cells of a column of pixels.
    void columnAt(int x, std::span<float> levels) const;

    OverviewPane* q;
    std::shared_ptr<const SweepHistory> history;
    OverviewLevels levels;
    LevelColors colors;
    QImage image; ///< A column for each pixel, a row for each cell.
    bool isDrawn = false;
    QTimer slices;
    QTimer repaint;
    qsizetype position = -1;
    std::pair<qsizetype, qsizetype> shown{-1, -1};
    PlaceBox placeBox{q, [this](const QPoint& pointer) { return q->placeAt(pointer); }};
    std::function<QString(quint64)> timeText;
};

OverviewPane::OverviewPane(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<OverviewPanePrivate>(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Overview of all sweeps"));
    setLevelColors({colorRamp(ColorMap::ColorSet), -120, 0});
    d->slices.setSingleShot(true);
    connect(&d->slices, &QTimer::timeout, this, &OverviewPane::readSlice);
    d->repaint.setSingleShot(true);
    d->repaint.setInterval(repaintInterval);
    connect(&d->repaint, &QTimer::timeout, this, [this] {
        d->isDrawn = false;
        update();
        d->placeBox.refresh();
    });
}

OverviewPane::~OverviewPane() = default;

void OverviewPane::setHistory(std::shared_ptr<const SweepHistory> history)
{
    d->history = std::move(history);
    d->levels.clear();
    d->position = -1;
    d->shown = {-1, -1};
    d->placeBox.hide();
    d->isDrawn = false;
    update();
    takeSweeps();
}

void OverviewPane::takeSweeps()
{
    if (!d->slices.isActive())
        readSlice();
}

qsizetype OverviewPane::takenSweeps() const
{
    return d->levels.sweepCount();
}

void OverviewPane::readSlice()
{
    if (takenSweeps() >= d->sweepCount())
        return;
    d->levels.forgetBefore(d->firstSweep());
    qsizetype budget = levelsAtOnce;
    while (takenSweeps() < d->sweepCount()) {
        if (budget <= 0) {
            d->slices.start(0);
            break;
        }
        const Sweep sweep = d->history->sweep(takenSweeps());
        d->levels.add(sweep);
        budget -= static_cast<qsizetype>(sweep.binCount) + cells;
    }
    if (!d->repaint.isActive())
        d->repaint.start();
}

void OverviewPane::setPosition(qsizetype sweep)
{
    const int before = positionOf(std::exchange(d->position, sweep));
    const int now = positionOf(sweep);
    update(before - 1, 0, 3, height());
    update(now - 1, 0, 3, height());
}

void OverviewPane::setShownSweeps(qsizetype first, qsizetype last)
{
    if (d->shown == std::pair(first, last))
        return;
    d->shown = {first, last};
    update();
}

void OverviewPane::setLevelColors(const LevelColors& colors)
{
    d->colors = colors;
    d->isDrawn = false;
    update();
}

void OverviewPane::setPlaceText(PlaceText text)
{
    d->placeBox.setText(std::move(text));
}

void OverviewPane::setTimeText(std::function<QString(quint64 timeUs)> text)
{
    d->timeText = std::move(text);
}

qsizetype OverviewPane::sweepAt(int x) const
{
    const qsizetype first = d->firstSweep();
    const qsizetype count = d->sweepCount() - first;
    if (count <= 0)
        return -1;
    const qsizetype sweep = std::clamp(x, 0, width()) * count / std::max(width(), 1);
    return first + std::min(sweep, count - 1);
}

int OverviewPane::positionOf(qsizetype sweep) const
{
    const qsizetype first = d->firstSweep();
    const qsizetype count = std::max<qsizetype>(d->sweepCount() - first, 1);
    return static_cast<int>(std::clamp<qsizetype>(sweep - first, 0, count) * width() / count);
}

void OverviewPanePrivate::columnAt(int x, std::span<float> column) const
{
    std::ranges::fill(column, -std::numeric_limits<float>::infinity());
    const qsizetype count = sweepCount() - firstSweep();
    const qsizetype first = x * count / q->width();
    const qsizetype last = std::max((x + 1) * count / q->width() - 1, first);
    const qsizetype size = levels.sweepsPerColumn();
    const qsizetype end = std::min((firstSweep() + last) / size + 1, levels.endColumn());
    for (qsizetype i = std::max((firstSweep() + first) / size, levels.firstColumn()); i < end; ++i)
        std::ranges::transform(column, levels.column(i), column.begin(),
                               [](float a, float b) { return b > a ? b : a; });
}

void OverviewPanePrivate::draw()
{
    if (image.width() != q->width())
        image = QImage(q->width(), cells, QImage::Format_RGB32);
    std::vector<float> column(cells);
    std::vector<QRgb> pixels(cells);
    const qsizetype stride = image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
    auto* bits = reinterpret_cast<QRgb*>(image.bits());
    for (int x = 0; x < image.width(); ++x) {
        columnAt(x, column);
        colors.apply(column, pixels);
        for (int cell = 0; cell < cells; ++cell) // the lowest frequency at the bottom
            bits[(cells - 1 - cell) * stride + x] = pixels[static_cast<std::size_t>(cell)];
    }
    isDrawn = true;
}

void OverviewPane::paintEvent(QPaintEvent*)
{
    PanePainter painter(this);
    if (d->sweepCount() == 0) {
        painter.fillRect(rect(), QColor(d->colors.ramp().front()));
    } else {
        if (!d->isDrawn)
            d->draw();
        painter.drawImage(rect(), d->image);
        d->paintMarks(painter);
        d->paintTimes(painter);
    }
    d->placeBox.paint(painter);
    paintFocusFrame(painter, *this);
}

void OverviewPanePrivate::paintMarks(QPainter& painter) const
{
    const int height = q->height();
    painter.setPen(paneColor(PaneSlot::Pin));
    if (shown.second >= firstSweep()) {
        const int left = q->positionOf(std::max(shown.first, firstSweep()));
        const int right = std::max(q->positionOf(shown.second + 1) - 1, left);
        painter.drawRect(left, 1, right - left, height - 3); // inside the frame of the focus
    }
    if (position < 0)
        return;
    painter.setPen(paneColor(PaneSlot::Cursor));
    const int x = std::min(q->positionOf(position), q->width() - 1);
    painter.drawLine(x, 0, x, height - 1);
}

void OverviewPanePrivate::paintTimes(QPainter& painter) const
{
    if (!history || !timeText)
        return;
    const SweepHistory& sweeps = *history;
    const QString from = timeText(sweeps.timeOf(firstSweep()));
    const QString to = timeText(sweeps.timeOf(sweepCount() - 1));
    const QSize fromSize = PlaceBox::sizeOf(*q, from);
    const QSize toSize = PlaceBox::sizeOf(*q, to);
    painter.setOpacity(timeOpacity);
    const int toLeft = q->width() - toSize.width();
    PlaceBox::paint(painter, *q, {{0, 0}, fromSize}, from);
    PlaceBox::paint(painter, *q, {{toLeft, 0}, toSize}, to);
    painter.setOpacity(1);
}

void OverviewPane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->isDrawn = false;
    d->placeBox.refresh();
}

void OverviewPane::jumpTo(qsizetype sweep)
{
    const qsizetype count = d->sweepCount();
    if (count == 0)
        return;
    sweep = std::clamp(sweep, d->firstSweep(), count - 1);
    if (sweep != d->position)
        Q_EMIT jumpRequested(sweep);
}

void OverviewPane::keyPressEvent(QKeyEvent* event)
{
    const qsizetype step = std::max<qsizetype>(d->sweepCount() / std::max(width(), 1), 1);
    const qsizetype page = std::max<qsizetype>(d->sweepCount() / 10, 1);
    switch (event->key()) {
    case Qt::Key_Left:
        return jumpTo(d->position - step);
    case Qt::Key_Right:
        return jumpTo(d->position + step);
    case Qt::Key_PageUp:
        return jumpTo(d->position - page);
    case Qt::Key_PageDown:
        return jumpTo(d->position + page);
    case Qt::Key_End:
        return jumpTo(d->sweepCount() - 1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void OverviewPane::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        jumpTo(sweepAt(event->position().toPoint().x()));
}

void OverviewPane::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint pointer = event->position().toPoint();
    if (event->buttons().testFlag(Qt::LeftButton))
        jumpTo(sweepAt(pointer.x()));
    d->placeBox.follow(pointer);
}

void OverviewPane::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    d->placeBox.hide();
}

std::optional<HistoryPlace> OverviewPane::placeAt(const QPoint& position) const
{
    const qsizetype sweep = sweepAt(position.x());
    if (sweep < 0 || takenSweeps() == 0)
        return std::nullopt;
    const int fromBottom = std::clamp(height() - 1 - position.y(), 0, height() - 1);
    const int cell = fromBottom * cells / height();
    std::vector<float> column(cells);
    d->columnAt(std::clamp(position.x(), 0, width() - 1), column);
    HistoryPlace place;
    place.timeUs = d->history->timeOf(sweep);
    place.stepHz = (d->levels.highHz() - d->levels.lowHz()) / cells;
    place.hertz = d->levels.lowHz() + (cell + 0.5) * place.stepHz;
    if (const float level = column[static_cast<std::size_t>(cell)]; std::isfinite(level))
        place.levelDb = level;
    return place;
}

} // namespace RadioPanes
