// SPDX-License-Identifier: MIT
#pragma once

#include <trovappstartup/icfg.h>
#include <trovappstartup/trovappstartup_export.h>

#include <QString>

class SaveComponentIf;

/// The two sections of a configuration.
enum CfgView : int {
    LayoutView = 1,   ///< Where things stand on this user's screens: columns, splitters.
    SettingsView = 2, ///< What the user or the administrator has chosen.
};

/// The configuration centre: one configuration per application and user, one per application set by
/// the administrator, and the components that are saved with them.
///
/// Each is a JSON file named "<application name>.json", read on first use and stored by Store(), by
/// TrovApplication at the end, and a while after the last change (SetAutoStoreDelay). Several
/// processes may use one file. GUI thread only; usable without an application object.
class TROVAPPSTARTUP_EXPORT CfgCenter
{
public:
    /// Name of the application; the default is QCoreApplication's, or "application" when that is
    /// empty. Path separators in a name are replaced by '_'. Setting another name or folder stores
    /// the current configuration first (a failure is traced); the other one is then read.
    static QString GetAppName();
    static void SetAppName(const QString& name);
    /// Folder of the application configuration; made on the first store. Empty: the platform's.
    static void SetConfigDir(const QString& folder);
    static QString GetConfigDir();
    static void SetAdminConfigDir(const QString& folder);

    /// The place for the view (a CfgView; any other number gets a section of its own). Owned by the
    /// centre; stays valid until the end of the process, and after SetAppName or SetConfigDir shows
    /// the configuration that is then read.
    static ICfg* GetAppCfg(int view);
    static ICfg* GetAdminCfg(int view);

    /// Full path of the application configuration's file.
    static QString GetAppCfgFileName();

    /// Stores both configurations if they have changed; false when one of them failed.
    static bool Store();
    /// Delay in milliseconds of the store after a change; negative switches it off. Default 2000.
    static void SetAutoStoreDelay(int milliseconds);
    /// Stores what waits for that delay as soon as the event loop runs: for changes that have
    /// waited elsewhere already.
    static void StoreSoon();

    /// Components are not owned; registering twice counts once; unregistering an unknown one does
    /// nothing. Components may register and unregister while being called.
    static void RegisterSaveComponent(SaveComponentIf* component);
    static void UnregisterSaveComponent(SaveComponentIf* component);
    /// Calls Save() of every component, then Store().
    static bool SaveAll();
    /// Calls CommitData() of every component, then Store(): the desktop session is about to end.
    static bool CommitAll();
    /// Drops what is in memory, reads the files again and calls Load() of every component. Changes
    /// that were not stored are stored first.
    static void LoadAll();

    CfgCenter() = delete;
};
