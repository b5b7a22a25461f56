// SPDX-License-Identifier: MIT
#include "centre/bandview.h"

#include <radiopanes/panes/spectrumpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <QMenu>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <vector>

namespace bandmonitor {

namespace {
constexpr double levelStep = 10; // the level axis begins and ends at multiples of it, in dB
constexpr double levelMargin = 3;
constexpr qsizetype sweepsToFit = 16; // evenly spread over the recording

double axisBegin(double low)
{
    return std::floor((low - levelMargin) / levelStep) * levelStep;
}

double axisEnd(double high)
{
    return std::ceil((high + levelMargin) / levelStep) * levelStep;
}

Extent shownBy(const VisibleBand& band)
{
    return {band.low(), band.high()};
}
} // namespace

BandView::BandView(QWidget* parent)
    : BandPanes(QStringLiteral("bandSplitter"), QStringLiteral("BandmonitorBand"), parent)
{
    waterfall().setHint(tr("Press Space to replay the recording"));
}

BandView::~BandView() = default;

void BandView::setRecording(std::shared_ptr<const Recording> recording)
{
    m_recording = std::move(recording);
    m_position = -1;
    m_pyramid.reset();
    m_hold.clear();
    m_processor.forget();
    // The panes must let go of the former recording's levels before it may go.
    spectrum().setTrace(Trace::Current, {}, nullptr);
    setHistory(m_recording);
    if (m_recording && !m_recording->isEmpty()) {
        const Sweep first = m_recording->sweep(m_recording->first());
        visibleBand().setBand(m_recording->lowHz(), m_recording->highHz(),
                              first.segments.empty() ? 1 : first.segments.front().stepHz);
        m_followed = shownBy(visibleBand());
        fitLevels();
    }
    refreshTexts();
}

bool BandView::leavesBand() const
{
    const VisibleBand& band = visibleBand();
    return m_recording && !m_recording->isEmpty() &&
           (m_recording->lowHz() < band.bandLow() || m_recording->highHz() > band.bandHigh());
}

void BandView::recordingGrown()
{
    if (!m_recording || m_recording->isEmpty())
        return;
    const QScopedValueRollback following(m_isFollowingSpan, true);
    const Extent shown = shownBy(visibleBand());
    if (leavesBand())
        widenBand();
    if (m_position == m_recording->count() - 1)
        followSpan(shown);
}

void BandView::widenBand()
{
    VisibleBand& band = visibleBand();
    const bool showedAll = band.showsAll();
    const Extent shown = shownBy(band);
    const double cursor = band.cursor();
    const Sweep newest = m_recording->sweep(m_recording->count() - 1);
    band.setBand(m_recording->lowHz(), m_recording->highHz(), newest.segments.front().stepHz);
    if (!showedAll)
        band.setVisible(shown.lowHz, shown.highHz);
    band.setCursor(cursor);
    fitLevels();
}

void BandView::followSpan(const Extent& shown)
{
    VisibleBand& band = visibleBand();
    const Sweep newest = m_recording->sweep(m_position);
    const bool isApart = newest.highHz <= shown.lowHz || newest.lowHz >= shown.highHz;
    const bool isChosen = shown != m_followed;
    // Narrower sweeps are seen as well: they may have been cut short.
    const bool isInside = newest.lowHz >= shown.lowHz && newest.highHz <= shown.highHz;
    if (!isApart && (isChosen || isInside)) {
        if (!isChosen)
            band.setVisible(shown.lowHz, shown.highHz);
        return;
    }
    band.setVisible(newest.lowHz, newest.highHz);
    m_followed = shownBy(band);
    if (band.cursor() < band.low() || band.cursor() > band.high())
        band.setCursor((band.low() + band.high()) / 2);
}

void BandView::fitLevels()
{
    std::vector<Sweep> sweeps;
    const qsizetype step = (m_recording->count() - m_recording->first()) / sweepsToFit + 1;
    for (qsizetype i = m_recording->first(); i < m_recording->count(); i += step)
        sweeps.push_back(m_recording->sweep(i));
    const LevelRange usual = usualLevels(sweeps);
    const double low = usual.isEmpty() ? -120 : static_cast<double>(usual.minimum);
    const double high = usual.isEmpty() ? 0 : static_cast<double>(usual.maximum);
    spectrum().setLevelRange(axisBegin(low), axisEnd(high));
    waterfall().setLevelRange(low, high);
    m_fittedLevels = {spectrum().lowLevel(), spectrum().highLevel()};
}

void BandView::recordingCompleted()
{
    if (m_fittedLevels == std::pair(spectrum().lowLevel(), spectrum().highLevel()))
        fitLevels();
}

/// So that a trace that is made of the sweeps does not leave the pane.
void BandView::widenLevels(LevelRange levels)
{
    const double low = static_cast<double>(levels.minimum);
    const double high = static_cast<double>(levels.maximum);
    if (levels.isEmpty() || (low >= spectrum().lowLevel() && high <= spectrum().highLevel()))
        return;
    spectrum().setLevelRange(std::min(spectrum().lowLevel(), axisBegin(low)),
                             std::max(spectrum().highLevel(), axisEnd(high)));
}

void BandView::showSweep(qsizetype position, qsizetype previous)
{
    if (!m_recording || position < m_recording->first() || position >= m_recording->count())
        return;
    if (position < m_position)
        m_hold.clear(); // of a time that is still to come
    m_position = position;
    m_pyramid = std::make_shared<const LevelPyramid>(m_recording->sweep(position));
    showTrace(previous < 0 || previous >= position ? position : previous + 1);
    setPosition(position, m_pyramid);
}

void BandView::showTrace(qsizetype firstHeld)
{
    for (qsizetype held = std::max(firstHeld, m_recording->first()); held < m_position; ++held)
        m_hold.add(m_processor.process(*m_recording, held));
    const Sweep shown = m_processor.process(*m_recording, m_position);
    m_hold.add(shown);
    auto pyramid = m_pyramid;
    if (shown.segments.data() != m_recording->sweep(m_position).segments.data()) {
        pyramid = std::make_shared<const LevelPyramid>(shown);
        widenLevels(pyramid->levels());
    }
    spectrum().setTrace(Trace::Current, shown, std::move(pyramid));
    m_hold.show();
}

void BandView::setTrace(const TraceSettings& settings)
{
    if (settings == m_processor.settings())
        return;
    m_processor.setSettings(settings);
    if (!m_recording || m_position < 0)
        return;
    fitLevels();
    resetHold();
}

void BandView::showFrequency(double hertz)
{
    visibleBand().showAt(hertz);
}

void BandView::fillMenu(QMenu* menu)
{
    BandPanes::fillMenu(menu);
    menu->addSeparator();
    if (m_extendMenu)
        m_extendMenu(*menu);
}

void BandView::resetHold()
{
    m_hold.clear();
    if (m_recording && m_position >= 0)
        showTrace(m_position);
}

} // namespace bandmonitor
