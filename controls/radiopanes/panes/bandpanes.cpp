// SPDX-License-Identifier: MIT
#include "bandpanes.h"

#include "axes.h"
#include "bandplanrow.h"
#include "overviewpane.h"
#include "spectrumpane.h"
#include "waterfallpane.h"

#include <guibase/services/guibase.h>
#include <guibase/splitters/splitter.h>

#include <valueframework/valuefollower.h>
#include <valueframework/valueselection.h>

#include <QActionGroup>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>

namespace RadioPanes {

class BandPanesPrivate
{
public:
    /// With texts that are as fine as it takes to tell them apart, where that is possible.
    std::vector<AxisTick> timeTicks(int pixels) const;

    VisibleBand visibleBand;
    FrequencyText text;
    Splitter* splitter = nullptr;
    QWidget* waterfallRow = nullptr;
    SideAxis* levelAxis = nullptr;
    SpectrumPane* spectrum = nullptr;
    BandPlanRow* bandPlan = nullptr;
    BandPlanRow* bookmarks = nullptr;
    FrequencyAxis* frequencyAxis = nullptr;
    SideAxis* timeAxis = nullptr;
    WaterfallPane* waterfall = nullptr;
    bool hasDates = false; ///< The time axis.
    QWidget* overviewRow = nullptr;
    OverviewPane* overview = nullptr;
    std::unique_ptr<ValueFollower> unitFollower;
    std::unique_ptr<ValueFollower> zoneFollower;
};

std::vector<AxisTick> BandPanesPrivate::timeTicks(int pixels) const
{
    const auto ticksIn = [this, pixels](const QString& format) {
        return waterfall->timeTicks(pixels, [&format](quint64 timeUs) {
            return GuiBase::Instance().TimeString(timeUs, format);
        });
    };
    if (waterfall->isLongerThanADay())
        return ticksIn(QStringLiteral("MM-dd\nhh:mm"));
    const auto haveOneText = [](const std::vector<AxisTick>& ticks) {
        return std::ranges::adjacent_find(ticks, {}, &AxisTick::label) != ticks.end();
    };
    std::vector<AxisTick> ticks = ticksIn(QStringLiteral("hh:mm:ss"));
    if (!haveOneText(ticks))
        return ticks;
    std::vector<AxisTick> fine = ticksIn(QStringLiteral("mm:ss.zzz"));
    return haveOneText(fine) ? ticks : fine;
}

BandPanes::BandPanes(const QString& splitterName, const QString& splitterGroup, QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<BandPanesPrivate>())
{
    // Frequencies grow to the right in every language.
    setLayoutDirection(Qt::LeftToRight);
    d->splitter = splitterName.isEmpty()
                      ? new Splitter(Qt::Vertical, this)
                      : new Splitter(Qt::Vertical, this, splitterName, splitterGroup);
    const int indent = SideAxis::preferredWidth(*this);
    d->bandPlan = new BandPlanRow(tr("Plan"), &d->visibleBand, &d->text, indent, this);
    d->bookmarks = new BandPlanRow(tr("Marks"), &d->visibleBand, &d->text, indent, this);
    d->bookmarks->setEditable(true);
    d->frequencyAxis = new FrequencyAxis(&d->visibleBand, &d->text, indent, this);
    d->spectrum = new SpectrumPane(
        &d->visibleBand, &d->text, [this](int pixels) { return d->frequencyAxis->ticks(pixels); },
        this);
    d->waterfall = new WaterfallPane(&d->visibleBand, this);
    d->levelAxis = new SideAxis(
        tr("dB"), [this](int pixels) { return d->spectrum->levelTicks(pixels); }, this);
    d->timeAxis = new SideAxis(
        QString(), [this](int pixels) { return d->timeTicks(pixels); }, this);
    d->overview = new OverviewPane(this);
    buildLayout();
    setFocusProxy(d->spectrum);
    connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, this, &BandPanes::refreshColors);
    for (BandPane* pane :
         {static_cast<BandPane*>(d->spectrum), static_cast<BandPane*>(d->waterfall)})
        connect(pane, &BandPane::menuRequested, this,
                [this, pane](QPoint place) { showMenu(pane, place); });
    connect(d->bookmarks, &BandPlanRow::edited, this, &BandPanes::bookmarksChanged);
    GuiBase& services = GuiBase::Instance();
    const auto refresh = [this] { refreshTexts(); };
    d->unitFollower = std::make_unique<ValueFollower>(services.GetFrequencyUnit(), refresh);
    d->zoneFollower = std::make_unique<ValueFollower>(services.GetTimeZone(), refresh);
    connect(d->spectrum, &SpectrumPane::levelRangeChanged, d->levelAxis,
            qOverload<>(&QWidget::update));
    connect(d->levelAxis, &SideAxis::dragged, d->spectrum, [this](int pixels) {
        d->spectrum->stepReferenceLevel(-static_cast<double>(SpectrumPane::levelDivisions) *
                                        pixels / std::max(d->levelAxis->height(), 1));
    });
    connect(d->levelAxis, &SideAxis::wheelTurned, d->spectrum,
            [this](int notches) { d->spectrum->stepDecibelsPerDivision(-notches); });
    connectTimes();
}

