// SPDX-License-Identifier: MIT
#pragma once

#include "displaysettings_p.h"
#include "helpmenu_p.h"
#include "settingsrecord_p.h"

#include <guibase/hotkeys/hotkeyregistry.h>
#include <guibase/layouts/persistentwidgetregistry.h>
#include <guibase/lists/columns/columntable.h>
#include <guibase/splitters/splittertable.h>

#include <QApplication>
#include <QPointer>
#include <QWidget>

/// What stands behind GuiBase: one object for each duty. The members of GuiBase are defined in the
/// room of their duty, so this header is private to all those files, not to one room.
class GuiBasePrivate
{
public:
    explicit GuiBasePrivate(GuiBase& services);

    /// The desktop has become dark or light, or changed its colours otherwise.
    static void followDesktopColors();

    DisplaySettings settings;
    SettingsRecord record;
    HelpMenu helpMenu;
    HotKeyRegistry hotKeys;
    PersistentWidgetRegistry persistentWidgets;
    ColumnTable columns;
    SplitterTable splitters;
    QPointer<QApplication> application;
    QPointer<QWidget> mainWidget;
    /// Tells the main widget from others also while it is destroyed; never dereferenced.
    const QObject* mainWidgetIdentity = nullptr;
    QMetaObject::Connection mainWidgetConnection;
};
