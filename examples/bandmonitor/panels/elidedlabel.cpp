// SPDX-License-Identifier: MIT
#include "panels/elidedlabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace bandmonitor {

namespace {
constexpr int fewestLetters = 6;
} // namespace

ElidedLabel::~ElidedLabel() = default;

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize all = QLabel::minimumSizeHint();
    return {std::min(all.width(), fewestLetters * fontMetrics().averageCharWidth()), all.height()};
}

bool ElidedLabel::isCut() const
{
    return contentsRect().width() < fontMetrics().horizontalAdvance(text());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !isCut())
        return QLabel::event(event);
    const QString tip = toolTip().isEmpty() ? text() : toolTip() + QLatin1Char('\n') + text();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent* event)
{
    if (!isCut())
        return QLabel::paintEvent(event);
    QPainter painter(this);
    const QRect rect = contentsRect();
    style()->drawItemText(&painter, rect, QStyle::visualAlignment(layoutDirection(), alignment()),
                          palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, rect.width()),
                          foregroundRole());
}

} // namespace bandmonitor
