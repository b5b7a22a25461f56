// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/files/ilrustringlistdisplayer.h>
#include <guibase/guibase_export.h>

#include <QObject>

#include <memory>

class ICfg;
class IFileOpener;
class QAction;
class QMenu;

/// Asks for the names of files to open and to save, and keeps the recent ones in a menu and in the
/// configuration, under "RecentFile0", "RecentFile1", and so on; see LruStringListController.
///
/// The files of the menu are never looked at before one is chosen, so that paths which are out of
/// reach hold nothing up.
class GUIBASE_EXPORT FileOpenManager : public QObject, public ILruStringListDisplayer
{
    Q_OBJECT
public:
    /// Opener, menu and configuration (usually CfgCenter::GetAppCfg(SettingsView)) are not owned
    /// and may be null. Opener and menu may die first; without an opener nothing is asked. The
    /// filter is one for QFileDialog. A `maxCount` below 1 keeps no recent files.
    ///
    /// Dialogs start in the program's current folder when `cfg` holds "UseNativeDialogs" with the
    /// value false; else where the platform's dialog starts. Later they start at the file chosen
    /// last.
    FileOpenManager(IFileOpener* opener, const QString& filter, QMenu* menu, int maxCount,
                    ICfg* cfg);
    /// Takes its entries out of the menu.
    ~FileOpenManager() override;

    /// Reads the recent files and shows them in the menu, to be called once. The entries go in
    /// front of the action that is at this position when they are first shown, a moment later; a
    /// position below 0 or behind the last action appends them.
    void InitMenu(int position);
    int menuPosition() const;

    /// Makes the file the most recent one, for files that are opened in other ways. Like
    /// removeRecentFile() it does nothing before InitMenu().
    void addRecentFile(const QString& name);
    /// Takes the file out of the list, for files that are gone.
    void removeRecentFile(const QString& name);
    /// Where the next dialog starts: a folder, or a file that is proposed.
    void setLastDirectory(const QString& path);

    /// Adds the entry with the text "&<index + 1> <name>" behind those that were added before; long
    /// names are shortened while the menu is open.
    void InsertItem(int index, const QString& name) override;
    /// Takes the entry back. Other actions of the menu stay, whatever their data.
    void RemoveItem(int index) override;

public Q_SLOTS:
    /// Asks for a file and opens it.
    void SlotOpen();
    /// Opens the recent file with the index that is the action's data. Actions without an int as
    /// data, or with one that no file has, are ignored. The manager does this by itself for the
    /// entries of its menu; connecting the menu's triggered() too does not open files twice.
    void SlotOpen(QAction* action);
    /// Asks for a file name, adds the missing extension, and saves.
    void SlotSaveAs();

Q_SIGNALS:
    /// The save-as dialog was cancelled.
    void signalNotSaved();

protected:
    /// The name with the first extension of the filter (".cst" for "*.cst") when its last part has
    /// none. Parts are separated by '/' only.
    QString AddFileExtension(QString name);

private:
    enum class Purpose { Open, SaveAs };

    void openTriggered(QAction* action);
    QString askForFile(Purpose purpose);
    QString select(const QString& name);

    struct Private;
    std::unique_ptr<Private> d;
};
