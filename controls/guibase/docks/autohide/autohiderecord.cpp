// SPDX-License-Identifier: MIT
#include "autohiderecord_p.h"

#include <trovappstartup/cfgcenter.h>

namespace QMainWindowHelpers {

namespace {

QString storageSection()
{
    return QStringLiteral("Auto hide");
}

} // namespace

AutoHideRecord::AutoHideRecord() = default;
AutoHideRecord::~AutoHideRecord() = default;

std::optional<AutoHideState> AutoHideRecord::read() const
{
    ICfg* layout = m_name.isEmpty() ? nullptr : CfgCenter::GetAppCfg(LayoutView);
    if (layout == nullptr || !layout->HasSubCfg(storageSection()))
        return {};
    const QString stored = layout->OpenSubCfg(storageSection())->GetString(m_name);
    return AutoHideState::fromBytes(QByteArray::fromHex(stored.toLatin1()));
}

void AutoHideRecord::write(const AutoHideState& state) const
{
    if (m_name.isEmpty() || m_isPaused)
        return;
    if (ICfg* layout = CfgCenter::GetAppCfg(LayoutView))
        if (const auto section = layout->OpenSubCfg(storageSection()))
            section->SetString(m_name, QString::fromLatin1(state.toBytes().toHex()));
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
