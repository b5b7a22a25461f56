// SPDX-License-Identifier: MIT
#include "spectrumpane.h"

#include "frequencytext.h"
#include "visibleband.h"

#include <radiopanes/colors/panecolors.h>

#include <QPaintEvent>
#include <QPainter>

#include <cmath>

namespace RadioPanes {

namespace {
constexpr double smallestLevelRange = 10;
constexpr int readOutMargin = 6;
constexpr double pointRadius = 3;
constexpr int gapBetweenLevels = 10;
constexpr float holdShadowOpacity = 0.25F;
} // namespace

SpectrumPane::SpectrumPane(VisibleBand* view, const FrequencyText* text, GridTicks frequencyTicks,
                           QWidget* parent)
    : BandPane(view, parent)
    , m_text(text)
    , m_frequencyTicks(std::move(frequencyTicks))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Spectrum"));
    connect(view, &VisibleBand::rangeChanged, this, &SpectrumPane::reduceAll);
}

SpectrumPane::~SpectrumPane() = default;

void SpectrumPane::setSweep(const Sweep& sweep, std::shared_ptr<const LevelPyramid> pyramid)
{
    setTrace(m_curve, sweep, std::move(pyramid));
}

void SpectrumPane::setHold(const Sweep& hold, std::shared_ptr<const LevelPyramid> pyramid)
{
    setTrace(m_hold, hold, std::move(pyramid));
}

void SpectrumPane::setTrace(Trace& trace, const Sweep& sweep,
                            std::shared_ptr<const LevelPyramid> pyramid)
{
    trace.sweep = sweep;
    trace.pyramid = std::move(pyramid);
    reduce(trace);
    update();
}

void SpectrumPane::setHoldVisible(bool visible)
{
    if (m_holdVisible == visible)
        return;
    m_holdVisible = visible;
    update();
}

void SpectrumPane::setReferenceLevels(std::vector<LevelPoint> points)
{
    m_referenceLevels = std::move(points);
    update();
}

void SpectrumPane::setThreshold(std::optional<double> levelDb)
{
    m_thresholdDb = levelDb;
    update();
}

void SpectrumPane::setCaption(const QString& caption)
{
    m_caption = caption;
    setAccessibleDescription(caption);
    update();
}

void SpectrumPane::setLevelRange(double low, double high)
{
    if (!std::isfinite(low) || !std::isfinite(high))
        return;
    m_lowLevel = low;
    m_highLevel = std::max(high, low + smallestLevelRange);
    update();
}

std::vector<AxisTick> SpectrumPane::levelTicks(int pixels) const
{
    const int textHeight = fontMetrics().height();
    return layoutTicks(
        {m_lowLevel, m_highLevel, pixels}, 1, gapBetweenLevels, textHeight,
        [](double level) { return QString::number(level, 'f', 0); },
        [textHeight](const QString&) { return textHeight; });
}

void SpectrumPane::refreshTexts()
{
    update();
}

void SpectrumPane::reduce(Trace& trace) const
{
    trace.columns.assign(static_cast<size_t>(std::max(width(), 0)), LevelRange());
    if (trace.pyramid)
        trace.pyramid->reduce({visibleBand().low(), visibleBand().high()}, trace.columns);
}

void SpectrumPane::reduceAll()
{
    reduce(m_curve);
    reduce(m_hold);
    update();
}

void SpectrumPane::resizeEvent(QResizeEvent* event)
{
    BandPane::resizeEvent(event);
    reduceAll();
}

int SpectrumPane::yOf(double level) const
{
    const double position = AxisRange{m_lowLevel, m_highLevel, height()}.positionOf(level);
    return height() - 1 - static_cast<int>(std::clamp(position, -1.0, height() + 1.0));
}

void SpectrumPane::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect dirty = event->rect();
    QLinearGradient background(0, 0, 0, height());
    background.setColorAt(0, paneColor(PaneSlot::BackgroundHigh));
    background.setColorAt(1, paneColor(PaneSlot::BackgroundLow));
    painter.fillRect(dirty, background);
    paintGrid(painter, dirty);
    // One column more at both sides, for the lines that join the columns.
    const int first = std::max(dirty.left() - 1, 0);
    const int last = std::min(dirty.right() + 1, static_cast<int>(m_curve.columns.size()) - 1);
    if (m_holdVisible)
        paintHold(painter, first, last);
    paintCurve(painter, first, last);
    paintReferenceLevels(painter);
    paintThreshold(painter);
    paintOverlay(painter);
    paintPinNumbers(painter);
    paintReadOut(painter);
}

void SpectrumPane::paintGrid(QPainter& painter, const QRect& dirty) const
{
    painter.setPen(QPen(paneColor(PaneSlot::Grid), 1, Qt::DotLine));
    for (const AxisTick& tick : levelTicks(height())) {
        const int y = height() - 1 - static_cast<int>(tick.position);
        painter.drawLine(0, y, width() - 1, y);
    }
    for (const AxisTick& tick : m_frequencyTicks(width())) {
        const int x = static_cast<int>(tick.position);
        if (x >= dirty.left() && x <= dirty.right())
            painter.drawLine(x, 0, x, height() - 1);
    }
}

