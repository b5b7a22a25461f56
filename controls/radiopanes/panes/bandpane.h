// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <QWidget>

#include <memory>
#include <optional>

class QPainter;

namespace RadioPanes {

class BandPanePrivate;
class VisibleBand;

/// A pane with the shared frequencies from its left to its right edge. It turns the mouse and the
/// keys into zoom, cursor and pins of the view, and draws the cursor and the pins on top.
///
/// Mouse: moving sets the cursor, a click sets or removes a pin, a double click names it, dragging
/// moves a pin or the view, dragging with the right button zooms to the part dragged over, a click
/// with it asks for a menu, the middle button shows the whole band, the wheel zooms. Keys: left and
/// right move the cursor (with Control ten times as far, with Shift the view), F2 names the pin at
/// the cursor. All other keys are left to the window.
class RADIOPANES_EXPORT BandPane : public QWidget
{
    Q_OBJECT
public:
    /// The view is not owned and must outlive the pane.
    BandPane(VisibleBand* view, QWidget* parent);
    ~BandPane() override;

    /// What the pane was made with.
    VisibleBand& visibleBand() const;
    /// Pixels between a click and a pin that still hit it.
    static constexpr int pinReach = 5;

    /// The number of the pin there, within reach.
    std::optional<std::size_t> pinAt(double x) const;
    /// Lets the user name the pin: in an input field beside it, which takes the name over with
    /// Return or when it loses the focus, but not with Escape.
    void editPinName(std::size_t number);

    /// From pixels of the pane to hertz, and back.
    double frequencyAt(double x) const;
    double positionOf(double hertz) const;
    /// The width of so many pixels.
    double hertzOf(double pixels) const;

    /// Whether pins that are set or dragged snap to what snappedAt() finds. Not at first; holding
    /// Control turns it over.
    void setSnapping(bool on);
    bool isSnapping() const;
    /// Where a pin at the frequency snaps to; the frequency itself where there is nothing.
    virtual double snapped(double hertz) const;
    /// Where a pin snaps to that is set or dragged to this place of the pane: for panes that show
    /// one sweep, snapped() of the frequency there.
    virtual double snappedAt(const QPointF& place) const;

    /// Whether the pane explains its colours in a corner. At first a spectrum does, where more than
    /// one trace is visible; a waterfall does not, whose legend is a bar from its lowest to its
    /// highest level.
    void setLegendVisible(bool visible);
    bool isLegendVisible() const;

Q_SIGNALS:
    /// The right button was clicked, or the menu key pressed, at this place of the screen.
    void menuRequested(QPoint globalPosition);
    /// The user's choices for the pane have changed: snapping, the legend, traces, bandwidths, the
    /// colour map or the zoom in time.
    void optionsChanged();

protected:
    /// Cursor, pins, zoom rectangle and focus frame; to be called at the end of paintEvent().
    void paintOverlay(QPainter& painter);

    /// The pane is being dragged by so many pixels: moves the view. Panes with a vertical scale of
    /// their own move that when the drag began up- or downwards.
    virtual void dragged(const QPoint& change, Qt::Orientation begun);

    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void followCursor();
    void updateAround(double hertz);
    void togglePin(double x, Qt::KeyboardModifiers modifiers);

    std::unique_ptr<BandPanePrivate> d;
};

} // namespace RadioPanes
