// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/autohidestate.h>
#include <guibase/records/recordstore.h>

#include <QMap>
#include <QString>

#include <optional>

namespace QMainWindowHelpers {

/// Where the auto-hide mode of a main window is stored, and the docks that it names but that are
/// not there yet.
class AutoHideRecord
{
public:
    AutoHideRecord();
    ~AutoHideRecord();

    /// An empty name stores nothing from now on.
    void setName(const QString& name) { m_name = name; }
    bool hasName() const { return !m_name.isEmpty(); }
    /// What is stored under the name; nothing when there is no sound record. A damaged one is kept
    /// aside.
    std::optional<AutoHideState> read() const;
    /// Does nothing without a name, and while writing is paused.
    void write(const AutoHideState& state) const;
    void setPaused(bool paused) { m_isPaused = paused; }

    /// The sides of docks that are not there.
    const QMap<QString, Qt::ToolBarArea>& expected() const { return m_expected; }
    void setExpected(const QMap<QString, Qt::ToolBarArea>& sides) { m_expected = sides; }
    void expect(const QString& dock, Qt::ToolBarArea side) { m_expected.insert(dock, side); }
    /// The side of a dock that has come; it is expected no longer.
    Qt::ToolBarArea take(const QString& dock);

private:
    RecordStore m_store{LayoutView, QStringLiteral("Auto hide")};
    QString m_name;
    bool m_isPaused = false;
    QMap<QString, Qt::ToolBarArea> m_expected;
};

} // namespace QMainWindowHelpers
