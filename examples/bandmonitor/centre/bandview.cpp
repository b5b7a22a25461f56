// SPDX-License-Identifier: MIT
#include "centre/bandview.h"

#include <radiopanes/panes/axes.h>
#include <radiopanes/panes/spectrumpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <guibase/services/guibase.h>
#include <guibase/splitters/splitter.h>

#include <QGridLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace bandmonitor {

namespace {
constexpr double levelStep = 10; // the level axis begins and ends at multiples of it, in dB
constexpr double levelMargin = 3;

double axisBegin(double low)
{
    return std::floor((low - levelMargin) / levelStep) * levelStep;
}

double axisEnd(double high)
{
    return std::ceil((high + levelMargin) / levelStep) * levelStep;
}
} // namespace

BandView::BandView(QWidget* parent)
    : QWidget(parent)
{
    const int indent = SideAxis::preferredWidth(*this);
    m_frequencyAxis = new FrequencyAxis(&m_visibleBand, &m_text, indent, this);
    m_spectrum = new SpectrumPane(
        &m_visibleBand, &m_text, [this](int pixels) { return m_frequencyAxis->ticks(pixels); },
        this);
    m_waterfall = new WaterfallPane(&m_visibleBand, this);
    m_levelAxis = new SideAxis(
        tr("dB"), [this](int pixels) { return m_spectrum->levelTicks(pixels); }, this);
    m_timeAxis = new SideAxis(
        QString(),
        [this](int pixels) {
            return m_waterfall->timeTicks(pixels, [](quint64 timeUs) {
                return GuiBase::Instance().TimeString(timeUs, QStringLiteral("hh:mm:ss"));
            });
        },
        this);
    m_waterfall->setHint(tr("Press Space to replay the recording"));
    buildLayout();
    setFocusProxy(m_spectrum);
    connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, this, &BandView::refreshColors);
}

BandView::~BandView() = default;

void BandView::buildLayout()
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
    QWidget* spectrumRow = makeRow(m_levelAxis, m_spectrum);
    static_cast<QGridLayout*>(spectrumRow->layout())->addWidget(m_frequencyAxis, 1, 0, 1, 2);
    m_waterfallRow = makeRow(m_timeAxis, m_waterfall);
    m_splitter = new Splitter(Qt::Vertical, this, QStringLiteral("bandSplitter"),
                              QStringLiteral("BandmonitorBand"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(spectrumRow);
    m_splitter->addWidget(m_waterfallRow);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_splitter);
    setTabOrder(m_spectrum, m_waterfall);
}

void BandView::setRecording(std::shared_ptr<const Recording> recording)
{
    m_recording = std::move(recording);
    m_position = -1;
    m_pyramid.reset();
    m_hold.clear();
    m_processor.forget();
    // The panes must let go of the former recording's levels before it may go.
    m_spectrum->setSweep({}, nullptr);
    m_spectrum->setHold({}, nullptr);
    m_waterfall->setHistory(m_recording);
    if (m_recording && !m_recording->isEmpty()) {
        const Sweep first = m_recording->sweep(0);
        m_visibleBand.setBand(m_recording->lowHz(), m_recording->highHz(),
                              first.segments.empty() ? 1 : first.segments.front().stepHz);
        fitLevels();
    }
    refreshTexts();
}

void BandView::fitLevels()
{
    const double low = static_cast<double>(m_recording->minimumLevel().value_or(-120));
    const double high = static_cast<double>(m_recording->maximumLevel().value_or(0));
    m_spectrum->setLevelRange(axisBegin(low), axisEnd(high));
    m_waterfall->setLevelRange(low, high);
    m_levelAxis->update();
}

/// So that a trace that is made of the sweeps does not leave the pane.
void BandView::widenLevels(LevelRange levels)
{
    const double low = static_cast<double>(levels.minimum);
    const double high = static_cast<double>(levels.maximum);
    if (levels.isEmpty() || (low >= m_spectrum->lowLevel() && high <= m_spectrum->highLevel()))
        return;
    m_spectrum->setLevelRange(std::min(m_spectrum->lowLevel(), axisBegin(low)),
                              std::max(m_spectrum->highLevel(), axisEnd(high)));
    m_levelAxis->update();
}

void BandView::showSweep(qsizetype position, qsizetype previous)
{
    if (!m_recording || position < 0 || position >= m_recording->count())
        return;
    m_position = position;
    m_pyramid = std::make_shared<const LevelPyramid>(m_recording->sweep(position));
    showTrace(previous < 0 || previous >= position ? position : previous + 1);
    m_waterfall->setPosition(position, m_pyramid);
    m_timeAxis->update();
}

void BandView::showTrace(qsizetype firstHeld)
{
    for (qsizetype held = firstHeld; held < m_position; ++held)
        m_hold.add(m_processor.process(*m_recording, held));
    const Sweep shown = m_processor.process(*m_recording, m_position);
    m_hold.add(shown);
    auto pyramid = m_pyramid;
    if (shown.segments.data() != m_recording->sweep(m_position).segments.data()) {
        pyramid = std::make_shared<const LevelPyramid>(shown);
        widenLevels(pyramid->levels());
    }
    m_spectrum->setSweep(shown, std::move(pyramid));
    m_spectrum->setHold(m_hold.sweep(), std::make_shared<const LevelPyramid>(m_hold.sweep()));
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
    if (hertz < m_visibleBand.low() || hertz > m_visibleBand.high())
        m_visibleBand.pan(hertz - (m_visibleBand.low() + m_visibleBand.high()) / 2);
    m_visibleBand.setCursor(hertz);
}

void BandView::setHoldVisible(bool visible)
{
    m_spectrum->setHoldVisible(visible);
}

void BandView::resetHold()
{
    m_hold.clear();
    if (m_recording && m_position >= 0)
        showTrace(m_position);
    else
        m_spectrum->setHold({}, nullptr);
}

void BandView::refreshTexts()
{
    m_text.refresh();
    m_spectrum->refreshTexts();
    m_frequencyAxis->update();
    m_timeAxis->update();
}

void BandView::refreshColors()
{
    m_waterfall->refreshColors();
    update();
    const QList<QWidget*> children = findChildren<QWidget*>();
    for (QWidget* child : children)
        child->update();
}

} // namespace bandmonitor
