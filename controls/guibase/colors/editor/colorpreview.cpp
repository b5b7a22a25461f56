// SPDX-License-Identifier: MIT
#include "colorpreview_p.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <utility>

using enum IColorBase::ECOLOR;

ColorPreview::ColorPreview(ColorOf colorOf, QWidget* parent)
    : QWidget(parent)
    , m_colorOf(std::move(colorOf))
{
    setObjectName(QStringLiteral("Preview"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Preview of the chosen colours"));
}

QSize ColorPreview::sizeHint() const
{
    const int line = fontMetrics().lineSpacing();
    return {20 * line, 7 * line};
}

void ColorPreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setLayoutDirection(Qt::LeftToRight); // as in the panes, in every language
    const int line = fontMetrics().lineSpacing();
    const int gutter = fontMetrics().horizontalAdvance(QStringLiteral("-100 ")) + line / 2;
    const QRect pane = rect().adjusted(gutter, 0, 0, -line - line / 2);
    paintAxes(painter, pane);
    painter.setClipRect(pane);
    paintPane(painter, pane);
}

void ColorPreview::paintAxes(QPainter& painter, const QRect& pane) const
{
    const QRect left(0, 0, pane.left(), pane.height());
    painter.fillRect(left, m_colorOf(YAxisBackground));
    painter.setPen(m_colorOf(YAxisText));
    for (int tick = 0; tick < 3; ++tick) {
        const QRect place(left.left(), left.top() + tick * left.height() / 3, left.width() - 4,
                          left.height() / 3);
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(-60 - 20 * tick));
    }
    const QRect below(0, pane.bottom() + 1, width(), height() - pane.height());
    QLinearGradient gradient(below.topLeft(), below.bottomLeft());
    gradient.setColorAt(0, m_colorOf(FrequencyAxisBackgroundHigh));
    gradient.setColorAt(1, m_colorOf(FrequencyAxisBackgroundLow));
    painter.fillRect(below, gradient);
    painter.setPen(m_colorOf(FrequencyAxisText));
    for (int tick = 0; tick < 4; ++tick) {
        const QRect place(pane.left() + tick * pane.width() / 4, below.top(), pane.width() / 4,
                          below.height());
        painter.drawText(place, Qt::AlignCenter, QStringLiteral("%1 MHz").arg(88 + tick));
    }
}

void ColorPreview::paintPane(QPainter& painter, const QRect& pane) const
{
    QLinearGradient gradient(pane.topLeft(), pane.bottomLeft());
    gradient.setColorAt(0, m_colorOf(DrawPaneBackgroundHigh));
    gradient.setColorAt(1, m_colorOf(DrawPaneBackgroundLow));
    painter.fillRect(pane, gradient);
    const int band = pane.width() / 10;
    painter.fillRect(QRect(pane.left() + 6 * band, pane.top(), band, pane.height()),
                     m_colorOf(DrawPaneBackgroundInBandwidth));
    painter.setPen(m_colorOf(DrawPaneGrid));
    for (int line = 1; line < 4; ++line) {
        const int x = pane.left() + line * pane.width() / 4;
        const int y = pane.top() + line * pane.height() / 4;
        painter.drawLine(x, pane.top(), x, pane.bottom());
        painter.drawLine(pane.left(), y, pane.right(), y);
    }
    paintCurve(painter, pane, DrawPaneMinMaxHold, 0.55, 0.5);
    paintCurve(painter, pane, DrawPaneSecondaryCurve, 0.75, 0.45);
    paintCurve(painter, pane, DrawPaneMainCurve, 0.85, 0.6);
    painter.setPen(QPen(m_colorOf(MarkerSecondary), 1, Qt::DashLine));
    painter.drawLine(pane.left(), pane.center().y(), pane.right(), pane.center().y());
    painter.setPen(m_colorOf(MarkerMain));
    const int marker = pane.left() + 13 * band / 2;
    painter.drawLine(marker, pane.top(), marker, pane.bottom());
    painter.setPen(m_colorOf(DrawPaneResultPanelText));
    painter.drawText(pane.adjusted(4, 2, -4, -2), Qt::AlignTop | Qt::AlignLeft,
                     QStringLiteral("90.6 MHz  -61 dB"));
}

// Two peaks on a floor at `level` (0 at the top of the pane, 1 at its bottom).
void ColorPreview::paintCurve(QPainter& painter, const QRect& pane, IColorBase::ECOLOR slot,
                              double level, double peak) const
{
    const auto bell = [](double x, double at) {
        constexpr double width = 0.035;
        return std::exp(-(x - at) * (x - at) / (2 * width * width));
    };
    QPainterPath path;
    for (int x = 0; x <= pane.width(); ++x) {
        const double position = double(x) / pane.width();
        const double noise = 0.02 * std::sin(position * 170) * std::sin(position * 61);
        const double y = level + noise - peak * (bell(position, 0.3) * 0.7 + bell(position, 0.65));
        const QPointF point(pane.left() + x, pane.top() + y * pane.height());
        if (x == 0)
            path.moveTo(point);
        else
            path.lineTo(point);
    }
    painter.setPen(m_colorOf(slot));
    painter.drawPath(path);
}