void SpectrumPane::paintHold(QPainter& painter, int first, int last) const
{
    QList<QLine> lines;
    lines.reserve(last - first + 1);
    // One polygon for the whole shadow: a translucent line for each column would take ten times as
    // long, because every one of them is blended by itself.
    QPolygon shadow{QPoint(first, height())};
    shadow.reserve(2 * (last - first + 2));
    const LevelRange* before = nullptr;
    for (int x = first; x <= last; ++x) {
        const LevelRange& column = m_hold.columns[static_cast<size_t>(x)];
        const int top = column.isEmpty() ? height() : yOf(column.maximum);
        shadow << QPoint(x, top) << QPoint(x + 1, top);
        if (!column.isEmpty())
            lines.append(
                QLine(x, yOf(before != nullptr ? before->maximum : column.maximum), x, top));
        before = column.isEmpty() ? nullptr : &column;
    }
    shadow << QPoint(last + 1, height());
    QColor color = paneColor(PaneSlot::Hold);
    painter.setPen(color);
    painter.drawLines(lines);
    color.setAlphaF(holdShadowOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(shadow);
}

void SpectrumPane::paintCurve(QPainter& painter, int first, int last) const
{
    painter.setPen(paneColor(PaneSlot::Curve));
    QList<QLine> lines;
    lines.reserve(last - first + 1);
    const LevelRange* before = nullptr;
    for (int x = first; x <= last; ++x) {
        const LevelRange& column = m_curve.columns[static_cast<size_t>(x)];
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
        lines.append(QLine(x, yOf(bottom), x, yOf(top)));
        before = &column;
    }
    painter.drawLines(lines);
}

void SpectrumPane::paintReferenceLevels(QPainter& painter) const
{
    // The points in view, and the next one on either side for the line that leaves it.
    const auto begin = m_referenceLevels.begin();
    const auto end = m_referenceLevels.end();
    auto first =
        std::ranges::lower_bound(m_referenceLevels, visibleBand().low(), {}, &LevelPoint::hertz);
    auto last =
        std::ranges::upper_bound(m_referenceLevels, visibleBand().high(), {}, &LevelPoint::hertz);
    first -= first != begin ? 1 : 0;
    last += last != end ? 1 : 0;
    QPolygonF line;
    for (auto point = first; point != last; ++point) {
        const double share =
            AxisRange{m_lowLevel, m_highLevel, height()}.positionOf(point->levelDb);
        line << QPointF(positionOf(point->hertz), height() - 1 - share);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(paneColor(PaneSlot::ReferenceLine), 1.5));
    painter.drawPolyline(line);
    painter.setPen(Qt::NoPen);
    painter.setBrush(paneColor(PaneSlot::ReferencePoint));
    for (const QPointF& point : std::as_const(line))
        painter.drawEllipse(point, pointRadius, pointRadius);
    painter.restore();
}

void SpectrumPane::paintPinNumbers(QPainter& painter) const
{
    painter.setPen(paneColor(PaneSlot::Pin));
    int number = 0;
    for (const double pin : visibleBand().pins()) {
        const int x = static_cast<int>(positionOf(pin));
        painter.drawText(x + 3, height() - 5, QString::number(++number));
    }
}

QString SpectrumPane::readOutLine(const QString& title, double hertz) const
{
    const auto levelText = [](std::optional<float> level) {
        return level ? QStringLiteral("%1 dB").arg(static_cast<double>(*level), 0, 'f', 1)
                     : QStringLiteral("– dB");
    };
    QString line = QStringLiteral("%1  %2  %3")
                       .arg(title, m_text->full(hertz), levelText(m_curve.sweep.levelAt(hertz)));
    if (m_holdVisible && !m_hold.sweep.isEmpty())
        line += tr("  (hold %1)").arg(levelText(m_hold.sweep.levelAt(hertz)));
    return line;
}

QStringList SpectrumPane::readOut() const
{
    QStringList lines{readOutLine(tr("Cursor"), visibleBand().cursor())};
    for (const double pin : visibleBand().pins())
        lines << readOutLine(tr("Pin %1").arg(lines.size()), pin);
    if (!m_caption.isEmpty())
        lines.prepend(m_caption);
    return lines;
}

QRect SpectrumPane::readOutRect() const
{
    int textWidth = 0;
    const QStringList lines = readOut();
    for (const QString& line : lines)
        textWidth = std::max(textWidth, fontMetrics().horizontalAdvance(line));
    const int boxWidth = textWidth + 2 * readOutMargin;
    const int boxHeight = static_cast<int>(lines.size()) * fontMetrics().height() + readOutMargin;
    // At the right, unless the cursor is there.
    const int right = width() - boxWidth - readOutMargin;
    const bool cursorAtRight = positionOf(visibleBand().cursor()) >= right - readOutMargin;
    return {cursorAtRight ? readOutMargin : right, readOutMargin, boxWidth, boxHeight};
}

void SpectrumPane::paintReadOut(QPainter& painter) const
{
    QColor box = paneColor(PaneSlot::BackgroundLow);
    box.setAlphaF(0.75F);
    const QRect place = readOutRect();
    painter.fillRect(place, box);
    painter.setPen(paneColor(PaneSlot::ReadOut));
    painter.drawText(place.adjusted(readOutMargin, readOutMargin / 2, 0, 0),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip,
                     readOut().join(QLatin1Char('\n')));
}

void SpectrumPane::paintThreshold(QPainter& painter) const
{
    if (!m_thresholdDb || *m_thresholdDb < m_lowLevel || *m_thresholdDb > m_highLevel)
        return;
    painter.setPen(QPen(paneColor(PaneSlot::ReferenceLine), 1, Qt::DashLine));
    const int y = yOf(*m_thresholdDb);
    painter.drawLine(0, y, width() - 1, y);
}

void SpectrumPane::updateAround(double hertz)
{
    BandPane::updateAround(hertz);
    updateReadOut();
}

void SpectrumPane::updateReadOut()
{
    const QRect place = readOutRect();
    update(place.united(m_paintedReadOut));
    m_paintedReadOut = place;
}

} // namespace RadioPanes
