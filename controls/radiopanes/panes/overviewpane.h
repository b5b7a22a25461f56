// SPDX-License-Identifier: MIT
#pragma once

#include "historyplace.h"

#include <radiopanes/colors/levelcolors.h>
#include <radiopanes/core/sweep.h>
#include <radiopanes/radiopanes_export.h>

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace RadioPanes {

class OverviewPanePrivate;

/// All sweeps of a history in one strip: time from left to right, frequencies from bottom to top,
/// with a cursor at the current sweep. It reads each sweep once, in slices where there are many,
/// and keeps what it shows in bounded memory. Sweeps that the history gives up leave it at the
/// left.
///
/// A click, or dragging, asks for another sweep. Keys: left and right, page up and page down, end.
class RADIOPANES_EXPORT OverviewPane : public QWidget
{
    Q_OBJECT
public:
    /// Shows nothing as long as it has no history.
    explicit OverviewPane(QWidget* parent = nullptr);
    ~OverviewPane() override;

    /// Begins anew with this history; null for none.
    void setHistory(std::shared_ptr<const SweepHistory> history);
    /// To be called when the history has grown, at the latest before it gives up sweeps that have
    /// come since the last call.
    void takeSweeps();
    /// How many sweeps were read.
    qsizetype takenSweeps() const;
    /// Where the cursor stands; -1 for none.
    void setPosition(qsizetype sweep);
    /// The sweeps that the waterfall shows are framed; -1 for none.
    void setShownSweeps(qsizetype first, qsizetype last);
    void setLevelColors(const LevelColors& colors);
    /// Makes the text of the place below the mouse pointer; none at first.
    void setPlaceText(PlaceText text);
    /// Makes the text of a time, for the oldest and the newest sweep; none at first.
    void setTimeText(std::function<QString(quint64 timeUs)> text);

    /// The sweep in the column of pixels, of those in the history; -1 without any.
    qsizetype sweepAt(int x) const;
    /// The column of pixels where the sweep begins.
    int positionOf(qsizetype sweep) const;
    /// What is shown there; nothing without sweeps.
    std::optional<HistoryPlace> placeAt(const QPoint& position) const;

    QSize sizeHint() const override { return {960, 56}; }
    QSize minimumSizeHint() const override { return {240, 32}; }

Q_SIGNALS:
    /// The user wants this sweep to be the current one.
    void jumpRequested(qsizetype sweep);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void readSlice();
    void jumpTo(qsizetype sweep);

    std::unique_ptr<OverviewPanePrivate> d;
};

} // namespace RadioPanes
