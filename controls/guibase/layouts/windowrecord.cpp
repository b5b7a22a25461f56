// SPDX-License-Identifier: MIT
#include "windowrecord_p.h"

#include "dockrestore_p.h"
#include "widgetplacement.h"

#include <guibase/records/hexadecimal.h>

#include <jtbase/errorhandler.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/damagedrecord.h>

#include <utility>

WindowRecord::WindowRecord(const QString& name, PersistantOwner& owner)
    : m_record(name, &owner)
{
    m_record.Add(&m_stateText, QStringLiteral("State"));
    m_record.Add(&m_geometryText, QStringLiteral("Geometry"));
    m_record.Add(&m_isMinimized, QStringLiteral("Minimized"), false);
    m_record.Add(&m_maximizedText, QStringLiteral("MaximizedDocks"));
}

void WindowRecord::read()
{
    m_record.Read(QString());
}

void WindowRecord::write(const Content& content)
{
    if (m_known != content || !m_record.Exists())
        m_record.Write(QString());
}

WindowRecord::Content WindowRecord::take(bool isWindow)
{
    Content content;
    content.isMinimized = m_isMinimized;
    const bool areLayoutsWhole = takeLayouts(content.layouts);
    const bool areMaximizedWhole = takeMaximized(content.maximized);
    if (takeGeometry(content.geometry, isWindow) && areLayoutsWhole && areMaximizedWhole)
        m_known = content;
    return content;
}

std::optional<DockStateCheck::DockNames> WindowRecord::takeFirstNames()
{
    return std::exchange(m_firstNames, std::nullopt);
}

void WindowRecord::set(const Content& content)
{
    m_geometryText = Hexadecimal::encode(content.geometry);
    if (!m_known || m_known->layouts != content.layouts)
        m_stateText = StateRecord::encode(content.layouts);
    m_maximizedText = MaximizedDocksText::format(content.maximized);
    m_isMinimized = content.isMinimized;
    m_known = content;
}

bool WindowRecord::takeLayouts(StateRecord::Layouts& layouts)
{
    std::optional<StateRecord::Reading> reading = StateRecord::decode(m_stateText);
    if (!reading) {
        if (!m_stateText.isEmpty())
            keepAside(QStringLiteral("the dock layouts cannot be read"));
        return false;
    }
    layouts = std::move(reading->layouts);
    for (auto& [mode, state] : layouts) {
        if (state.isEmpty())
            continue;
        auto names = DockStateCheck::names(state, DockRestore::stateVersion);
        if (!names) {
            reading->damagedModes.append(mode);
            state.clear();
        } else if (mode == 0) {
            m_firstNames = std::move(names);
        }
    }
    for (const quint32 mode : std::as_const(reading->damagedModes))
        keepAside(QStringLiteral("the dock layout of mode %1 is damaged").arg(mode));
    return !layouts.empty() && reading->damagedModes.isEmpty();
}

bool WindowRecord::takeMaximized(MaximizedDocksText::Modes& maximized)
{
    auto modes = MaximizedDocksText::parse(m_maximizedText);
    if (!modes) {
        keepAside(QStringLiteral("the maximized docks cannot be read"));
        return false;
    }
    maximized = *std::move(modes);
    return true;
}

bool WindowRecord::takeGeometry(QByteArray& geometry, bool isWindow)
{
    const auto bytes = WidgetPlacement::fromText(m_geometryText, isWindow);
    if (!bytes && !m_geometryText.isEmpty())
        keepAside(QStringLiteral("the geometry is damaged"));
    geometry = bytes.value_or(QByteArray());
    return bytes.has_value();
}

void WindowRecord::keepAside(const QString& reason) const
{
    const QString& name = m_record.GetName();
    const std::unique_ptr<ICfg> place =
        CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(DamagedRecord::asideName(name));
    DamagedRecord::keepAside(*place,
                             {{QStringLiteral("State"), m_stateText},
                              {QStringLiteral("Geometry"), m_geometryText},
                              {QStringLiteral("MaximizedDocks"), m_maximizedText}},
                             name, reason, ErrorHandler::TraceGuiBase);
}
