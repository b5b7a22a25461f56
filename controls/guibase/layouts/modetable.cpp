// SPDX-License-Identifier: MIT
#include "modetable_p.h"

ModeTable::ModeTable()
    : m_current(&m_layouts[0])
{}

void ModeTable::load(const StateRecord::Layouts& layouts)
{
    for (const auto& [mode, state] : layouts) {
        ModeLayout& layout = m_layouts[mode];
        layout.latest = {state, std::nullopt};
        layout.programStart = state;
    }
    if (layouts.empty())
        reset(&ModeLayout::programStart);
}

StateRecord::Layouts ModeTable::latest() const
{
    StateRecord::Layouts result;
    for (const auto& [mode, layout] : m_layouts)
        result.emplace_hint(result.end(), mode, layout.latest.state);
    return result;
}

void ModeTable::reset(QByteArray ModeLayout::*former)
{
    for (auto& [mode, layout] : m_layouts)
        layout.latest = {layout.*former, std::nullopt};
}
