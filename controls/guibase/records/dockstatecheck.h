// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QPoint>
#include <QString>

#include <map>
#include <optional>

/// Checks of stored main-window layouts, and the places of floating docks in them.
/// QMainWindow::restoreState() trusts positions, counts and nesting in a state, and may crash or
/// never return on a damaged one; so a state is walked through before it is handed over.
namespace DockStateCheck {

/// Object names in a state, which must stay as long as they do.
class Names
{
public:
    bool contains(const QString& name) const;
    qsizetype size() const { return m_names.size(); }

    void add(QByteArrayView name) { m_names.append(name); }
    /// To be called after the last add().
    void sort();

private:
    QList<QByteArrayView> m_names; ///< As they are in the state: UTF-16, big endian.
};
struct DockNames
{
    Names docks;
    Names toolBars;
};
/// Nothing for bytes that are no whole state as QMainWindow::saveState(version) writes it: the dock
/// areas with their nested rows and tabs, groups of floating docks, and the tool-bar lines.
std::optional<DockNames> names(const QByteArray& state, int version);

/// Top left corners of floating docks by their names, in pixels of the desktop.
using Places = std::map<QString, QPoint>;
/// None from bytes that are no whole state.
Places places(const QByteArray& state, int version);
/// The state with these docks at these places, as far as they float in it, in their sizes. Bytes
/// that are no whole state stay as they are.
QByteArray withPlaces(QByteArray state, int version, const Places& places);

inline constexpr int maximumSize = 1 << 20; ///< In bytes.
inline constexpr int maximumDepth = 32;     ///< Of rows in rows.
inline constexpr int maximumItems = 4096;   ///< In all, and of tool bars as well.

} // namespace DockStateCheck
