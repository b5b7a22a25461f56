// SPDX-License-Identifier: MIT
#include "spectrumpane_p.h"

#include "frequencytext.h"
#include "visibleband.h"

#include <radiopanes/colors/panecolors.h>

#include <QPainter>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <vector>

namespace RadioPanes {

namespace {

constexpr int boxMargin = 6;
constexpr double pointRadius = 3;
constexpr int swatchWidth = 16;
constexpr int swatchHeight = 3;

QString levelText(std::optional<float> level)
{
    return level ? QStringLiteral("%1 dB").arg(static_cast<double>(*level), 0, 'f', 1)
                 : QStringLiteral("– dB");
}

/// The line, broken between its parts where it is wider than that.
QStringList broken(const QString& line, const QFontMetrics& metrics, int width)
{
    if (metrics.horizontalAdvance(line) <= width)
        return {line};
    QStringList lines;
    const QString partGap = QStringLiteral("  ");
    const QStringList parts = line.split(partGap);
    for (const QString& part : parts) {
        const QString longer = lines.isEmpty() ? part : lines.constLast() + partGap + part;
        if (!lines.isEmpty() && metrics.horizontalAdvance(longer) <= width)
            lines.last() = longer;
        else
            lines << (lines.isEmpty() ? part : partGap + part);
    }
    return lines;
}

/// One line, which keeps the places of its glyphs.
std::unique_ptr<QTextLayout> laidOut(const QString& text, const QFont& font)
{
    auto layout = std::make_unique<QTextLayout>(text, font);
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    layout->beginLayout();
    layout->createLine().setLineWidth(QWIDGETSIZE_MAX);
    layout->endLayout();
    return layout;
}

} // namespace

double SpectrumPanePrivate::yOf(double level) const
{
    return q->height() - 1 - AxisRange{lowLevel, highLevel, q->height()}.positionOf(level);
}

void SpectrumPanePrivate::paintReferenceLevels(QPainter& painter) const
{
    if (referenceLevels.empty())
        return;
    // The points in view, and the next one on either side for the line that leaves it.
    const VisibleBand& band = q->visibleBand();
    auto first = std::ranges::lower_bound(referenceLevels, band.low(), {}, &LevelPoint::hertz);
    auto last = std::ranges::upper_bound(referenceLevels, band.high(), {}, &LevelPoint::hertz);
    first -= first != referenceLevels.begin() ? 1 : 0;
    last += last != referenceLevels.end() ? 1 : 0;
    QPolygonF line;
    for (auto point = first; point != last; ++point)
        line << QPointF(q->positionOf(point->hertz), yOf(point->levelDb));
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

void SpectrumPanePrivate::paintThreshold(QPainter& painter) const
{
    if (!thresholdDb || *thresholdDb < lowLevel || *thresholdDb > highLevel)
        return;
    painter.setPen(QPen(paneColor(PaneSlot::ReferenceLine), 1, Qt::DashLine));
    const int y = static_cast<int>(std::ceil(yOf(*thresholdDb)));
    painter.drawLine(0, y, q->width() - 1, y);
}

void SpectrumPanePrivate::paintPinNumbers(QPainter& painter) const
{
    painter.setPen(paneColor(PaneSlot::Pin));
    const QFontMetrics metrics = q->fontMetrics();
    std::vector<QRect> taken;
    for (const Pin& pin : q->visibleBand().pins()) {
        const QString label = QStringLiteral("%1 %2").arg(taken.size() + 1).arg(pin.name).trimmed();
        const int left = static_cast<int>(q->positionOf(pin.hertz)) + 3;
        QRect place(left, q->height() - metrics.height() - 2, metrics.horizontalAdvance(label),
                    metrics.height());
        const auto overlaps = [&place](const QRect& other) { return other.intersects(place); };
        while (std::ranges::any_of(taken, overlaps)) // above those of its neighbours
            place.translate(0, -place.height());
        painter.drawText(place, Qt::AlignLeft | Qt::TextDontClip, label);
        taken.push_back(place);
    }
}

QString SpectrumPanePrivate::readOutLine(const QString& title, double hertz) const
{
    const std::optional<BinLevel> bin = binAt(trace(Trace::Current).sweep, hertz);
    QString line = QStringLiteral("%1  %2  %3")
                       .arg(title, text->rounded(hertz, bin ? bin->stepHz : 0),
                            levelText(bin ? std::optional(bin->levelDb) : std::nullopt));
    const std::array held{std::pair(Trace::Maximum, SpectrumPane::tr("  (hold %1)")),
                          std::pair(Trace::Average, SpectrumPane::tr("  (average %1)")),
                          std::pair(Trace::Minimum, SpectrumPane::tr("  (minimum %1)"))};
    for (const auto& [kind, pattern] : held) {
        if (trace(kind).isShown())
            line += pattern.arg(levelText(trace(kind).sweep.levelAt(hertz)));
    }
    return line;
}

QString SpectrumPanePrivate::difference(double hertz, double fromHertz) const
{
    const Sweep& current = trace(Trace::Current).sweep;
    const std::optional<BinLevel> bin = binAt(current, hertz);
    const std::optional<BinLevel> from = binAt(current, fromHertz);
    if (!bin || !from)
        return {};
    const double step = std::max(bin->stepHz, from->stepHz);
    const double levels = static_cast<double>(bin->levelDb) - static_cast<double>(from->levelDb);
    return QStringLiteral("  Δ1 %1  %2 dB")
        .arg(text->rounded(bin->hertz - from->hertz, step))
        .arg(levels, 0, 'f', 1);
}

QString SpectrumPanePrivate::widths(double hertz)
{
    const Sweep& current = trace(Trace::Current).sweep;
    const Extent view{q->visibleBand().low(), q->visibleBand().high()};
    if (!occupied || occupied->view != view)
        occupied = {view, occupiedWidth(current, view)};
    const auto widthText = [](const std::optional<Extent>& extent) {
        return extent ? FrequencyText::width(extent->widthHz()) : QStringLiteral("–");
    };
    return SpectrumPane::tr("-3 dB  %1,  99 % of the view  %2")
        .arg(widthText(widthBelow(current, hertz)), widthText(occupied->width));
}

QStringList SpectrumPanePrivate::readOut()
{
    const VisibleBand& band = q->visibleBand();
    QStringList lines;
    if (!caption.isEmpty())
        lines << caption;
    if (!band.hasBand())
        return lines;
    lines << readOutLine(SpectrumPane::tr("Cursor"), band.cursor());
    if (areWidthsVisible)
        lines << widths(band.cursor());
    int number = 0;
    for (const auto& [hertz, name] : band.pins()) {
        const QString title = SpectrumPane::tr("Pin %1").arg(++number);
        QString line = readOutLine(name.isEmpty() ? title : title + QLatin1Char(' ') + name, hertz);
        if (number > 1)
            line += difference(hertz, band.pins().front().hertz);
        lines << line;
    }
    return lines;
}

void SpectrumPanePrivate::layOutTexts()
{
    QStringList lines = readOut();
    if (lines != texts.lines || q->font() != texts.font || q->size() != texts.paneSize) {
        texts.lines = std::move(lines);
        texts.font = q->font();
        texts.paneSize = q->size();
        layOutReadOut();
        stale += texts.readOut;
    }
    const QRect readOutPlace = readOutRect();
    const QRect legendPlace = legendRect(readOutPlace);
    for (const auto& [place, newPlace] :
         {std::pair(&texts.readOut, &readOutPlace), std::pair(&texts.legend, &legendPlace)}) {
        if (*place != *newPlace)
            stale += QRegion(std::exchange(*place, *newPlace)) + *newPlace;
    }
}

/// Long lines are broken between their parts, and what would cover more than the upper half of the
/// pane is left out, but never the line of the cursor.
void SpectrumPanePrivate::layOutReadOut()
{
    texts.rows.clear();
    const QFontMetrics metrics = q->fontMetrics();
    const int width = q->width() - 4 * boxMargin;
    const std::size_t least = caption.isEmpty() ? 1 : 2;
    const std::size_t most =
        std::max(static_cast<std::size_t>(q->height() / 2 / std::max(metrics.height(), 1)), least);
    for (const QString& line : std::as_const(texts.lines)) {
        texts.rows.push_back(laidOut(line, texts.font));
        if (texts.rows.back()->lineAt(0).naturalTextWidth() <= width)
            continue;
        texts.rows.pop_back();
        for (const QString& part : broken(line, metrics, width))
            texts.rows.push_back(laidOut(part, texts.font));
    }
    if (texts.rows.size() > most) {
        texts.rows.resize(most);
        texts.rows.back() = laidOut(texts.rows.back()->text() + QStringLiteral(" …"), texts.font);
    }
}

QRect SpectrumPanePrivate::readOutRect() const
{
    double textWidth = 0;
    for (const auto& row : texts.rows)
        textWidth = std::max(textWidth, row->lineAt(0).naturalTextWidth());
    const int boxWidth = qRound(textWidth) + 2 * boxMargin;
    const int boxHeight =
        static_cast<int>(texts.rows.size()) * q->fontMetrics().height() + boxMargin;
    // At the right, unless the cursor is there.
    const int right = q->width() - boxWidth - boxMargin;
    const bool cursorAtRight = q->positionOf(q->visibleBand().cursor()) >= right - boxMargin;
    return {cursorAtRight ? boxMargin : right, boxMargin, boxWidth, boxHeight};
}

void SpectrumPanePrivate::paintBox(QPainter& painter, const QRect& place) const
{
    QColor box = paneColor(PaneSlot::BackgroundLow);
    box.setAlphaF(0.75F);
    painter.fillRect(place, box);
    painter.setPen(paneColor(PaneSlot::ReadOut));
}

void SpectrumPanePrivate::paintTexts(QPainter& painter, const QRegion& region)
{
    layOutTexts();
    if (!texts.rows.empty() && region.intersects(texts.readOut)) {
        paintBox(painter, texts.readOut);
        QPoint place = texts.readOut.topLeft() + QPoint(boxMargin, boxMargin / 2);
        for (const auto& row : texts.rows) {
            row->draw(&painter, place);
            place.ry() += q->fontMetrics().height();
        }
    }
    if (!texts.legend.isNull() && region.intersects(texts.legend))
        paintLegend(painter);
}

std::vector<Trace> SpectrumPanePrivate::shownTraces() const
{
    std::vector<Trace> shown;
    for (int number = 0; number < traceCount; ++number) {
        const auto kind = static_cast<Trace>(number);
        if (trace(kind).isShown())
            shown.push_back(kind);
    }
    return shown;
}

void SpectrumPanePrivate::paintLegend(QPainter& painter) const
{
    const QRect& place = texts.legend;
    paintBox(painter, place);
    QRect line(place.x() + boxMargin, place.y() + boxMargin / 2, place.width(),
               q->fontMetrics().height());
    for (const Trace kind : shownTraces()) {
        painter.fillRect(line.x(), line.center().y() - 1, swatchWidth, swatchHeight,
                         paneColor(traceSlot(kind)));
        painter.drawText(line.adjusted(swatchWidth + boxMargin, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignVCenter, SpectrumPane::traceName(kind));
        line.translate(0, line.height());
    }
}

QSize SpectrumPanePrivate::legendSize()
{
    const std::vector<Trace> shown = shownTraces();
    if (!q->isLegendVisible() || shown.size() < 2)
        return {};
    if (texts.legendTraces != shown || texts.legendFont != q->font()) {
        texts.legendTraces = shown;
        texts.legendFont = q->font();
        const QFontMetrics metrics = q->fontMetrics();
        int textWidth = 0;
        for (const Trace kind : shown)
            textWidth =
                std::max(textWidth, metrics.horizontalAdvance(SpectrumPane::traceName(kind)));
        texts.legendSize = {textWidth + swatchWidth + 3 * boxMargin,
                            static_cast<int>(shown.size()) * metrics.height() + boxMargin};
        stale += texts.legend;
    }
    return texts.legendSize;
}

/// At the left, else below the read-out, else beside it; null where it does not fit in.
QRect SpectrumPanePrivate::legendRect(const QRect& taken)
{
    const QSize size = legendSize();
    if (size.isEmpty())
        return {};
    const QRect inside = q->rect().adjusted(0, 0, -boxMargin, -boxMargin);
    const QPoint places[] = {{boxMargin, boxMargin},
                             {boxMargin, taken.bottom() + boxMargin},
                             {taken.right() + boxMargin, boxMargin}};
    for (const QPoint& place : places) {
        const QRect result(place, size);
        if (inside.contains(result) && !result.intersects(taken))
            return result;
    }
    return {};
}

} // namespace RadioPanes