BandPanes::~BandPanes()
{
    // The panes refer to the band and the texts, which would go before them.
    qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
}

void BandPanes::connectTimes()
{
    connect(d->waterfall, &WaterfallPane::timesChanged, this, &BandPanes::refreshTimes);
    connect(d->timeAxis, &SideAxis::dragged, d->waterfall,
            [this](int pixels) { d->waterfall->scrollTimeByPixels(pixels); });
    connect(d->timeAxis, &SideAxis::wheelTurned, d->waterfall,
            [this](int notches) { d->waterfall->zoomTime(notches); });
    const auto takeColors = [this] { d->overview->setLevelColors(d->waterfall->levelColors()); };
    connect(d->waterfall, &WaterfallPane::levelColorsChanged, d->overview, takeColors);
    takeColors();
    connect(d->overview, &OverviewPane::jumpRequested, this, &BandPanes::requestJump);
    const auto timeText = [this](quint64 timeUs) {
        const bool isLong = d->waterfall->isLongerThanADay();
        return GuiBase::Instance().TimeString(timeUs, isLong ? QStringLiteral("yyyy-MM-dd hh:mm:ss")
                                                             : QStringLiteral("hh:mm:ss"));
    };
    const auto placeText = [this, timeText](const HistoryPlace& place) {
        const QString level = place.levelDb
                                  ? QString::number(static_cast<double>(*place.levelDb), 'f', 1) +
                                        QStringLiteral(" dB")
                                  : QStringLiteral("– dB");
        return QStringLiteral("%1  %2  %3")
            .arg(timeText(place.timeUs), d->text.rounded(place.hertz, place.stepHz), level);
    };
    d->waterfall->setPlaceText(placeText);
    d->overview->setPlaceText(placeText);
    d->overview->setTimeText(timeText);
}

void BandPanes::requestJump(qsizetype sweep)
{
    d->waterfall->followNewest(); // so that it shows where the jump leads
    Q_EMIT jumpRequested(sweep);
}

void BandPanes::setHistory(std::shared_ptr<const SweepHistory> history)
{
    d->waterfall->setHistory(history);
    d->overview->setHistory(std::move(history));
}

void BandPanes::setPosition(qsizetype position, std::shared_ptr<const LevelPyramid> pyramid)
{
    historyGrown();
    d->overview->setPosition(position);
    d->waterfall->setPosition(position, std::move(pyramid));
}

void BandPanes::historyGrown()
{
    d->overview->takeSweeps();
    if (const bool isLong = d->waterfall->isLongerThanADay(); isLong != d->hasDates) {
        d->hasDates = isLong;
        d->timeAxis->update();
    }
}

