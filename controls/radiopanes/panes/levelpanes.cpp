// SPDX-License-Identifier: MIT
#include "levelpanes.h"

#include "heldtraces.h"
#include "spectrumpane.h"
#include "waterfallpane.h"

#include <radiopanes/core/measurements.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace RadioPanes {

namespace {
constexpr double rangeStep = 10; // the level axis begins and ends at multiples of it, in dB
constexpr double headroom = 5;   // between the usual levels and the ends, in dB
constexpr std::array<qsizetype, 3> fittedAfter{1, 4, 16}; // sweeps
} // namespace

class LevelPanesPrivate
{
public:
    std::shared_ptr<LevelHistory> history;
    std::pair<double, double> fitted; ///< The ends of the spectrum as fitLevels() has set them.
    std::unique_ptr<HeldTraces> held;
    std::vector<Pin> pinsElsewhere; ///< Beyond the band of now.
};

LevelPanes::LevelPanes(QWidget* parent)
    : LevelPanes(QStringLiteral("LevelPanes"), parent)
{}

LevelPanes::LevelPanes(const QString& name, QWidget* parent)
    : BandPanes(QStringLiteral("bandSplitter"), name, parent)
    , d(std::make_unique<LevelPanesPrivate>())
{
    d->held = std::make_unique<HeldTraces>(&spectrum());
    waterfall().setColorMap(ColorMap::Even);
    waterfall().setLegendVisible(true);
    connect(this, &BandPanes::jumpRequested, &waterfall(), &WaterfallPane::scrollTo);
    d->fitted = {spectrum().lowLevel(), spectrum().highLevel()};
    clear();
}

LevelPanes::~LevelPanes()
{
    // The panes go after what they show: they must let go of it.
    d->held.reset();
    spectrum().setTrace(Trace::Current, {}, nullptr);
}

bool LevelPanes::addSweep(quint64 timeUs, double startHz, double stepHz,
                          std::span<const float> levels)
{
    const Segment segment{startHz, stepHz, 0, levels};
    return addSweep(timeUs, {&segment, 1});
}

bool LevelPanes::addSweep(quint64 timeUs, std::span<const Segment> segments)
{
    const bool isFirst = d->history->count() == 0;
    if (!d->history->append(timeUs, segments))
        return false;
    const qsizetype position = d->history->count() - 1;
    const Sweep sweep = d->history->sweep(position);
    const VisibleBand& band = visibleBand();
    if (isFirst || sweep.lowHz != band.bandLow() || sweep.highHz != band.bandHigh())
        setBand(sweep);
    fitLevels();
    const auto pyramid = std::make_shared<const LevelPyramid>(sweep);
    spectrum().setTrace(Trace::Current, sweep, pyramid);
    d->held->add(sweep);
    d->held->show();
    setPosition(position, pyramid);
    return true;
}

void LevelPanes::setBand(const Sweep& sweep)
{
    VisibleBand& band = visibleBand();
    std::vector<Pin> pins = std::exchange(d->pinsElsewhere, {});
    pins.insert(pins.end(), band.pins().begin(), band.pins().end());
    band.setBand(sweep.lowHz, sweep.highHz, sweep.segments.front().stepHz);
    for (Pin& pin : pins) {
        if (sweep.lowHz <= pin.hertz && pin.hertz <= sweep.highHz)
            band.addPin(pin.hertz, pin.name);
        else
            d->pinsElsewhere.push_back(std::move(pin));
    }
}

void LevelPanes::fitLevels()
{
    const qsizetype count = d->history->count();
    const std::pair shown(spectrum().lowLevel(), spectrum().highLevel());
    if (std::ranges::find(fittedAfter, count) == fittedAfter.end() || shown != d->fitted)
        return;
    std::vector<Sweep> sweeps;
    for (qsizetype i = d->history->first(); i < count; ++i)
        sweeps.push_back(d->history->sweep(i));
    const LevelRange usual = usualLevels(sweeps);
    if (usual.isEmpty())
        return;
    const double low = static_cast<double>(usual.minimum) - headroom;
    const double high = static_cast<double>(usual.maximum) + headroom;
    spectrum().setLevelRange(std::floor(low / rangeStep) * rangeStep,
                             std::ceil(high / rangeStep) * rangeStep);
    waterfall().setLevelRange(low, high);
    d->fitted = {spectrum().lowLevel(), spectrum().highLevel()};
}

void LevelPanes::resetHold()
{
    d->held->clear();
}

void LevelPanes::clear(std::size_t historyBytes)
{
    resetHold();
    spectrum().setTrace(Trace::Current, {}, nullptr);
    d->history = std::make_shared<LevelHistory>(historyBytes);
    setHistory(d->history);
}

const LevelHistory& LevelPanes::history() const
{
    return *d->history;
}

} // namespace RadioPanes
