// SPDX-License-Identifier: MIT
#include "circlelayout.h"

#include "circleplan_p.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

constexpr int largestFixedRadius = 10'000; // pixels
constexpr int standardRadius = 100;        // pixels

using Sizes = QSize (QLayoutItem::*)() const;

} // namespace

struct CircleLayout::Private
{
    explicit Private(const CircleLayout& layout)
        : q(layout)
    {}

    /// Those that are not hidden.
    QList<QLayoutItem*> shownItems() const;
    QList<CirclePlan::Item> plan(Sizes sizes) const;
    double radius(const QList<CirclePlan::Item>& plan, const QSize& area) const;
    QSize extent(Sizes sizes) const;
    int spacing() const;

    const CircleLayout& q;
    QList<QLayoutItem*> items;
    double startAngle = 0;
    Direction direction = Direction::Clockwise;
    RadiusPolicy policy = RadiusPolicy::Largest;
    int fixedRadius = standardRadius;
};

QList<QLayoutItem*> CircleLayout::Private::shownItems() const
{
    QList<QLayoutItem*> result = items;
    result.removeIf([](const QLayoutItem* item) { return item->isEmpty(); });
    return result;
}

QList<CirclePlan::Item> CircleLayout::Private::plan(Sizes sizes) const
{
    const QList<QLayoutItem*> shown = shownItems();
    const QList<QPointF> directions =
        CirclePlan::directions(shown.size(), startAngle, direction == Direction::Clockwise);
    QList<CirclePlan::Item> result;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const QSize size = (shown[i]->*sizes)()
                               .expandedTo(shown[i]->minimumSize())
                               .boundedTo(shown[i]->maximumSize());
        result << CirclePlan::Item{size, directions[i]};
    }
    return result;
}

double CircleLayout::Private::radius(const QList<CirclePlan::Item>& plan, const QSize& area) const
{
    switch (policy) {
    case RadiusPolicy::Largest:
        return CirclePlan::largestRadius(plan, area);
    case RadiusPolicy::Smallest:
        return CirclePlan::smallestRadius(plan, spacing());
    case RadiusPolicy::Fixed:
        break;
    }
    return fixedRadius;
}

QSize CircleLayout::Private::extent(Sizes sizes) const
{
    const QList<CirclePlan::Item> placed = plan(sizes);
    const double radius =
        policy == RadiusPolicy::Fixed ? fixedRadius : CirclePlan::smallestRadius(placed, spacing());
    const QMargins margins = q.contentsMargins();
    return CirclePlan::extent(placed, radius) +
           QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

/// Styles may leave it to the layout.
int CircleLayout::Private::spacing() const
{
    const QWidget* widget = q.parentWidget();
    if (q.spacing() >= 0 || widget == nullptr)
        return std::max(q.spacing(), 0);
    return std::max(widget->style()->layoutSpacing(QSizePolicy::DefaultType,
                                                   QSizePolicy::DefaultType, Qt::Horizontal,
                                                   nullptr, widget),
                    0);
}

CircleLayout::CircleLayout(QWidget* parent)
    : QLayout(parent)
    , d(std::make_unique<Private>(*this))
{}

CircleLayout::~CircleLayout()
{
    qDeleteAll(d->items);
}

void CircleLayout::setStartAngle(double degrees)
{
    if (!std::isfinite(degrees))
        return;
    d->startAngle = degrees;
    invalidate();
}

double CircleLayout::startAngle() const
{
    return d->startAngle;
}

void CircleLayout::setDirection(Direction direction)
{
    d->direction = direction;
    invalidate();
}

CircleLayout::Direction CircleLayout::direction() const
{
    return d->direction;
}

void CircleLayout::setRadiusPolicy(RadiusPolicy policy)
{
    d->policy = policy;
    invalidate();
}

CircleLayout::RadiusPolicy CircleLayout::radiusPolicy() const
{
    return d->policy;
}

void CircleLayout::setFixedRadius(int pixels)
{
    d->fixedRadius = std::clamp(pixels, 0, largestFixedRadius);
    invalidate();
}

int CircleLayout::fixedRadius() const
{
    return d->fixedRadius;
}

void CircleLayout::addItem(QLayoutItem* item)
{
    d->items << item;
    invalidate();
}

int CircleLayout::count() const
{
    return static_cast<int>(d->items.size());
}

QLayoutItem* CircleLayout::itemAt(int index) const
{
    return d->items.value(index, nullptr);
}

QLayoutItem* CircleLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem* item = d->items.takeAt(index);
    invalidate();
    return item;
}

QSize CircleLayout::sizeHint() const
{
    return d->extent(&QLayoutItem::sizeHint);
}

QSize CircleLayout::minimumSize() const
{
    return d->extent(&QLayoutItem::minimumSize);
}

Qt::Orientations CircleLayout::expandingDirections() const
{
    return d->policy == RadiusPolicy::Largest ? Qt::Horizontal | Qt::Vertical : Qt::Orientations();
}

bool CircleLayout::hasHeightForWidth() const
{
    return false;
}

void CircleLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const QRect area = contentsRect();
    const bool hasRoom = rect.size().expandedTo(sizeHint()) == rect.size();
    const QList<CirclePlan::Item> plan =
        d->plan(hasRoom ? &QLayoutItem::sizeHint : &QLayoutItem::minimumSize);
    const double radius = d->radius(plan, area.size());
    const bool isMirrored = parentWidget() != nullptr && parentWidget()->isRightToLeft();
    const QPointF centre = QRectF(area).center();
    const QList<QLayoutItem*> shown = d->shownItems();
    for (qsizetype i = 0; i < shown.size(); ++i) {
        QPointF offset = plan[i].direction * radius;
        if (isMirrored)
            offset.setX(-offset.x());
        QRectF place(QPointF(), plan[i].size);
        place.moveCenter(centre + offset);
        shown[i]->setGeometry({place.topLeft().toPoint(), plan[i].size});
    }
}