void BandPanes::buildLayout()
{
    const auto makeRow = [](SideAxis* axis, QWidget* pane) {
        auto* row = new QWidget;
        auto* grid = new QGridLayout(row);
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setSpacing(0);
        grid->addWidget(axis, 0, 0);
        grid->addWidget(pane, 0, 1);
        grid->setRowStretch(0, 1);
        grid->setColumnStretch(1, 1);
        return row;
    };
    QWidget* spectrumRow = makeRow(d->levelAxis, d->spectrum);
    auto* spectrumGrid = static_cast<QGridLayout*>(spectrumRow->layout());
    int below = 1;
    for (QWidget* row : {static_cast<QWidget*>(d->bandPlan), static_cast<QWidget*>(d->bookmarks),
                         static_cast<QWidget*>(d->frequencyAxis)})
        spectrumGrid->addWidget(row, below++, 0, 1, 2);
    d->waterfallRow = makeRow(d->timeAxis, d->waterfall);
    d->splitter->setChildrenCollapsible(false);
    d->splitter->addWidget(spectrumRow);
    d->splitter->addWidget(d->waterfallRow);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(d->splitter);
    auto* gutter = new SideAxis(
        QString(), [](int) { return std::vector<AxisTick>(); }, this);
    d->overviewRow = makeRow(gutter, d->overview);
    d->overviewRow->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    gutter->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    column->addWidget(d->overviewRow);
    setTabOrder(d->spectrum, d->waterfall);
    setTabOrder(d->waterfall, d->overview);
}

void BandPanes::fillMenu(QMenu* menu)
{
    const auto addCheck = [this](QMenu* where, const QString& text, bool isChecked, auto toggled) {
        QAction* action = where->addAction(text);
        action->setCheckable(true);
        action->setChecked(isChecked);
        connect(action, &QAction::toggled, this, toggled);
    };
    menu->addSection(tr("Traces"));
    for (int number = 0; number < traceCount; ++number) {
        const auto trace = static_cast<Trace>(number);
        addCheck(menu, SpectrumPane::traceName(trace), d->spectrum->isTraceVisible(trace),
                 [this, trace](bool on) { d->spectrum->setTraceVisible(trace, on); });
    }
    menu->addSection(tr("Pins and cursor"));
    addCheck(menu, tr("Pins snap to peaks"), d->spectrum->isSnapping(),
             [this](bool on) { setSnapping(on); });
    connect(menu->addAction(tr("Bookmark the cursor")), &QAction::triggered, this,
            [this] { addBookmark(d->visibleBand.cursor()); });
    addCheck(menu, tr("Bandwidths at the cursor"), d->spectrum->areWidthsVisible(),
             [this](bool on) { d->spectrum->setWidthsVisible(on); });
    menu->addSection(tr("Picture"));
    addCheck(menu, tr("Legend of the traces"), d->spectrum->isLegendVisible(),
             [this](bool on) { d->spectrum->setLegendVisible(on); });
    addCheck(menu, tr("Legend of the waterfall"), d->waterfall->isLegendVisible(),
             [this](bool on) { d->waterfall->setLegendVisible(on); });
    addCheck(menu, tr("Overview of all sweeps"), isOverviewVisible(),
             [this](bool on) { setOverviewVisible(on); });
    QMenu* maps = menu->addMenu(tr("Colours of the waterfall"));
    auto* group = new QActionGroup(maps);
    for (int number = 0; number < colorMapCount; ++number) {
        const auto map = static_cast<ColorMap>(number);
        addCheck(maps, colorMapName(map), d->waterfall->colorMap() == map, [this, map](bool on) {
            if (on)
                d->waterfall->setColorMap(map);
        });
        group->addAction(maps->actions().constLast());
    }
}

void BandPanes::showMenu(BandPane* pane, QPoint globalPosition)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setLayoutDirection(QGuiApplication::layoutDirection()); // not that of the axes
    const QPoint place = pane->mapFromGlobal(globalPosition);
    if (const std::optional<std::size_t> pin = pane->pinAt(place.x()))
        addPinEntries(menu, pane, *pin, place.y());
    if (pane == d->waterfall)
        addTimeEntries(menu, d->waterfall->sweepAt(place.y()));
    fillMenu(menu);
    menu->popup(globalPosition);
}

