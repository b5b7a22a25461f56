// SPDX-License-Identifier: MIT
#include "centre/paneskeeper.h"

#include <radiopanes/panes/bandpanes.h>
#include <radiopanes/panes/spectrumpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <valueframework/undorecording.h>

#include <QScopedValueRollback>

using namespace RadioPanes;

namespace bandmonitor {

PanesKeeper::PanesKeeper(std::shared_ptr<SessionValues> values, BandPanes* panes, QObject* parent)
    : QObject(parent)
    , m_values(std::move(values))
    , m_panes(panes)
{
    addTraces();
    addPictures();
    addZoom();
    for (const Choice& choice : m_choices) {
        const auto show = [this, &choice] {
            const QScopedValueRollback showing(m_isShowing, true);
            choice.show(choice.value.GetVariant());
        };
        show();
        choice.value.SetVariant(choice.shown()); // where the configuration has an impossible one
        m_followers.push_back(SessionValues::follow({&choice.value}, show));
    }
    connect(&m_panes->spectrum(), &BandPane::optionsChanged, this, &PanesKeeper::take);
    connect(&m_panes->waterfall(), &BandPane::optionsChanged, this, &PanesKeeper::take);
    connect(m_panes, &BandPanes::overviewVisibleChanged, this, &PanesKeeper::take);
}

PanesKeeper::~PanesKeeper() = default;

void PanesKeeper::addTraces()
{
    const std::pair<Trace, ValueBase&> rows[] = {{Trace::Current, m_values->isCurrentVisible},
                                                 {Trace::Average, m_values->isAverageVisible},
                                                 {Trace::Maximum, m_values->isHoldVisible},
                                                 {Trace::Minimum, m_values->isMinimumVisible}};
    for (const auto& [trace, value] : rows)
        m_choices.push_back(
            {value, SpectrumPane::traceName(trace),
             [this, trace = trace] { return m_panes->spectrum().isTraceVisible(trace); },
             [this, trace = trace](const QVariant& on) {
                 m_panes->spectrum().setTraceVisible(trace, on.toBool());
             }});
}

void PanesKeeper::addPictures()
{
    SpectrumPane* const spectrum = &m_panes->spectrum();
    WaterfallPane* const waterfall = &m_panes->waterfall();
    m_choices.push_back({m_values->isSnapping, tr("Pins snap to peaks"),
                         [=] { return spectrum->isSnapping(); },
                         [this](const QVariant& on) { m_panes->setSnapping(on.toBool()); }});
    m_choices.push_back({m_values->areWidthsVisible, tr("Bandwidths at the cursor"),
                         [=] { return spectrum->areWidthsVisible(); },
                         [=](const QVariant& on) { spectrum->setWidthsVisible(on.toBool()); }});
    m_choices.push_back({m_values->isTraceLegendVisible, tr("Legend of the traces"),
                         [=] { return spectrum->isLegendVisible(); },
                         [=](const QVariant& on) { spectrum->setLegendVisible(on.toBool()); }});
    m_choices.push_back({m_values->isWaterfallLegendVisible, tr("Legend of the waterfall"),
                         [=] { return waterfall->isLegendVisible(); },
                         [=](const QVariant& on) { waterfall->setLegendVisible(on.toBool()); }});
    m_choices.push_back({m_values->isOverviewVisible, tr("Overview of all sweeps"),
                         [this] { return m_panes->isOverviewVisible(); },
                         [this](const QVariant& on) { m_panes->setOverviewVisible(on.toBool()); }});
    m_choices.push_back(
        {m_values->colorMap, tr("Colours of the waterfall"),
         [=] { return static_cast<int>(waterfall->colorMap()); },
         [=](const QVariant& map) { waterfall->setColorMap(static_cast<ColorMap>(map.toInt())); }});
}

void PanesKeeper::addZoom()
{
    WaterfallPane* const waterfall = &m_panes->waterfall();
    m_choices.push_back({m_values->timeZoom, tr("Zoom in time"),
                         [=] { return waterfall->timeZoom(); },
                         [=](const QVariant& zoom) { waterfall->setTimeZoom(zoom.toInt()); }});
}

void PanesKeeper::take()
{
    if (m_isShowing)
        return;
    for (const Choice& choice : m_choices) {
        const QVariant shown = choice.shown();
        if (shown == choice.value.GetVariant())
            continue;
        const bool isZoom = &choice.value == &m_values->timeZoom;
        const SessionValues::Step step =
            m_values->step(choice.undoText, isZoom ? m_zooms.next() : -1);
        choice.value.SetVariant(shown);
    }
}

} // namespace bandmonitor
