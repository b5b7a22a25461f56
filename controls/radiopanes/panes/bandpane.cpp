// SPDX-License-Identifier: MIT
#include "bandpane.h"

#include "namefield_p.h"
#include "panepainter_p.h"
#include "visibleband.h"

#include <radiopanes/colors/panecolors.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace RadioPanes {

namespace {
constexpr double zoomPerWheelStep = 1.25;
constexpr int fastCursorPixels = 10;
constexpr double panShare = 0.1; // of the visible range, per key press

/// Of the line at the frequency: what is just outside the pane is shown at its edge.
std::optional<int> lineColumn(const BandPane& pane, double hertz)
{
    const double x = std::floor(pane.positionOf(hertz));
    if (!(x >= -1 && x <= pane.width()))
        return std::nullopt;
    return std::clamp(static_cast<int>(x), 0, std::max(pane.width() - 1, 0));
}

} // namespace

class BandPanePrivate
{
public:
    enum class Drag { None, Undecided, Pin, Pan, Zoom };

    VisibleBand* visibleBand = nullptr;
    double paintedCursor = 0;
    bool isSnapping = false;
    bool isLegendVisible = true;
    Drag drag = Drag::None;
    std::optional<std::size_t> pressedPin;
    double removedHertz = 0; ///< Of the pin that was clicked: it goes when the timer ends.
    QTimer removal;
    QPoint pressedAt;
    QPoint draggedTo;
    Qt::Orientation dragBegun = Qt::Horizontal;

    void removeClickedPin() { visibleBand->removePinNear(removedHertz, 0); }
    /// Control turns snapping over.
    bool snaps(Qt::KeyboardModifiers modifiers) const
    {
        return isSnapping != modifiers.testFlag(Qt::ControlModifier);
    }
};

using Drag = BandPanePrivate::Drag;

BandPane::BandPane(VisibleBand* view, QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<BandPanePrivate>())
{
    d->visibleBand = view;
    d->paintedCursor = view->cursor();
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
    d->removal.setSingleShot(true);
    connect(&d->removal, &QTimer::timeout, this, [this] { d->removeClickedPin(); });
    connect(d->visibleBand, &VisibleBand::cursorChanged, this, &BandPane::followCursor);
    connect(d->visibleBand, &VisibleBand::pinsChanged, this, qOverload<>(&QWidget::update));
}

BandPane::~BandPane() = default;

VisibleBand& BandPane::visibleBand() const
{
    return *d->visibleBand;
}

double BandPane::hertzOf(double pixels) const
{
    return pixels * (d->visibleBand->high() - d->visibleBand->low()) / std::max(width(), 1);
}

void BandPane::setSnapping(bool on)
{
    if (std::exchange(d->isSnapping, on) != on)
        Q_EMIT optionsChanged();
}

bool BandPane::isSnapping() const
{
    return d->isSnapping;
}

void BandPane::setLegendVisible(bool visible)
{
    if (std::exchange(d->isLegendVisible, visible) == visible)
        return;
    update();
    Q_EMIT optionsChanged();
}

bool BandPane::isLegendVisible() const
{
    return d->isLegendVisible;
}

double BandPane::snapped(double hertz) const
{
    return hertz;
}

double BandPane::snappedAt(const QPointF& place) const
{
    return snapped(frequencyAt(place.x()));
}

double BandPane::frequencyAt(double x) const
{
    return d->visibleBand->range(std::max(width(), 1)).valueAt(x);
}

double BandPane::positionOf(double hertz) const
{
    return d->visibleBand->range(std::max(width(), 1)).positionOf(hertz);
}

void BandPane::followCursor()
{
    updateAround(d->paintedCursor);
    d->paintedCursor = d->visibleBand->cursor();
    updateAround(d->paintedCursor);
}

/// Repaints the line and its neighbours: in a scaled window it may reach into them.
void BandPane::updateAround(double hertz)
{
    if (const std::optional<int> column = lineColumn(*this, hertz))
        update(*column - 1, 0, 3, height());
}

void BandPane::paintOverlay(QPainter& painter)
{
    const auto verticalLine = [&](double hertz, const QColor& color, Qt::PenStyle style) {
        const std::optional<int> column = lineColumn(*this, hertz);
        if (!column)
            return;
        painter.setPen(QPen(color, 1, style));
        painter.drawLine(*column, 0, *column, height() - 1);
    };
    for (const Pin& pin : d->visibleBand->pins())
        verticalLine(pin.hertz, paneColor(PaneSlot::Pin), Qt::DashLine);
    if (d->visibleBand->hasBand())
        verticalLine(d->visibleBand->cursor(), paneColor(PaneSlot::Cursor), Qt::SolidLine);
    if (d->drag == Drag::Zoom) {
        QColor fill = paneColor(PaneSlot::Cursor);
        fill.setAlphaF(0.25F);
        const int left = std::min(d->pressedAt.x(), d->draggedTo.x());
        painter.fillRect(left, 0, std::abs(d->draggedTo.x() - d->pressedAt.x()), height(), fill);
    }
    paintFocusFrame(painter, *this);
}

