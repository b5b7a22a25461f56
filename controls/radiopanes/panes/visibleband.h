// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/core/axisticks.h>
#include <radiopanes/radiopanes_export.h>

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace RadioPanes {

class VisibleBandPrivate;

/// A frequency that the user has marked.
struct Pin
{
    double hertz = 0; ///< Its place in the band.
    QString name;     ///< One line; empty as long as nobody has named it.

    bool operator==(const Pin&) const = default;
};

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
    /// Frequencies may be negative, as in baseband. An empty range, or one that is not finite,
    /// changes nothing.
    void setBand(double low, double high, double resolution);
    /// False until setBand() has set one; the panes show no cursor then.
    bool hasBand() const;
    double bandLow() const;
    double bandHigh() const;

    /// What is visible of the band.
    double low() const;
    double high() const;
    AxisRange range(int pixels) const;
    bool showsAll() const;

    /// Narrows the view by `factor` (widens it below 1); `anchor` keeps its place on the screen.
    void zoom(double factor, double anchor);
    /// Zooms around the cursor, or the middle when the cursor is out of the view.
    void zoomAtCursor(double factor);
    /// Shows the range, cut to the band; ends in the wrong order are swapped.
    void setVisible(double low, double high);
    void pan(double hertz);
    void showAll();

    /// Always within the band.
    double cursor() const;
    /// Cut to the band.
    void setCursor(double hertz);
    /// Moves the cursor by `pixels` of a pane that is `width` pixels wide; the view follows it.
    void stepCursor(int pixels, int width);

    /// Puts the cursor there, and moves the view when it does not show the frequency.
    void showAt(double hertz);

    /// In the order in which they were set.
    const std::vector<Pin>& pins() const;
    /// Cut to the band, as soon as there is one. Beyond 16 pins the oldest one goes.
    void addPin(double hertz);
    void addPin(double hertz, const QString& name);
    /// The number of the pin nearest to `hertz` that is at most `reach` away; nothing for none.
    std::optional<std::size_t> pinNear(double hertz, double reach) const;
    /// Cut to the band. Nothing happens when there is no such pin.
    void movePin(std::size_t number, double hertz);
    /// Cut to one line of 40 characters. Nothing happens when there is no such pin.
    void namePin(std::size_t number, const QString& name);
    /// Nothing happens when there is no such pin.
    void removePin(std::size_t number);
    /// Removes the pin nearest to `hertz` that is at most `reach` away; false when there is none.
    bool removePinNear(double hertz, double reach);
    void clearPins();

Q_SIGNALS:
    /// low() or high() is another one.
    void rangeChanged();
    /// cursor() is at another frequency.
    void cursorChanged();
    /// Pins were set, moved, named or removed.
    void pinsChanged();

private:
    std::unique_ptr<VisibleBandPrivate> d;
};

} // namespace RadioPanes
