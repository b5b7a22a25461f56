// SPDX-License-Identifier: MIT
#include "modetable_p.h"

#include <guibase/records/hexadecimal.h>

ModeTable::ModeTable()
    : m_current(&m_layouts[0])
{}

void ModeTable::load(const StateRecord::Layouts& layouts)
{
    for (const auto& [mode, text] : layouts) {
        ModeLayout& layout = m_layouts[mode];
        layout.stateText = text;
        layout.programStartState = Hexadecimal::decode(text).value_or(QByteArray());
    }
    if (layouts.empty())
        reset(&ModeLayout::programStartState);
}

StateRecord::Layouts ModeTable::texts() const
{
    StateRecord::Layouts result;
    for (const auto& [mode, layout] : m_layouts)
        result.emplace_hint(result.end(), mode, layout.stateText);
    return result;
}

void ModeTable::reset(QByteArray ModeLayout::*state)
{
    for (auto& [mode, layout] : m_layouts)
        layout.stateText = Hexadecimal::encode(layout.*state);
}
