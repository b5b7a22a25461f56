// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/core/axisticks.h>
#include <radiopanes/radiopanes_export.h>

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace RadioPanes {

class FrequencyAxisPrivate;
class FrequencyText;
class SideAxisPrivate;
class VisibleBand;

/// The frequencies below the spectrum and above the waterfall. Labels stand below their ticks; the
/// unit stands at the left, below the level axis, so that it never meets a label.
class RADIOPANES_EXPORT FrequencyAxis : public QWidget
{
    Q_OBJECT
public:
    /// `view` and `text` must outlive the axis. The scale begins `indent` pixels from the left.
    FrequencyAxis(const VisibleBand* view, const FrequencyText* text, int indent, QWidget* parent);
    ~FrequencyAxis() override;

    /// The ticks of the visible range on `pixels` pixels; for the grid of the panes too.
    const std::vector<AxisTick>& ticks(int pixels) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<FrequencyAxisPrivate> d;
};

/// The scale at the left of a pane, from bottom to top: levels, or the times of sweeps. Its owner
/// supplies the ticks, and decides what dragging and the wheel do.
class RADIOPANES_EXPORT SideAxis : public QWidget
{
    Q_OBJECT
public:
    /// Makes the ticks for a scale of so many pixels.
    using Ticks = std::function<std::vector<AxisTick>(int pixels)>;

    /// `caption` stands in the upper corner; may be empty.
    SideAxis(const QString& caption, Ticks ticks, QWidget* parent);
    ~SideAxis() override;

    /// The ticks of a scale of so many pixels.
    std::vector<AxisTick> ticks(int pixels) const;
    /// Wide enough for a time of day and for levels.
    static int preferredWidth(const QWidget& widget);
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The mouse has dragged the scale by so many pixels upwards.
    void dragged(int pixels);
    /// The wheel has turned by so many notches, away from the user above 0.
    void wheelTurned(int notches);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    std::unique_ptr<SideAxisPrivate> d;
};

} // namespace RadioPanes
