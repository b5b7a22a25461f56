// SPDX-License-Identifier: MIT
#include "axes.h"

#include "frequencytext.h"
#include "panepainter_p.h"
#include "visibleband.h"

#include <radiopanes/colors/panecolors.h>

#include <jtbase/wheelnotches.h>

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace RadioPanes {

namespace {
constexpr int tickLength = 5;
constexpr int labelMargin = 3;
constexpr int gapBetweenLabels = 14;
} // namespace

class FrequencyAxisPrivate
{
public:
    /// What the ticks were worked out for: the axis and the panes ask with every painting.
    struct TicksKey
    {
        AxisRange range;
        QString unit;
        double resolution = 0;
        QFont font;

        bool operator==(const TicksKey&) const = default;
    };

    const VisibleBand* visibleBand = nullptr;
    const FrequencyText* text = nullptr;
    int indent = 0;
    TicksKey key;
    std::vector<AxisTick> ticks;
};

class SideAxisPrivate
{
public:
    QString caption;
    SideAxis::Ticks ticks;
    int draggedTo = 0;
    WheelNotches wheel;
};

FrequencyAxis::FrequencyAxis(const VisibleBand* view, const FrequencyText* text, int indent,
                             QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<FrequencyAxisPrivate>())
{
    d->visibleBand = view;
    d->text = text;
    d->indent = indent;
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(view, &VisibleBand::rangeChanged, this, qOverload<>(&QWidget::update));
}

FrequencyAxis::~FrequencyAxis() = default;

const std::vector<AxisTick>& FrequencyAxis::ticks(int pixels) const
{
    FrequencyAxisPrivate::TicksKey key{d->visibleBand->range(pixels), d->text->unit(),
                                       d->text->resolution(), font()};
    if (key == d->key)
        return d->ticks;
    d->key = std::move(key);
    const QFontMetrics metrics = fontMetrics();
    d->ticks = layoutTicks(
        d->key.range, d->key.resolution, gapBetweenLabels, 0,
        [this](double hertz) { return d->text->label(hertz); },
        [&metrics](const QString& label) { return metrics.horizontalAdvance(label); });
    return d->ticks;
}

QSize FrequencyAxis::sizeHint() const
{
    return {d->indent * 4, fontMetrics().height() + tickLength + 2 * labelMargin};
}

void FrequencyAxis::paintEvent(QPaintEvent*)
{
    PanePainter painter(this);
    QLinearGradient background(0, 0, 0, height());
    background.setColorAt(0, axisColor(PaneSlot::FrequencyAxisHigh, palette()));
    background.setColorAt(1, axisColor(PaneSlot::FrequencyAxisLow, palette()));
    painter.fillRect(rect(), background);
    painter.setPen(axisColor(PaneSlot::FrequencyAxisText, palette()));
    painter.drawText(QRect(0, tickLength, d->indent - 2 * labelMargin, height() - tickLength),
                     Qt::AlignRight | Qt::AlignVCenter, d->text->unit());
    for (const AxisTick& tick : ticks(width() - d->indent)) {
        const int x = d->indent + static_cast<int>(tick.position);
        painter.drawLine(x, 0, x, tickLength - 1);
        const int extent = fontMetrics().horizontalAdvance(tick.label);
        painter.drawText(QRect(x - extent / 2 - 1, tickLength, extent + 2, height() - tickLength),
                         Qt::AlignCenter | Qt::TextDontClip, tick.label);
    }
}

SideAxis::SideAxis(const QString& caption, Ticks ticks, QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<SideAxisPrivate>())
{
    d->caption = caption;
    d->ticks = std::move(ticks);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

SideAxis::~SideAxis() = default;

std::vector<AxisTick> SideAxis::ticks(int pixels) const
{
    return d->ticks(pixels);
}

int SideAxis::preferredWidth(const QWidget& widget)
{
    return widget.fontMetrics().horizontalAdvance(QStringLiteral("00:00.000")) + tickLength +
           3 * labelMargin;
}

QSize SideAxis::sizeHint() const
{
    return {preferredWidth(*this), 4 * fontMetrics().height()};
}

void SideAxis::paintEvent(QPaintEvent*)
{
    PanePainter painter(this);
    painter.fillRect(rect(), axisColor(PaneSlot::LevelAxisBackground, palette()));
    painter.setPen(axisColor(PaneSlot::LevelAxisText, palette()));
    const int textHeight = fontMetrics().height();
    const int textWidth = width() - tickLength - 2 * labelMargin;
    const int captionBottom = d->caption.isEmpty() ? 0 : textHeight + labelMargin;
    painter.drawText(QRect(labelMargin, 1, textWidth, textHeight), Qt::AlignLeft, d->caption);
    for (const AxisTick& tick : d->ticks(height())) {
        const int y = height() - 1 - static_cast<int>(tick.position);
        painter.drawLine(width() - tickLength, y, width() - 1, y);
        // At the ends a label moves to where it has room, but never away from its tick.
        const int labelHeight =
            textHeight * (static_cast<int>(tick.label.count(QLatin1Char('\n'))) + 1);
        const int wanted = y - labelHeight / 2;
        const int top =
            std::clamp(wanted, captionBottom, std::max(height() - labelHeight, captionBottom));
        if (std::abs(top - wanted) <= labelHeight / 2)
            painter.drawText(QRect(labelMargin, top, textWidth, labelHeight),
                             Qt::AlignRight | Qt::AlignVCenter, tick.label);
    }
}

void SideAxis::mousePressEvent(QMouseEvent* event)
{
    d->draggedTo = event->position().toPoint().y();
}

void SideAxis::mouseMoveEvent(QMouseEvent* event)
{
    const int y = event->position().toPoint().y();
    if (event->buttons().testFlag(Qt::LeftButton))
        Q_EMIT dragged(d->draggedTo - y);
    d->draggedTo = y;
}

void SideAxis::wheelEvent(QWheelEvent* event)
{
    const int angle = event->angleDelta().y();
    if (const int notches = d->wheel.add(angle); notches != 0)
        Q_EMIT wheelTurned(notches);
    event->setAccepted(angle != 0);
}

} // namespace RadioPanes
