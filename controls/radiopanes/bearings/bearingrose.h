// SPDX-License-Identifier: MIT
#pragma once

#include "bearing.h"

#include <radiopanes/radiopanes_export.h>

#include <QWidget>

#include <memory>
#include <span>

namespace RadioPanes {

class BearingRosePrivate;

/// A compass rose with a line per signal from the receiver in the centre, as wide as the spread of
/// its bearing, in the colour of its type; signals that are not there at present are dotted.
///
/// North up the scale counts from north; heading up it counts to starboard and to portside, in the
/// colours that the colour set has for relative bearings.
///
/// Mouse: a click on a line chooses the signal. Keys: the arrows select the next signal, clockwise
/// to the right and downwards; Home and End the first and the last one from the top; Return, Enter
/// and Space choose the selected one.
class RADIOPANES_EXPORT BearingRose : public QWidget
{
    Q_OBJECT
public:
    explicit BearingRose(QWidget* parent = nullptr);
    ~BearingRose() override;

    /// Shows these bearings in the place of the former ones; copies them. A selected signal that is
    /// not among them any more is selected no longer.
    void setBearings(std::span<const Bearing> bearings);

    /// In degrees clockwise from north; any angle.
    void setHeading(double degrees);
    double heading() const;
    void setHeadingUp(bool on);
    bool isHeadingUp() const;

    /// The number of the selected signal; 0 for none.
    std::uint32_t selected() const;
    /// Nothing happens when the signal has no bearing; 0 selects none.
    void select(std::uint32_t id);
    /// The signal whose line is at the point, or nearest to it within a few pixels; 0 for none.
    std::uint32_t signalAt(QPointF point) const;
    /// Where the line of a bearing ends, in pixels.
    QPointF lineEnd(double bearing) const;
    /// Frequency, bearing and spread of the signal and where it is seen from the bow.
    QString textOf(const Bearing& bearing) const;
    QString selectedText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Unit, resolution or colours have changed.
    void refreshTexts();

Q_SIGNALS:
    /// The selected signal, its values or the heading have changed.
    void selectionShown();
    /// The user has chosen the signal at this frequency, in hertz.
    void signalChosen(double hertz);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void showChange();
    void selectStep(int step);
    void choose(std::uint32_t id);

    std::unique_ptr<BearingRosePrivate> d;
};

} // namespace RadioPanes
