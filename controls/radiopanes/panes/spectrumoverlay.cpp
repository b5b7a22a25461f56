// SPDX-License-Identifier: MIT
#include "spectrumpane_p.h"

#include "frequencytext.h"
#include "visibleband.h"

#include <radiopanes/colors/panecolors.h>

#include <QPainter>

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

QStringList SpectrumPanePrivate::shownReadOut()
{
    const QFontMetrics metrics = q->fontMetrics();
    QStringList shown;
    const QStringList lines = readOut();
    for (const QString& line : lines)
        shown << broken(line, metrics, q->width() - 4 * boxMargin);
    const int least = caption.isEmpty() ? 1 : 2;
    const int most = std::max(q->height() / 2 / std::max(metrics.height(), 1), least);
    if (shown.size() > most) {
        shown.resize(most);
        shown.last() += QStringLiteral(" …");
    }
    return shown;
}

QRect SpectrumPanePrivate::readOutRect(const QStringList& lines) const
{
    const QFontMetrics metrics = q->fontMetrics();
    int textWidth = 0;
    for (const QString& line : lines)
        textWidth = std::max(textWidth, metrics.horizontalAdvance(line));
    const int boxWidth = textWidth + 2 * boxMargin;
    const int boxHeight = static_cast<int>(lines.size()) * metrics.height() + boxMargin;
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

void SpectrumPanePrivate::paintTexts(QPainter& painter)
{
    const QStringList lines = shownReadOut();
    paintedReadOut = readOutRect(lines);
    if (!lines.isEmpty())
        paintBox(painter, paintedReadOut);
    painter.drawText(paintedReadOut.adjusted(boxMargin, boxMargin / 2, 0, 0),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip,
                     lines.join(QLatin1Char('\n')));
    if (q->isLegendVisible())
        paintLegend(painter, paintedReadOut);
}

void SpectrumPanePrivate::paintLegend(QPainter& painter, const QRect& taken) const
{
    std::vector<Trace> shown;
    int textWidth = 0;
    const QFontMetrics metrics = q->fontMetrics();
    for (int number = 0; number < traceCount; ++number) {
        const auto kind = static_cast<Trace>(number);
        if (!trace(kind).isShown())
            continue;
        shown.push_back(kind);
        textWidth = std::max(textWidth, metrics.horizontalAdvance(SpectrumPane::traceName(kind)));
    }
    if (shown.size() < 2)
        return;
    const int lineHeight = metrics.height();
    const QRect place = legendRect({textWidth + swatchWidth + 3 * boxMargin,
                                    static_cast<int>(shown.size()) * lineHeight + boxMargin},
                                   taken);
    if (place.isNull())
        return;
    paintBox(painter, place);
    QRect line(place.x() + boxMargin, place.y() + boxMargin / 2, place.width(), lineHeight);
    for (const Trace kind : shown) {
        painter.fillRect(line.x(), line.center().y() - 1, swatchWidth, swatchHeight,
                         paneColor(traceSlot(kind)));
        painter.drawText(line.adjusted(swatchWidth + boxMargin, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignVCenter, SpectrumPane::traceName(kind));
        line.translate(0, lineHeight);
    }
}

/// At the left, else below the read-out, else beside it; null where it does not fit in.
QRect SpectrumPanePrivate::legendRect(const QSize& size, const QRect& taken) const
{
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
