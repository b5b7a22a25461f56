// SPDX-License-Identifier: MIT
#include "panels/wrappingrow.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace bandmonitor {

WrappingRow::WrappingRow() = default;
WrappingRow::~WrappingRow() = default;

void WrappingRow::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

QLayoutItem* WrappingRow::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index)
{
    if (itemAt(index) == nullptr)
        return nullptr;
    QLayoutItem* item = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

std::vector<std::pair<QLayoutItem*, QRect>> WrappingRow::places(int width) const
{
    std::vector<std::pair<QLayoutItem*, QRect>> result;
    const auto center = [&result](std::size_t lineBegin, int height) {
        for (std::size_t i = lineBegin; i < result.size(); ++i)
            result[i].second.translate(0, (height - result[i].second.height()) / 2);
    };
    const QMargins margins = contentsMargins();
    const int right = width - margins.right();
    QPoint next(margins.left(), margins.top());
    int lineHeight = 0;
    std::size_t lineBegin = 0;
    for (const auto& item : m_items) {
        if (item->isEmpty())
            continue;
        QSize size = item->sizeHint();
        if (next.x() + size.width() > right && result.size() > lineBegin) {
            center(lineBegin, lineHeight);
            lineBegin = result.size();
            next = {margins.left(), next.y() + lineHeight + spacing()};
            lineHeight = 0;
        }
        const int room = std::max(right - next.x(), item->minimumSize().width());
        const bool isLast = item == m_items.back();
        if (size.width() > room || (isLast && item->expandingDirections() & Qt::Horizontal))
            size.setWidth(room);
        if (item->hasHeightForWidth())
            size.setHeight(item->heightForWidth(size.width()));
        result.emplace_back(item.get(), QRect(next, size));
        next.rx() += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    center(lineBegin, lineHeight);
    return result;
}

int WrappingRow::heightForWidth(int width) const
{
    int bottom = contentsMargins().top();
    for (const auto& [item, place] : places(width))
        bottom = std::max(bottom, place.y() + place.height());
    return bottom + contentsMargins().bottom();
}

QSize WrappingRow::sizeHint() const
{
    const QMargins margins = contentsMargins();
    int width = margins.left() + margins.right() - spacing();
    for (const auto& item : m_items)
        width += item->isEmpty() ? 0 : item->sizeHint().width() + spacing();
    return {width, heightForWidth(width)};
}

QSize WrappingRow::minimumSize() const
{
    QSize size;
    for (const auto& item : m_items) {
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    }
    return size.grownBy(contentsMargins());
}

void WrappingRow::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    for (const auto& [item, place] : places(rect.width()))
        item->setGeometry(QStyle::visualRect(direction, rect, place.translated(rect.topLeft())));
}

} // namespace bandmonitor
