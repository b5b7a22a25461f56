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

class BandPanesPrivate;
class SpectrumPane;
class WaterfallPane;

/// A spectrum with its axes and, below it, the waterfall of the same frequencies. Whoever has the
/// levels gives them to both panes; LevelPanes keeps them itself.
///
/// Colours, frequency unit and time zone follow the services object. Dragging the level axis moves
/// the reference level, its wheel changes the dB of a division. A click with the right button shows
/// a menu with what fillMenu() adds.
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
    /// Parts the spectrum from the waterfall.
    Splitter* splitter() const;
    /// The waterfall with its axis.
    QWidget* waterfallRow() const;

    /// Adds entries for the traces, the pins, the legends and the colour maps as they are now. The
    /// menu owns them.
    virtual void fillMenu(QMenu* menu);

public Q_SLOTS:
    /// The frequency resolution or the time format has changed.
    void refreshTexts();
    /// To be called when the waterfall has another newest line.
    void refreshTimes();

private:
    void buildLayout();
    void showMenu(QPoint globalPosition);
    void refreshColors();
    void updateAll();

    std::unique_ptr<BandPanesPrivate> d;
};

} // namespace RadioPanes