void BandPanes::addPinEntries(QMenu* menu, BandPane* pane, std::size_t pin, int y)
{
    // Now: while the menu is open the waterfall may move on.
    const double hertz = d->visibleBand.pins()[pin].hertz;
    const double peak = pane->snappedAt({pane->positionOf(hertz), static_cast<double>(y)});
    menu->addSection(tr("Pin %1").arg(pin + 1));
    connect(menu->addAction(tr("Name…")), &QAction::triggered, pane,
            [pane, pin] { pane->editPinName(pin); });
    connect(menu->addAction(tr("To the peak nearby")), &QAction::triggered, this,
            [this, pin, peak] { d->visibleBand.movePin(pin, peak); });
    connect(menu->addAction(tr("Remove")), &QAction::triggered, this,
            [this, pin] { d->visibleBand.removePin(pin); });
}

void BandPanes::addTimeEntries(QMenu* menu, qsizetype sweep)
{
    menu->addSection(tr("Time"));
    QAction* jump = menu->addAction(tr("Go to this time"));
    jump->setEnabled(sweep >= 0);
    connect(jump, &QAction::triggered, this, [this, sweep] { requestJump(sweep); });
    QAction* follow = menu->addAction(tr("Follow the newest sweep"));
    follow->setEnabled(!d->waterfall->isFollowing());
    connect(follow, &QAction::triggered, d->waterfall, &WaterfallPane::followNewest);
    connect(menu->addAction(tr("Zoom in in time")), &QAction::triggered, d->waterfall,
            [this] { d->waterfall->zoomTime(1); });
    connect(menu->addAction(tr("Zoom out in time")), &QAction::triggered, d->waterfall,
            [this] { d->waterfall->zoomTime(-1); });
}

void BandPanes::setBandPlan(const BandPlan& plan)
{
    d->bandPlan->setPlan(plan);
}

const BandPlan& BandPanes::bandPlan() const
{
    return d->bandPlan->plan();
}

void BandPanes::setBookmarks(const BandPlan& bookmarks)
{
    if (bookmarks == d->bookmarks->plan())
        return;
    d->bookmarks->setPlan(bookmarks);
    Q_EMIT bookmarksChanged();
}

const BandPlan& BandPanes::bookmarks() const
{
    return d->bookmarks->plan();
}

void BandPanes::addBookmark(double hertz, const QString& name)
{
    std::vector<BandPlan::Entry> entries = bookmarks().entries();
    entries.push_back(
        {hertz, hertz, name.isEmpty() ? d->text.rounded(hertz, d->spectrum->stepAt(hertz)) : name});
    setBookmarks(BandPlan(std::move(entries)));
}

VisibleBand& BandPanes::visibleBand() const
{
    return d->visibleBand;
}

SpectrumPane& BandPanes::spectrum() const
{
    return *d->spectrum;
}

WaterfallPane& BandPanes::waterfall() const
{
    return *d->waterfall;
}

OverviewPane& BandPanes::overview() const
{
    return *d->overview;
}

void BandPanes::setOverviewVisible(bool visible)
{
    if (visible == isOverviewVisible())
        return;
    d->overviewRow->setVisible(visible);
    Q_EMIT overviewVisibleChanged(visible);
}

bool BandPanes::isOverviewVisible() const
{
    return !d->overviewRow->isHidden();
}

void BandPanes::setSnapping(bool on)
{
    d->spectrum->setSnapping(on);
    d->waterfall->setSnapping(on);
}

Splitter* BandPanes::splitter() const
{
    return d->splitter;
}

QWidget* BandPanes::waterfallRow() const
{
    return d->waterfallRow;
}

void BandPanes::refreshTexts()
{
    d->text.refresh();
    updateAll();
}

void BandPanes::refreshTimes()
{
    d->timeAxis->update();
    const auto [first, last] = d->waterfall->shownSweeps();
    d->overview->setShownSweeps(first, last);
}

/// Opaque widgets are not painted with their parents.
void BandPanes::updateAll()
{
    for (QWidget* child : findChildren<QWidget*>())
        child->update();
}

void BandPanes::refreshColors()
{
    d->waterfall->refreshColors();
    updateAll();
}

} // namespace RadioPanes
