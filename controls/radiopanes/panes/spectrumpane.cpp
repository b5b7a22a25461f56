// SPDX-License-Identifier: MIT
#include "spectrumpane.h"

#include "panepainter_p.h"
#include "spectrumpane_p.h"
#include "visibleband.h"

#include <radiopanes/colors/panecolors.h>

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace RadioPanes {

namespace {
constexpr double smallestLevelRange = 10;
constexpr int gapBetweenLevels = 10;
constexpr double farthestLevel = 1000; // in dB, on either side; beyond it no level is meant
constexpr std::array divisions{1.0, 2.0, 5.0, 10.0, 20.0, 50.0};
} // namespace

IColorBase::ECOLOR traceSlot(Trace trace)
{
    switch (trace) {
    case Trace::Current:
        break;
    case Trace::Average:
        return PaneSlot::Average;
    case Trace::Maximum:
        return PaneSlot::Peak;
    case Trace::Minimum:
        return PaneSlot::HoldMinimum;
    }
    return PaneSlot::Curve;
}

SpectrumPanePrivate::SpectrumPanePrivate(SpectrumPane* pane, const FrequencyText* frequencyText,
                                         SpectrumPane::GridTicks ticks)
    : q(pane)
    , text(frequencyText)
    , frequencyTicks(std::move(ticks))
{
    trace(Trace::Current).isVisible = true;
    trace(Trace::Maximum).isVisible = true;
}

SpectrumPanePrivate::~SpectrumPanePrivate() = default;

SpectrumPane::SpectrumPane(VisibleBand* view, const FrequencyText* text, GridTicks frequencyTicks,
                           QWidget* parent)
    : BandPane(view, parent)
    , d(std::make_unique<SpectrumPanePrivate>(this, text, std::move(frequencyTicks)))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Spectrum"));
    connect(view, &VisibleBand::rangeChanged, this, qOverload<>(&QWidget::update));
    connect(view, &VisibleBand::cursorChanged, this, &SpectrumPane::updateReadOut);
}

SpectrumPane::~SpectrumPane() = default;

void SpectrumPane::setTrace(Trace trace, const Sweep& sweep,
                            std::shared_ptr<const LevelPyramid> pyramid)
{
    SpectrumPanePrivate::TraceState& state = d->trace(trace);
    state.sweep = pyramid ? sweep : Sweep();
    state.pyramid = std::move(pyramid);
    state.columns.clear();
    const bool isRead = trace == Trace::Current; // the read-out tells its levels in any case
    if (isRead)
        d->occupied.reset();
    if (state.isVisible)
        d->invalidate();
    if (state.isVisible || isRead)
        d->showSoon();
}

void SpectrumPane::setTraceVisible(Trace trace, bool visible)
{
    if (std::exchange(d->trace(trace).isVisible, visible) == visible)
        return;
    d->invalidate();
    update();
    Q_EMIT traceVisibleChanged(trace, visible);
    Q_EMIT optionsChanged();
}

bool SpectrumPane::isTraceVisible(Trace trace) const
{
    return d->trace(trace).isVisible;
}

QString SpectrumPane::traceName(Trace trace)
{
    switch (trace) {
    case Trace::Current:
        break;
    case Trace::Average:
        return tr("Average");
    case Trace::Maximum:
        return tr("Hold maximum");
    case Trace::Minimum:
        return tr("Hold minimum");
    }
    return tr("Current");
}

void SpectrumPane::setReferenceLevels(std::vector<LevelPoint> points)
{
    d->referenceLevels = std::move(points);
    update();
}

void SpectrumPane::setThreshold(std::optional<double> levelDb)
{
    d->thresholdDb = levelDb;
    update();
}

void SpectrumPane::setCaption(const QString& caption)
{
    d->caption = caption;
    setAccessibleDescription(caption);
    update();
}

const QString& SpectrumPane::caption() const
{
    return d->caption;
}

void SpectrumPane::setWidthsVisible(bool visible)
{
    if (std::exchange(d->areWidthsVisible, visible) == visible)
        return;
    update();
    Q_EMIT optionsChanged();
}

bool SpectrumPane::areWidthsVisible() const
{
    return d->areWidthsVisible;
}

double SpectrumPane::lowLevel() const
{
    return d->lowLevel;
}

double SpectrumPane::highLevel() const
{
    return d->highLevel;
}

void SpectrumPane::setLevelRange(double low, double high)
{
    if (!std::isfinite(low) || !std::isfinite(high))
        return;
    low = std::clamp(low, -farthestLevel, farthestLevel - smallestLevelRange);
    high = std::clamp(high, low + smallestLevelRange, farthestLevel);
    if (low == d->lowLevel && high == d->highLevel)
        return;
    d->lowLevel = low;
    d->highLevel = high;
    update();
    Q_EMIT levelRangeChanged();
}