void BandPane::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F2) {
        if (const auto number = pinAt(positionOf(d->visibleBand->cursor())))
            editPinName(*number);
        return;
    }
    if (event->key() != Qt::Key_Left && event->key() != Qt::Key_Right) {
        QWidget::keyPressEvent(event);
        return;
    }
    const int direction = event->key() == Qt::Key_Left ? -1 : 1;
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        d->visibleBand->pan(direction * panShare *
                            (d->visibleBand->high() - d->visibleBand->low()));
    else
        d->visibleBand->stepCursor(event->modifiers().testFlag(Qt::ControlModifier)
                                       ? direction * fastCursorPixels
                                       : direction,
                                   width());
}

void BandPane::mousePressEvent(QMouseEvent* event)
{
    d->pressedAt = event->position().toPoint();
    d->draggedTo = d->pressedAt;
    d->pressedPin.reset();
    if (event->button() == Qt::LeftButton) {
        d->drag = Drag::Undecided;
        d->pressedPin = pinAt(event->position().x());
    } else if (event->button() == Qt::RightButton)
        d->drag = Drag::Zoom;
    else if (event->button() == Qt::MiddleButton)
        d->visibleBand->showAll();
}

void BandPane::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    if (d->drag == Drag::None)
        d->visibleBand->setCursor(frequencyAt(event->position().x()));
    const QPoint way = position - d->pressedAt;
    if (d->drag == Drag::Undecided && way.manhattanLength() >= QApplication::startDragDistance()) {
        d->drag = d->pressedPin ? Drag::Pin : Drag::Pan;
        d->dragBegun = std::abs(way.y()) > std::abs(way.x()) ? Qt::Vertical : Qt::Horizontal;
    }
    if (d->drag == Drag::Pin) {
        d->visibleBand->movePin(*d->pressedPin, d->snaps(event->modifiers())
                                                    ? snappedAt(event->position())
                                                    : frequencyAt(event->position().x()));
    }
    if (d->drag == Drag::Pan) {
        dragged(position - d->draggedTo, d->dragBegun);
        d->draggedTo = position;
    }
    if (d->drag == Drag::Zoom) {
        const int left = std::min({d->pressedAt.x(), d->draggedTo.x(), position.x()});
        const int right = std::max({d->pressedAt.x(), d->draggedTo.x(), position.x()});
        d->draggedTo = position;
        update(left - 1, 0, right - left + 3, height());
    }
}

void BandPane::dragged(const QPoint& change, Qt::Orientation)
{
    d->visibleBand->pan(-hertzOf(change.x()));
}

void BandPane::mouseReleaseEvent(QMouseEvent* event)
{
    const Drag drag = std::exchange(d->drag, Drag::None);
    if (drag == Drag::Undecided && event->button() == Qt::LeftButton)
        togglePin(event->position().x(), event->modifiers());
    if (drag == Drag::Zoom && event->button() == Qt::RightButton) {
        if (std::abs(d->draggedTo.x() - d->pressedAt.x()) >= QApplication::startDragDistance())
            d->visibleBand->setVisible(frequencyAt(d->pressedAt.x()),
                                       frequencyAt(d->draggedTo.x()));
        else
            Q_EMIT menuRequested(event->globalPosition().toPoint());
        update();
    }
}

/// With the mouse the menu comes when the button is released: a drag zooms.
void BandPane::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuRequested(event->globalPos());
}

void BandPane::togglePin(double x, Qt::KeyboardModifiers modifiers)
{
    const std::optional<std::size_t> number = pinAt(x);
    if (!number) {
        const QPointF place(x, d->pressedAt.y());
        d->visibleBand->addPin(d->snaps(modifiers) ? snappedAt(place) : frequencyAt(x));
        return;
    }
    // It stays until it is clear that no double click follows.
    const double hertz = d->visibleBand->pins()[*number].hertz;
    if (d->removal.isActive() && hertz != d->removedHertz)
        d->removeClickedPin();
    d->removedHertz = hertz;
    d->removal.start(QApplication::doubleClickInterval());
}

void BandPane::mouseDoubleClickEvent(QMouseEvent* event)
{
    const std::optional<std::size_t> number = pinAt(event->position().x());
    if (event->button() != Qt::LeftButton || !number)
        return mousePressEvent(event);
    d->removal.stop();
    editPinName(*number);
}

std::optional<std::size_t> BandPane::pinAt(double x) const
{
    return d->visibleBand->pinNear(frequencyAt(x), hertzOf(pinReach));
}

void BandPane::editPinName(std::size_t number)
{
    const std::vector<Pin>& pins = d->visibleBand->pins();
    if (number >= pins.size())
        return;
    // Other pins may come or go meanwhile.
    const auto name = [band = d->visibleBand, pin = pins[number]](const QString& text) {
        const auto found = std::ranges::find(band->pins(), pin);
        band->namePin(static_cast<std::size_t>(found - band->pins().begin()), text);
    };
    auto* field = new NameField(pins[number].name, name, this);
    field->showAt(
        {static_cast<int>(positionOf(pins[number].hertz)) + 1, height() - 2 * field->height()});
}

void BandPane::wheelEvent(QWheelEvent* event)
{
    const QPointF steps = QPointF(event->angleDelta()) / QWheelEvent::DefaultDeltasPerStep;
    if (steps.y() != 0)
        d->visibleBand->zoom(std::pow(zoomPerWheelStep, steps.y()),
                             frequencyAt(event->position().x()));
    if (steps.x() != 0)
        d->visibleBand->pan(-steps.x() * panShare *
                            (d->visibleBand->high() - d->visibleBand->low()));
    event->accept();
}

} // namespace RadioPanes
