// SPDX-License-Identifier: MIT
#include "bandpane.h"

#include "visibleband.h"

#include <radiopanes/colors/panecolors.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace RadioPanes {

namespace {
constexpr double zoomPerWheelStep = 1.25;
constexpr double wheelStep = 120; // eighths of a degree that one notch turns
constexpr int fastCursorPixels = 10;
constexpr double panShare = 0.1; // of the visible range, per key press
} // namespace

BandPane::BandPane(VisibleBand* view, QWidget* parent)
    : QWidget(parent)
    , m_visibleBand(view)
    , m_paintedCursor(view->cursor())
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
    connect(m_visibleBand, &VisibleBand::cursorChanged, this, &BandPane::followCursor);
    connect(m_visibleBand, &VisibleBand::pinsChanged, this, qOverload<>(&QWidget::update));
}

BandPane::~BandPane() = default;

double BandPane::frequencyAt(double x) const
{
    return m_visibleBand->range(std::max(width(), 1)).valueAt(x);
}

double BandPane::positionOf(double hertz) const
{
    return m_visibleBand->range(std::max(width(), 1)).positionOf(hertz);
}

void BandPane::followCursor()
{
    updateAround(m_paintedCursor);
    m_paintedCursor = m_visibleBand->cursor();
    updateAround(m_paintedCursor);
}

void BandPane::updateAround(double hertz)
{
    const double x = positionOf(hertz);
    if (x > -2 && x < width() + 2)
        update(static_cast<int>(std::floor(x)) - 1, 0, 3, height());
}

void BandPane::paintOverlay(QPainter& painter)
{
    const auto verticalLine = [&](double hertz, const QColor& color, Qt::PenStyle style) {
        const int x = static_cast<int>(std::floor(positionOf(hertz)));
        if (x < -1 || x > width())
            return;
        const int inside = std::clamp(x, 0, width() - 1);
        painter.setPen(QPen(color, 1, style));
        painter.drawLine(inside, 0, inside, height() - 1);
    };
    for (const double pin : m_visibleBand->pins())
        verticalLine(pin, paneColor(PaneSlot::Pin), Qt::DashLine);
    verticalLine(m_visibleBand->cursor(), paneColor(PaneSlot::Cursor), Qt::SolidLine);
    if (m_drag == Drag::Zoom) {
        QColor fill = paneColor(PaneSlot::Cursor);
        fill.setAlphaF(0.25F);
        const int left = std::min(m_pressedAt.x(), m_draggedTo.x());
        painter.fillRect(left, 0, std::abs(m_draggedTo.x() - m_pressedAt.x()), height(), fill);
    }
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void BandPane::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Left && event->key() != Qt::Key_Right) {
        QWidget::keyPressEvent(event);
        return;
    }
    const int direction = event->key() == Qt::Key_Left ? -1 : 1;
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        m_visibleBand->pan(direction * panShare * (m_visibleBand->high() - m_visibleBand->low()));
    else
        m_visibleBand->stepCursor(event->modifiers().testFlag(Qt::ControlModifier)
                                      ? direction * fastCursorPixels
                                      : direction,
                                  width());
}

void BandPane::mousePressEvent(QMouseEvent* event)
{
    m_pressedAt = event->position().toPoint();
    m_draggedTo = m_pressedAt;
    if (event->button() == Qt::LeftButton)
        m_drag = Drag::Undecided;
    else if (event->button() == Qt::RightButton)
        m_drag = Drag::Zoom;
    else if (event->button() == Qt::MiddleButton)
        m_visibleBand->showAll();
}

void BandPane::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    if (m_drag == Drag::None)
        m_visibleBand->setCursor(frequencyAt(event->position().x()));
    if (m_drag == Drag::Undecided &&
        (position - m_pressedAt).manhattanLength() >= QApplication::startDragDistance())
        m_drag = Drag::Pan;
    if (m_drag == Drag::Pan) {
        m_visibleBand->pan(frequencyAt(m_draggedTo.x()) - frequencyAt(position.x()));
        m_draggedTo = position;
    }
    if (m_drag == Drag::Zoom) {
        const int left = std::min({m_pressedAt.x(), m_draggedTo.x(), position.x()});
        const int right = std::max({m_pressedAt.x(), m_draggedTo.x(), position.x()});
        m_draggedTo = position;
        update(left - 1, 0, right - left + 3, height());
    }
}

void BandPane::mouseReleaseEvent(QMouseEvent* event)
{
    const Drag drag = std::exchange(m_drag, Drag::None);
    if (drag == Drag::Undecided && event->button() == Qt::LeftButton)
        togglePin(event->position().x());
    if (drag == Drag::Zoom && event->button() == Qt::RightButton) {
        if (std::abs(m_draggedTo.x() - m_pressedAt.x()) >= QApplication::startDragDistance())
            m_visibleBand->setVisible(frequencyAt(m_pressedAt.x()), frequencyAt(m_draggedTo.x()));
        update();
    }
}

void BandPane::togglePin(double x)
{
    const double hertz = frequencyAt(x);
    if (!m_visibleBand->removePinNear(
            hertz, pinReach * (m_visibleBand->high() - m_visibleBand->low()) / width()))
        m_visibleBand->addPin(hertz);
}

void BandPane::wheelEvent(QWheelEvent* event)
{
    const QPointF steps = QPointF(event->angleDelta()) / wheelStep;
    if (steps.y() != 0)
        m_visibleBand->zoom(std::pow(zoomPerWheelStep, steps.y()),
                            frequencyAt(event->position().x()));
    if (steps.x() != 0)
        m_visibleBand->pan(-steps.x() * panShare * (m_visibleBand->high() - m_visibleBand->low()));
    event->accept();
}

void BandPane::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void BandPane::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace RadioPanes
