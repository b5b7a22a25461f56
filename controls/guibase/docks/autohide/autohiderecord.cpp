// SPDX-License-Identifier: MIT
#include "autohiderecord_p.h"

namespace QMainWindowHelpers {

AutoHideRecord::AutoHideRecord() = default;
AutoHideRecord::~AutoHideRecord() = default;

std::optional<AutoHideState> AutoHideRecord::read() const
{
    return m_store.read(m_name, QStringLiteral("the auto-hidden docks are damaged"),
                        AutoHideState::fromText);
}

void AutoHideRecord::write(const AutoHideState& state) const
{
    if (!m_name.isEmpty() && !m_isPaused)
        m_store.write(m_name, state.toText());
}

Qt::ToolBarArea AutoHideRecord::take(const QString& dock)
{
    const auto side = m_expected.constFind(dock);
    if (side == m_expected.cend())
        return Qt::NoToolBarArea;
    const Qt::ToolBarArea area = *side;
    m_expected.erase(side);
    return area;
}

} // namespace QMainWindowHelpers
