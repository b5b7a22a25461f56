// SPDX-License-Identifier: MIT
#include "splitterhandle.h"

#include "splitter.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace {

constexpr int farther = 1 << 16; // than any splitter is long

} // namespace

struct SplitterHandle::Private
{
    Splitter* splitter; ///< The parent. Null when that is a splitter of another class.
    bool isPressed = false;
};

SplitterHandle::SplitterHandle(Qt::Orientation orientation, QSplitter* parent)
    : QSplitterHandle(orientation, parent)
    , d(std::make_unique<Private>(Private{qobject_cast<Splitter*>(parent)}))
{
    setAttribute(Qt::WA_Hover);
    setAccessibleName(tr("Divider"));
    if (d->splitter == nullptr)
        return;
    setFocusPolicy(Qt::TabFocus);
    setAccessibleDescription(
        tr("Arrow keys move the divider, Enter gives both sides the same size."));
}

SplitterHandle::~SplitterHandle() = default;

void SplitterHandle::paintEvent(QPaintEvent* event)
{
    QSplitterHandle::paintEvent(event);
    constexpr int dots = 5;
    constexpr int spacing = 5;
    constexpr qreal radius = 1.25;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool isActive = d->isPressed || underMouse() || hasFocus();
    QColor color = palette().color(isActive ? QPalette::Highlight : QPalette::WindowText);
    if (!isActive)
        color.setAlphaF(0.55F);
    painter.setBrush(color);
    const QPointF step =
        orientation() == Qt::Horizontal ? QPointF(0, spacing) : QPointF(spacing, 0);
    const QPointF first = QRectF(rect()).center() - step * (dots - 1) / 2;
    for (int dot = 0; dot < dots; ++dot)
        painter.drawEllipse(first + step * dot, radius, radius);

    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void SplitterHandle::setPressed(bool pressed)
{
    d->isPressed = pressed;
    update();
}

void SplitterHandle::mousePressEvent(QMouseEvent* event)
{
    QSplitterHandle::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    if (d->splitter != nullptr)
        d->splitter->beginMove();
    setPressed(true);
}

void SplitterHandle::mouseReleaseEvent(QMouseEvent* event)
{
    // After a double click there is no drag to end: the base would move the handle to the mouse.
    if (d->isPressed)
        QSplitterHandle::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        setPressed(false);
}

void SplitterHandle::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (d->splitter != nullptr && event->button() == Qt::LeftButton) {
        d->splitter->equalizeNeighbours(d->splitter->indexOf(this));
        event->accept();
    } else {
        QSplitterHandle::mouseDoubleClickEvent(event);
    }
}

int SplitterHandle::shiftFor(const QKeyEvent& event) const
{
    const bool isHorizontal = orientation() == Qt::Horizontal;
    const int step = (event.modifiers() & Qt::ShiftModifier) ? 1 : keyStep;
    const int rightStep = isRightToLeft() ? -step : step;
    switch (event.key()) {
    case Qt::Key_Left:
        return isHorizontal ? -rightStep : 0;
    case Qt::Key_Right:
        return isHorizontal ? rightStep : 0;
    case Qt::Key_Up:
        return isHorizontal ? 0 : -step;
    case Qt::Key_Down:
        return isHorizontal ? 0 : step;
    case Qt::Key_Home:
        return -farther;
    case Qt::Key_End:
        return farther;
    default:
        return 0;
    }
}

void SplitterHandle::keyPressEvent(QKeyEvent* event)
{
    const int shift = shiftFor(*event);
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (d->splitter == nullptr || (shift == 0 && !isEnter)) {
        QSplitterHandle::keyPressEvent(event);
        return;
    }
    const int index = d->splitter->indexOf(this);
    if (isEnter)
        d->splitter->equalizeNeighbours(index);
    else
        d->splitter->shiftHandle(index, shift);
    event->accept();
}
