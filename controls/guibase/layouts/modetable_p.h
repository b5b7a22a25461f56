// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/docklayout.h>
#include <guibase/records/maximizeddocks.h>
#include <guibase/records/staterecord.h>

#include <map>

/// The dock layouts that a main window has in one mode of the application; an empty one is not
/// known.
struct ModeLayout
{
    DockLayout factory;      ///< Before any stored layout was applied.
    DockLayout programStart; ///< As the record was read.
    DockLayout latest;
};

/// The dock layouts of a window in all modes, one of which is the current one. Mode 0 is always
/// there, and current at first.
class ModeTable
{
public:
    ModeTable();

    ModeLayout& current() { return *m_current; }
    /// The layouts of the mode, new ones if it had none.
    ModeLayout& layout(quint32 mode) { return m_layouts[mode]; }
    /// Whether the latest layout of the mode is known.
    bool isKnown(quint32 mode) const;
    void setCurrent(quint32 mode) { m_current = &m_layouts[mode]; }

    /// Takes over the record's layouts as those at program start. Without any, all modes go back to
    /// their layouts at program start.
    void load(const StateRecord::Layouts& layouts, const MaximizedDocksText::Modes& maximized);
    StateRecord::Layouts latest() const;
    MaximizedDocksText::Modes latestMaximized() const;
    /// All modes go back to the layouts that `former` points to.
    void reset(DockLayout ModeLayout::*former);

private:
    std::map<quint32, ModeLayout> m_layouts;
    ModeLayout* m_current; ///< In m_layouts, whose entries stay.
};
