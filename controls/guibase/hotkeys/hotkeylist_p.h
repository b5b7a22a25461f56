// SPDX-License-Identifier: MIT
#pragma once

#include "hotkey.h"

#include <guibase/lists/sortlistview.h>

class HotKeyRegistry;

/// The rows of the hot-key overview, one for each hot key that is shown.
class HotKeyList : public SortListView
{
    Q_OBJECT
public:
    /// The registry must outlive the list.
    HotKeyList(HotKeyRegistry& registry, QWidget* parent);

    /// Makes the rows anew; the current hot key stays current.
    void populate();
    /// How many hot keys share their key with another one.
    int conflictCount() const { return m_conflictCount; }
    /// Opens the editor for the current row; nothing without one.
    void editCurrent();
    /// Gives the hot key of the current row its registered key back.
    void resetCurrent();
    /// The id of the current row's hot key; 0 without one.
    int currentId() const;

Q_SIGNALS:
    /// The operator has given a hot key another key.
    void hotKeyChanged();

protected:
    /// Return opens the editor, and does not press the default button of a dialog as well.
    void keyPressEvent(QKeyEvent* event) override;
    /// Begins with the first row.
    void showEvent(QShowEvent* event) override;

private:
    void edit(int id);
    void assign(int id, const HotKeyStroke& stroke);
    QString warningFor(int id, const HotKeyStroke& stroke) const;

    HotKeyRegistry& m_registry;
    int m_conflictCount = 0;
};
