// SPDX-License-Identifier: MIT
#include "panels/jobbar.h"

#include "model/panenames.h"

#include <radiopanes/colors/contrast.h>

#include <QPainter>

#include <algorithm>

namespace bandmonitor {

namespace {
constexpr double verticalMargin = 3;
constexpr double horizontalMargin = 2;
constexpr double smallestWidth = 4;
} // namespace

double JobTimes::placeOf(quint64 timeUs) const
{
    if (lastUs <= firstUs)
        return 0;
    const quint64 inside = std::clamp(timeUs, firstUs, lastUs);
    return static_cast<double>(inside - firstUs) / static_cast<double>(lastUs - firstUs);
}

JobBarDelegate::JobBarDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

JobBarDelegate::~JobBarDelegate() = default;

QRectF JobBarDelegate::barRect(const QRectF& cell, const JobBar& bar) const
{
    const QRectF inside =
        cell.adjusted(horizontalMargin, verticalMargin, -horizontalMargin, -verticalMargin);
    const auto [from, to] = std::minmax({m_times.placeOf(bar.fromUs), m_times.placeOf(bar.toUs)});
    const double width = std::max((to - from) * inside.width(), smallestWidth);
    const double left = std::min(inside.left() + from * inside.width(), inside.right() - width);
    return {left, inside.top(), width, inside.height()};
}

QSize JobBarDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return size.expandedTo({0, option.fontMetrics.height() + qRound(2 * verticalMargin)});
}

void JobBarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QColor background =
        option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
    const QRectF cell(option.rect);
    painter->save();
    if (const QVariant held = index.data(barRole); held.isValid()) {
        const auto bar = held.value<JobBar>();
        painter->setRenderHint(QPainter::Antialiasing);
        // A colour that is hard to tell from the background gets an outline that is not.
        painter->setPen(QPen(readableOn(background, bar.color, lineContrast), 1));
        painter->setBrush(bar.color);
        painter->drawRect(barRect(cell, bar).adjusted(0.5, 0.5, -0.5, -0.5));
        painter->setRenderHint(QPainter::Antialiasing, false);
    }
    if (m_times.nowUs) {
        const double width = cell.width() - 2 * horizontalMargin;
        const double x = cell.left() + horizontalMargin + m_times.placeOf(*m_times.nowUs) * width;
        const QColor text = option.palette.color(QPalette::Text);
        painter->setPen(QPen(readableOn(background, text, lineContrast), 1, Qt::DashLine));
        painter->drawLine(QPointF(x, cell.top()), QPointF(x, cell.bottom()));
    }
    painter->restore();
}

} // namespace bandmonitor
