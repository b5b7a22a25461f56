// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

class ResortPopupMenu;

/// Brings a ResortPopupMenu up to date right before it is shown; see
/// ResortPopupMenu::NotifyBeforeShow().
class GUIBASE_EXPORT IUpdateMenu
{
public:
    virtual ~IUpdateMenu();

    /// Brings the entries up to date: the menu is shown next.
    virtual void UpdateMenu(ResortPopupMenu* menu) = 0;
};
