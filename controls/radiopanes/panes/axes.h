// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/core/axisticks.h>
#include <radiopanes/radiopanes_export.h>

#include <QWidget>

#include <functional>

namespace RadioPanes {

class FrequencyText;
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
    const VisibleBand* m_visibleBand;
    /// What the ticks were worked out for: the axis and the panes ask with every painting.
    struct TicksKey
    {
        AxisRange range;
        QString unit;
        double resolution = 0;
        QFont font;

        bool operator==(const TicksKey&) const = default;
    };

    const FrequencyText* m_text;
    int m_indent;
    mutable TicksKey m_ticksKey;
    mutable std::vector<AxisTick> m_ticks;
};

/// The scale at the left of a pane, from bottom to top: levels, or the times of sweeps. Its owner
/// supplies the ticks.
class RADIOPANES_EXPORT SideAxis : public QWidget
{
    Q_OBJECT
public:
    using Ticks = std::function<std::vector<AxisTick>(int pixels)>;

    /// `caption` stands in the upper corner; may be empty.
    SideAxis(const QString& caption, Ticks ticks, QWidget* parent);
    ~SideAxis() override;

    /// Wide enough for a time of day and for levels.
    static int preferredWidth(const QWidget& widget);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_caption;
    Ticks m_ticks;
};

} // namespace RadioPanes
