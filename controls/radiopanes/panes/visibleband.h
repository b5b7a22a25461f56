// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/core/axisticks.h>
#include <radiopanes/radiopanes_export.h>

#include <QObject>

#include <vector>

namespace RadioPanes {

/// The part of the band that all panes show, the cursor on it and the pins set by the user. The
/// panes share one such object, so that zooming or moving the cursor in one of them shows in all.
/// All frequencies in hertz.
class RADIOPANES_EXPORT VisibleBand : public QObject
{
    Q_OBJECT
public:
    explicit VisibleBand(QObject* parent = nullptr);
    ~VisibleBand() override;

    /// The whole band; shows all of it, puts the cursor in its middle and removes the pins.
    /// `resolution` is the distance of two bins: no view is narrower than a few of them.
    void setBand(double low, double high, double resolution);
    double bandLow() const { return m_bandLow; }
    double bandHigh() const { return m_bandHigh; }

    double low() const { return m_low; }
    double high() const { return m_high; }
    AxisRange range(int pixels) const { return {m_low, m_high, pixels}; }
    bool showsAll() const;

    /// Narrows the view by `factor` (widens it below 1); `anchor` keeps its place on the screen.
    void zoom(double factor, double anchor);
    /// Zooms around the cursor, or the middle when the cursor is out of the view.
    void zoomAtCursor(double factor);
    /// Shows the range, cut to the band; ends in the wrong order are swapped.
    void setVisible(double low, double high);
    void pan(double hertz);
    void showAll();

    double cursor() const { return m_cursor; }
    /// Cut to the band.
    void setCursor(double hertz);
    /// Moves the cursor by `pixels` of a pane that is `width` pixels wide; the view follows it.
    void stepCursor(int pixels, int width);

    /// In the order in which they were set.
    const std::vector<double>& pins() const { return m_pins; }
    void addPin(double hertz);
    /// Removes the pin nearest to `hertz` that is at most `reach` away; false when there is none.
    bool removePinNear(double hertz, double reach);
    void clearPins();

Q_SIGNALS:
    /// low() or high() is another one.
    void rangeChanged();
    /// cursor() is at another frequency.
    void cursorChanged();
    /// Pins were set or removed.
    void pinsChanged();

private:
    double m_bandLow = 0;
    double m_bandHigh = 1;
    double m_low = 0;
    double m_high = 1;
    double m_smallestSpan = 1;
    double m_cursor = 0.5;
    std::vector<double> m_pins;
};

} // namespace RadioPanes
