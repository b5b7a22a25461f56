// SPDX-License-Identifier: MIT
#include "bandpanes.h"

#include "axes.h"
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
    VisibleBand visibleBand;
    FrequencyText text;
    Splitter* splitter = nullptr;
    QWidget* waterfallRow = nullptr;
    SideAxis* levelAxis = nullptr;
    SpectrumPane* spectrum = nullptr;
    FrequencyAxis* frequencyAxis = nullptr;
    SideAxis* timeAxis = nullptr;
    WaterfallPane* waterfall = nullptr;
    std::unique_ptr<ValueFollower> unitFollower;
    std::unique_ptr<ValueFollower> zoneFollower;
};

BandPanes::BandPanes(const QString& splitterName, const QString& splitterGroup, QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<BandPanesPrivate>())
{
    // Frequencies grow to the right in every language.
    setLayoutDirection(Qt::LeftToRight);
    d->splitter = splitterName.isEmpty()
                      ? new Splitter(Qt::Vertical, this)
                      : new Splitter(Qt::Vertical, this, splitterName, splitterGroup);
    d->frequencyAxis =
        new FrequencyAxis(&d->visibleBand, &d->text, SideAxis::preferredWidth(*this), this);
    d->spectrum = new SpectrumPane(
        &d->visibleBand, &d->text, [this](int pixels) { return d->frequencyAxis->ticks(pixels); },
        this);
    d->waterfall = new WaterfallPane(&d->visibleBand, this);
    d->levelAxis = new SideAxis(
        tr("dB"), [this](int pixels) { return d->spectrum->levelTicks(pixels); }, this);
    d->timeAxis = new SideAxis(
        QString(),
        [this](int pixels) {
            return d->waterfall->timeTicks(pixels, [](quint64 timeUs) {
                return GuiBase::Instance().TimeString(timeUs, QStringLiteral("hh:mm:ss"));
            });
        },
        this);
    buildLayout();
    setFocusProxy(d->spectrum);
    connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, this, &BandPanes::refreshColors);
    connect(d->spectrum, &BandPane::menuRequested, this, &BandPanes::showMenu);
    connect(d->waterfall, &BandPane::menuRequested, this, &BandPanes::showMenu);
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
}

BandPanes::~BandPanes() = default;

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
    static_cast<QGridLayout*>(spectrumRow->layout())->addWidget(d->frequencyAxis, 1, 0, 1, 2);
    d->waterfallRow = makeRow(d->timeAxis, d->waterfall);
    d->splitter->setChildrenCollapsible(false);
    d->splitter->addWidget(spectrumRow);
    d->splitter->addWidget(d->waterfallRow);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(d->splitter);
    setTabOrder(d->spectrum, d->waterfall);
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
             [this](bool on) { d->spectrum->setSnapping(on); });
    addCheck(menu, tr("Bandwidths at the cursor"), d->spectrum->areWidthsVisible(),
             [this](bool on) { d->spectrum->setWidthsVisible(on); });
    menu->addSection(tr("Picture"));
    addCheck(menu, tr("Legend of the traces"), d->spectrum->isLegendVisible(),
             [this](bool on) { d->spectrum->setLegendVisible(on); });
    addCheck(menu, tr("Legend of the waterfall"), d->waterfall->isLegendVisible(),
             [this](bool on) { d->waterfall->setLegendVisible(on); });
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

void BandPanes::showMenu(QPoint globalPosition)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setLayoutDirection(QGuiApplication::layoutDirection()); // not that of the axes
    fillMenu(menu);
    menu->popup(globalPosition);
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
}

void BandPanes::refreshColors()
{
    d->waterfall->refreshColors();
    updateAll();
}

/// The panes are opaque: an update of what lies behind them does not reach them.
void BandPanes::updateAll()
{
    const QList<QWidget*> children = findChildren<QWidget*>();
    for (QWidget* child : children)
        child->update();
}

} // namespace RadioPanes
