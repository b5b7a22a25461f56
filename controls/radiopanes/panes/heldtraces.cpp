// SPDX-License-Identifier: MIT
#include "heldtraces.h"

namespace RadioPanes {

HeldTraces::HeldTraces(SpectrumPane* pane)
    : m_pane(pane)
    , m_visibleChanged(QObject::connect(pane, &SpectrumPane::traceVisibleChanged, pane,
                                        [this](Trace trace) { showChange(trace); }))
{}

HeldTraces::~HeldTraces()
{
    QObject::disconnect(m_visibleChanged);
    clear();
}

void HeldTraces::add(const Sweep& sweep)
{
    for (auto& [trace, levels] : m_held) {
        if (trace == Trace::Maximum || m_pane->isTraceVisible(trace))
            levels.add(sweep);
    }
}

void HeldTraces::show()
{
    for (auto& [trace, levels] : m_held) {
        if (m_pane->isTraceVisible(trace))
            m_pane->setTrace(trace, levels.sweep(),
                             std::make_shared<const LevelPyramid>(levels.sweep()));
    }
}

void HeldTraces::clear()
{
    for (auto& [trace, levels] : m_held) {
        m_pane->setTrace(trace, {}, nullptr);
        levels.clear();
    }
}

void HeldTraces::showChange(Trace changed)
{
    for (auto& [trace, levels] : m_held) {
        if (trace == changed && trace != Trace::Maximum) {
            m_pane->setTrace(trace, {}, nullptr);
            levels.clear();
        }
    }
    show();
}

} // namespace RadioPanes
