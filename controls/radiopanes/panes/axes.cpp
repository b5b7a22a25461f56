// SPDX-License-Identifier: MIT
#include "axes.h"

#include "frequencytext.h"
#include "visibleband.h"

#include <radiopanes/colors/panecolors.h>

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace RadioPanes {

namespace {
constexpr int tickLength = 5;
constexpr int labelMargin = 3;
constexpr int gapBetweenLabels = 14;
} // namespace

FrequencyAxis::FrequencyAxis(const VisibleBand* view, const FrequencyText* text, int indent,
                             QWidget* parent)
    : QWidget(parent)
    , m_visibleBand(view)
    , m_text(text)
    , m_indent(indent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(view, &VisibleBand::rangeChanged, this, qOverload<>(&QWidget::update));
}

FrequencyAxis::~FrequencyAxis() = default;

const std::vector<AxisTick>& FrequencyAxis::ticks(int pixels) const
{
    TicksKey key{m_visibleBand->range(pixels), m_text->unit(), m_text->resolution(), font()};
    if (key == m_ticksKey)
        return m_ticks;
    m_ticksKey = std::move(key);
    const QFontMetrics metrics = fontMetrics();
    m_ticks = layoutTicks(
        m_ticksKey.range, m_ticksKey.resolution, gapBetweenLabels, 0,
        [this](double hertz) { return m_text->label(hertz); },
        [&metrics](const QString& label) { return metrics.horizontalAdvance(label); });
    return m_ticks;
}

QSize FrequencyAxis::sizeHint() const
{
    return {m_indent * 4, fontMetrics().height() + tickLength + 2 * labelMargin};
}

void FrequencyAxis::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QLinearGradient background(0, 0, 0, height());
    background.setColorAt(0, axisColor(PaneSlot::FrequencyAxisHigh, palette()));
    background.setColorAt(1, axisColor(PaneSlot::FrequencyAxisLow, palette()));
    painter.fillRect(rect(), background);
    painter.setPen(axisColor(PaneSlot::FrequencyAxisText, palette()));
    painter.drawText(QRect(0, tickLength, m_indent - 2 * labelMargin, height() - tickLength),
                     Qt::AlignRight | Qt::AlignVCenter, m_text->unit());
    for (const AxisTick& tick : ticks(width() - m_indent)) {
        const int x = m_indent + static_cast<int>(tick.position);
        painter.drawLine(x, 0, x, tickLength - 1);
        const int extent = fontMetrics().horizontalAdvance(tick.label);
        painter.drawText(QRect(x - extent / 2 - 1, tickLength, extent + 2, height() - tickLength),
                         Qt::AlignCenter | Qt::TextDontClip, tick.label);
    }
}

SideAxis::SideAxis(const QString& caption, Ticks ticks, QWidget* parent)
    : QWidget(parent)
    , m_caption(caption)
    , m_ticks(std::move(ticks))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

SideAxis::~SideAxis() = default;

int SideAxis::preferredWidth(const QWidget& widget)
{
    return widget.fontMetrics().horizontalAdvance(QStringLiteral("00:00:00")) + tickLength +
           3 * labelMargin;
}

QSize SideAxis::sizeHint() const
{
    return {preferredWidth(*this), 4 * fontMetrics().height()};
}

void SideAxis::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), axisColor(PaneSlot::LevelAxisBackground, palette()));
    painter.setPen(axisColor(PaneSlot::LevelAxisText, palette()));
    const int textHeight = fontMetrics().height();
    const int textWidth = width() - tickLength - 2 * labelMargin;
    const int captionBottom = m_caption.isEmpty() ? 0 : textHeight + labelMargin;
    painter.drawText(QRect(labelMargin, 1, textWidth, textHeight), Qt::AlignLeft, m_caption);
    for (const AxisTick& tick : m_ticks(height())) {
        const int y = height() - 1 - static_cast<int>(tick.position);
        painter.drawLine(width() - tickLength, y, width() - 1, y);
        // At the ends a label moves to where it has room, but never away from its tick.
        const int wanted = y - textHeight / 2;
        const int top =
            std::clamp(wanted, captionBottom, std::max(height() - textHeight, captionBottom));
        if (std::abs(top - wanted) <= textHeight / 2)
            painter.drawText(QRect(labelMargin, top, textWidth, textHeight),
                             Qt::AlignRight | Qt::AlignVCenter, tick.label);
    }
}

} // namespace RadioPanes
