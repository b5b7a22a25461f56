// SPDX-License-Identifier: MIT
#include "modetable_p.h"

ModeTable::ModeTable()
    : m_current(&m_layouts[0])
{}

void ModeTable::load(const StateRecord::Layouts& layouts,
                     const MaximizedDocksText::Modes& maximized)
{
    for (const auto& [mode, state] : layouts) {
        ModeLayout& layout = m_layouts[mode];
        const auto docks = maximized.find(mode);
        layout.latest = {state, std::nullopt,
                         docks != maximized.end() ? docks->second : MaximizedDocks()};
        layout.programStart = layout.latest;
    }
    if (layouts.empty())
        reset(&ModeLayout::programStart);
}

bool ModeTable::isKnown(quint32 mode) const
{
    const auto found = m_layouts.find(mode);
    return found != m_layouts.end() && !found->second.latest.state.isEmpty();
}

StateRecord::Layouts ModeTable::latest() const
{
    StateRecord::Layouts result;
    for (const auto& [mode, layout] : m_layouts)
        result.emplace_hint(result.end(), mode, layout.latest.state);
    return result;
}

MaximizedDocksText::Modes ModeTable::latestMaximized() const
{
    MaximizedDocksText::Modes result;
    for (const auto& [mode, layout] : m_layouts) {
        if (!layout.latest.maximized.empty())
            result.emplace_hint(result.end(), mode, layout.latest.maximized);
    }
    return result;
}

void ModeTable::reset(DockLayout ModeLayout::*former)
{
    for (auto& [mode, layout] : m_layouts)
        layout.latest = layout.*former;
}
