// SPDX-License-Identifier: MIT
#include "splitterhandle.h"

#include "splitter.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace {

constexpr int farther = 1 << 16; // than any splitter is long

} // namespace

SplitterHandle::SplitterHandle(Qt::Orientation orientation, QSplitter* parent)
    : QSplitterHandle(orientation, parent)
    , m_splitter(qobject_cast<Splitter*>(parent))
{
    setAttribute(Qt::WA_Hover);
    setAccessibleName(tr("Divider"));
    if (m_splitter == nullptr)
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
    const bool isActive = m_isPressed || underMouse() || hasFocus();
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
    m_isPressed = pressed;
    update();
}

void SplitterHandle::mousePressEvent(QMouseEvent* event)
{
    QSplitterHandle::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    if (m_splitter != nullptr)
        m_splitter->beginMove();
    setPressed(true);
}

void SplitterHandle::mouseReleaseEvent(QMouseEvent* event)
{
    // After a double click there is no drag to end: the base would move the handle to the mouse.
    if (m_isPressed)
        QSplitterHandle::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        setPressed(false);
}

void SplitterHandle::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (m_splitter != nullptr && event->button() == Qt::LeftButton) {
        m_splitter->equalizeNeighbours(m_splitter->indexOf(this));
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
    if (m_splitter == nullptr || (shift == 0 && !isEnter)) {
        QSplitterHandle::keyPressEvent(event);
        return;
    }
    const int index = m_splitter->indexOf(this);
    if (isEnter)
        m_splitter->equalizeNeighbours(index);
    else
        m_splitter->shiftHandle(index, shift);
    event->accept();
}
