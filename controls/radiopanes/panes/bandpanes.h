// SPDX-License-Identifier: MIT
#pragma once

#include "frequencytext.h"
#include "visibleband.h"

#include <radiopanes/radiopanes_export.h>

#include <QWidget>

#include <memory>

class QMenu;
class Splitter;

namespace RadioPanes {

class BandPane;
class BandPanesPrivate;
class BandPlan;
class LevelPyramid;
class OverviewPane;
class SpectrumPane;
class SweepHistory;
class WaterfallPane;

/// A spectrum with its axes, below it the waterfall of the same frequencies, and at the bottom the
/// overview of all sweeps. Whoever has the levels gives them to the panes; LevelPanes keeps them
/// itself.
///
/// Colours, frequency unit and time zone follow the services object. Dragging the level axis moves
/// the reference level, its wheel changes the dB of a division; dragging the time axis scrolls, its
/// wheel zooms in time. A click with the right button shows a menu with what fillMenu() adds.
class RADIOPANES_EXPORT BandPanes : public QWidget
{
    Q_OBJECT
public:
    /// The splitter keeps its positions under `splitterName` in the group `splitterGroup` of the
    /// configuration; without names they are not kept.
    explicit BandPanes(const QString& splitterName = {}, const QString& splitterGroup = {},
                       QWidget* parent = nullptr);
    ~BandPanes() override;

    /// The parts. Owned by this object.
    VisibleBand& visibleBand() const;
    SpectrumPane& spectrum() const;
    WaterfallPane& waterfall() const;
    /// Owned by the panes, as the others.
    OverviewPane& overview() const;
    /// The history of waterfall and overview; null for none.
    void setHistory(std::shared_ptr<const SweepHistory> history);
    /// Makes the sweep the current one in both, see WaterfallPane::setPosition().
    void setPosition(qsizetype position, std::shared_ptr<const LevelPyramid> pyramid = {});
    /// To be called when the history has grown, whatever the current sweep is.
    void historyGrown();
    /// Visible at first.
    void setOverviewVisible(bool visible);
    bool isOverviewVisible() const;
    /// The rows above the frequencies: the services that share the band, and what the user wants to
    /// find again. Both empty at first.
    void setBandPlan(const BandPlan& plan);
    /// As set last.
    const BandPlan& bandPlan() const;
    void setBookmarks(const BandPlan& bookmarks);
    /// As set last, by whomever.
    const BandPlan& bookmarks() const;
    /// Without a name the frequency, as text, is the name.
    void addBookmark(double hertz, const QString& name = {});
    /// In the spectrum and the waterfall, see BandPane::setSnapping().
    void setSnapping(bool on);
    /// Parts the spectrum from the waterfall.
    Splitter* splitter() const;
    /// The waterfall with its axis.
    QWidget* waterfallRow() const;

    /// Adds entries for the traces, the pins, the legends and the colour maps as they are now. The
    /// menu owns them.
    virtual void fillMenu(QMenu* menu);

Q_SIGNALS:
    /// The user wants this sweep of the history to be the current one.
    void jumpRequested(qsizetype sweep);
    /// The bookmarks are others; set, named or removed.
    void bookmarksChanged();
    /// See setOverviewVisible().
    void overviewVisibleChanged(bool visible);

public Q_SLOTS:
    /// The frequency resolution or the time format has changed.
    void refreshTexts();

private:
    void refreshTimes();
    void buildLayout();
    void connectTimes();
    void requestJump(qsizetype sweep);
    void showMenu(BandPane* pane, QPoint globalPosition);
    void addPinEntries(QMenu* menu, BandPane* pane, std::size_t pin, int y);
    void addTimeEntries(QMenu* menu, qsizetype sweep);
    void refreshColors();
    void updateAll();

    std::unique_ptr<BandPanesPrivate> d;
};

} // namespace RadioPanes