void SpectrumPane::setReferenceLevel(double levelDb)
{
    const double range = d->highLevel - d->lowLevel;
    levelDb = std::clamp(levelDb, range - farthestLevel, farthestLevel);
    setLevelRange(levelDb - range, levelDb);
}

double SpectrumPane::decibelsPerDivision() const
{
    return (d->highLevel - d->lowLevel) / levelDivisions;
}

void SpectrumPane::setDecibelsPerDivision(double decibels)
{
    const double span = levelDivisions * std::clamp(decibels, divisions.front(), divisions.back());
    setLevelRange(d->highLevel - span, d->highLevel);
}

void SpectrumPane::stepDecibelsPerDivision(int steps)
{
    constexpr int most = static_cast<int>(divisions.size());
    steps = std::clamp(steps, -most, most);
    for (; steps > 0; --steps) {
        const auto larger = std::ranges::upper_bound(divisions, decibelsPerDivision());
        setDecibelsPerDivision(larger != divisions.end() ? *larger : divisions.back());
    }
    for (; steps < 0; ++steps) {
        const auto smaller = std::ranges::lower_bound(divisions, decibelsPerDivision());
        setDecibelsPerDivision(smaller != divisions.begin() ? *(smaller - 1) : divisions.front());
    }
}

void SpectrumPane::stepReferenceLevel(double steps)
{
    setReferenceLevel(d->highLevel + steps * decibelsPerDivision());
}

std::vector<AxisTick> SpectrumPane::levelTicks(int pixels) const
{
    SpectrumPanePrivate::LevelTicks& kept = d->levelTicks;
    const AxisRange range{d->lowLevel, d->highLevel, pixels};
    if (kept.range == range && kept.font == font())
        return kept.ticks;
    const int textHeight = fontMetrics().height();
    kept.range = range;
    kept.font = font();
    kept.ticks = layoutTicks(
        range, 1, gapBetweenLevels, textHeight,
        [](double level) { return QString::number(level, 'f', 0); },
        [textHeight](const QString&) { return textHeight; });
    return kept.ticks;
}

std::optional<float> SpectrumPane::levelAt(double hertz) const
{
    return d->trace(Trace::Current).sweep.levelAt(hertz);
}

QStringList SpectrumPane::readOut() const
{
    return d->readOut();
}

double SpectrumPane::stepAt(double hertz) const
{
    const std::optional<BinPlace> place = d->trace(Trace::Current).sweep.placeOf(hertz);
    return place ? place->segment->stepHz : 0;
}

bool SpectrumPane::moveToPeak(Direction direction)
{
    const Sweep& sweep = d->trace(Trace::Current).sweep;
    PeakLimits limits;
    limits.levelDb = d->thresholdDb ? static_cast<float>(*d->thresholdDb) : noiseCeiling(sweep);
    const std::optional<BinLevel> peak = nextPeak(sweep, visibleBand().cursor(), direction, limits);
    if (!peak)
        return false;
    visibleBand().showAt(peak->hertz);
    return true;
}

double SpectrumPane::snapped(double hertz) const
{
    const std::optional<BinLevel> bin =
        highestNear(d->trace(Trace::Current).sweep, hertz, hertzOf(pinReach));
    return bin ? bin->hertz : hertz;
}

void SpectrumPane::paintEvent(QPaintEvent* event)
{
    PanePainter painter(this);
    d->paintPicture(painter, event->region());
    d->paintReferenceLevels(painter);
    d->paintThreshold(painter);
    paintOverlay(painter);
    d->paintPinNumbers(painter);
    d->paintTexts(painter, event->region());
    d->updateStale(event->region());
}

void SpectrumPane::keyPressEvent(QKeyEvent* event)
{
    const int direction = event->key() == Qt::Key_Up || event->key() == Qt::Key_PageDown ? 1 : -1;
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (event->modifiers().testFlag(Qt::ControlModifier))
            stepDecibelsPerDivision(direction);
        else
            stepReferenceLevel(direction);
        break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        moveToPeak(direction > 0 ? Direction::Up : Direction::Down);
        break;
    default:
        BandPane::keyPressEvent(event);
    }
}

void SpectrumPane::wheelEvent(QWheelEvent* event)
{
    const int angle = wheelAngle(*event);
    if (event->modifiers().testFlag(Qt::ControlModifier))
        stepDecibelsPerDivision(-d->wheel.add(angle));
    else if (event->modifiers().testFlag(Qt::ShiftModifier))
        stepReferenceLevel(angle / static_cast<double>(QWheelEvent::DefaultDeltasPerStep));
    else
        return BandPane::wheelEvent(event);
    event->accept();
}

void SpectrumPane::updateReadOut()
{
    d->layOutTexts();
    d->updateStale();
}

} // namespace RadioPanes
