// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/frequencies/unitprefix.h>
#include <guibase/guibase_export.h>

#include <trovappstartup/savecomponentif.h>
#include <valueframework/persistant.h>

#include <QFileDialog>
#include <QKeyCombination>
#include <QObject>
#include <QPixmap>
#include <QString>

#include <memory>

class GuiBasePrivate;
class ICfg;
class QAction;
class QApplication;
class QComboBox;
class QDockWidget;
class QMainWindow;
class QMenu;
class QWidget;
class SortListView;
class Splitter;
class ValueSelection;

/// The services that all windows of an application share: display settings, style, help menu,
/// splash, hot keys, and window layouts that come back after a restart.
///
/// One object per process, made by the first Instance() and destroyed at process exit, so that it
/// usually outlives the application object; it owns nothing that needs one. Objects with static
/// storage that use it in their destructors must call Instance() in their constructors. GUI thread
/// only. The class is a façade: each duty is done by a class of its own.
class GUIBASE_EXPORT GuiBase : public QObject,
                               public PersistantOwner,
                               public SaveComponentIf,
                               public IAbstractTerminationTarget
{
    Q_OBJECT
public:
    /// The one object.
    static GuiBase& Instance();

    // --- Creation and wiring -------------------------------------------------------------------

    /// Prepares the application: style, style sheet, native dialogs, fonts, language, message
    /// dialog, colours and the stored settings, in this order. Not owned; null forgets it.
    void SetApplication(QApplication* application);
    QApplication* GetApplication() const;
    /// Makes the widget the main one: its layout is kept under the name "main", and the application
    /// quits when it is destroyed, even if another window refuses to close. Calls
    /// SetApplication(qApp) if that was not done. Not owned; null leaves no main widget.
    void SetMainWidget(QWidget* widget);
    QWidget* GetMainWidget() const;

    // --- Settings ------------------------------------------------------------------------------

    /// "Hz", "kHz", "MHz" (at start), "GHz" with the values 1 to 4. Owned by this object.
    ValueSelection* GetFrequencyUnit();
    /// A suffix outside Hz to GHz changes nothing.
    void SetFrequencyUnit(UnitPrefix::ESuffix suffix);
    /// The smallest step that frequencies are shown with; BaseUnit or Kilo are meaningful. At start
    /// from the configuration ("GuiBase/FrequencyResolution"), else BaseUnit.
    UnitPrefix::ESuffix GetFrequencyResolution();
    void SetFrequencyResolution(UnitPrefix::ESuffix resolution);
    /// The eight position formats, values as CoordFormat. Owned by this object.
    ValueSelection* GetPositionFormat();
    /// "Time in UTC" = 0 and "Local Time" = 1 (at start). Owned by this object.
    ValueSelection* GetTimeZone();
    /// Trov::DateTime::UTC_TimeZone or Trov::DateTime::Local_TimeZone.
    qint64 GetTimeZoneValue() const;
    /// The time (microseconds since 1970-01-01 00:00 UTC) in the chosen zone; the format is that of
    /// Trov::DateTime::toString().
    QString TimeString(quint64& time, QString format);

    /// A number that the application gives a meaning; 1 at start. Not kept over a restart.
    void SetDisplayMode(int mode);
    int GetDisplayMode();
    /// Whether frequency displays keep trailing zeros down to the resolution; false at start.
    void SetShowFrequencyInHz(bool show);
    int GetShowFrequencyInHz() const;
    const QString& GetFontFamily() const;
    void SetFontFamily(const QString& family);
    const QString& GetWFontFamily() const;
    void SetWFontFamily(const QString& family);
    /// The options that every file dialog of the application must be opened with.
    QFlags<QFileDialog::Option> UseNativeDialogs();
    /// False, with nothing changed, when the directory does not exist. An empty text, which is also
    /// the default, stands for the current folder.
    bool SetDefaultDataDirectory(const QString& directory);
    const QString& GetDefaultDataDirectory() const;

    // --- Style ---------------------------------------------------------------------------------

    /// Makes a combo box with the one style there is; it belongs to `parent`.
    QComboBox* GetStyleComboBox(QWidget* parent);
    /// Loads the style sheet that `cfg`, or else the application's and then the administrator's
    /// configuration, names under "StyleSheet". Without a file the sheet stays as it is.
    void loadStyleSheet(ICfg* cfg);

    // --- Help ----------------------------------------------------------------------------------

    /// Makes the Help menu, which belongs to `parent`: manual (F1), keyboard (Ctrl+F1) and info
    /// (Ctrl+Q). The manual entry calls `manualSlot` of the receiver; without `manualSlot` it opens
    /// `helpFile`, see slotHelpContents(). The info entry calls `infoSlot` of the receiver. An
    /// entry whose slot has no receiver, or a receiver without that slot, is left out; the latter
    /// is reported by a trace. Slots are given as SLOT() makes them. Warnings get `messageParent`,
    /// or `parent` when that is null. When another action of the window has the same shortcut, the
    /// entry gives its own up as soon as the shortcut is used.
    QMenu* CreateHelpMenu(QWidget* parent, const QString& helpFile, QObject* infoReceiver,
                          const char* infoSlot, QWidget* messageParent, const char* manualSlot);
    QMenu* GetHelpMenu() const;
    void SetHelpMenu(QMenu* menu);

    // --- Window layouts ------------------------------------------------------------------------

    /// Applies what is stored for the name, shows the widget, and keeps its geometry (and the dock
    /// layout of a main window, or of one in an MDI sub-window) from now on. Not owned. Nothing for
    /// null and for a widget that is registered.
    ///
    /// Layouts are written when the application ends, and a while after the last change. Windows
    /// whose place is not on today's screens come back whole on the nearest one. Stored bytes that
    /// are damaged are not applied; the record is kept aside under its name followed by "_damaged".
    void RegisterPersistentWidget(QWidget* widget, const QString& name);
    void UnregisterPersistentWidget(QWidget* widget);
    /// How long a changed layout, time zone, position format or colour set waits for a pause in the
    /// changes before it is written, in milliseconds; five times as long at most. Negative: nothing
    /// is written until the application ends. Default 2000.
    void SetLayoutWriteDelay(int milliseconds);
    /// Actions for menus, which reset all windows; they belong to `parent`.
    QAction* CreateResetWidgetViewAction(QObject* parent);
    QAction* CreateResetFactoryViewAction(QObject* parent);
    /// Gives every registered main window the dock layout that it had in the mode last; a mode that
    /// is new to it starts with the present layout. Shows the registered windows, except those that
    /// the user has closed; none is moved. The layouts of all modes are kept over a restart, but
    /// not which one was the last: each start begins in mode 0.
    void setMode(long mode);
    /// Makes the present dock layouts the factory layouts of the mode. In a mode that is new and
    /// was not left since, they are the ones at program start as well.
    void storeFactoryDefaultWidgets(long mode);
    /// Whether a registered main window has a dock layout of its own in the mode, from this run or
    /// an earlier one. Before the first setMode() of a mode without any, or right after it, is the
    /// time to arrange the docks and to call storeFactoryDefaultWidgets().
    bool hasModeLayout(long mode) const;
    /// Columns of lists, by the lists' names: applied as the configuration has them, from the first
    /// column or a later one on; stored only while the list is visible. Null lists are ignored.
    void ApplyColumnWidth4(const QString& name, SortListView* list, int firstColumn = 0);
    /// The columns of a visible list have changed: they are stored after the write delay of
    /// layouts, or when the application ends. Until then StoreColumnWidth4() stores them even if
    /// the list has become invisible. A SortListView with a name calls this by itself.
    void KeepColumnWidth4(const QString& name, SortListView* list);
    void StoreColumnWidth4(const QString& name, SortListView* list);
    void StoreColumnSizes2Cfg();
    /// Positions of splitters, by their storage names; see Splitter. Stored only while the splitter
    /// is visible. Null splitters are ignored. Forgetting those of a key moves no splitter.
    void ApplySplitterSizes4(const QString& key, Splitter* splitter);
    void StoreSplitterSizes4(const QString& key, Splitter* splitter);
    void ForgetSplitterSizes4(const QString& key);
    void StoreSplitterSizes2Cfg();

    // --- Hot keys ------------------------------------------------------------------------------

    /// Registers a hot key; the receiver's slot slotHotKey(int) is called, queued, with the id that
    /// is returned (from 1). It is called for the keys of other receivers too: compare the ids.
    /// `modifiers` are Qt::KeyboardModifiers. `onPress` chooses the press of the key, else its
    /// release counts. `listed` shows it in the overview, with the comment, under the scope. The
    /// receiver is not owned; one without the slot is reported by a trace. A key that the operator
    /// has chosen for the hot key replaces the given one.
    int AddHotKey(Qt::Key key, int modifiers, QObject* receiver, const QString& comment,
                  const QString& scope, bool onPress, bool listed);
    /// The first enabled hot key with exactly this key and these modifiers; -1 without one.
    int GetIndex4HotKey(Qt::Key key, int modifiers);
    /// Empty for an id that was never given.
    QString GetHotKeyComment(int id);
    QString GetHotKeyScope(int id);
    /// Takes all hot keys with this key out of the overview, but they still fire. Returns their
    /// number.
    int RemoveHotKey(Qt::Key key, int modifiers);
    /// The hot key fires no more and is not shown; `remove` = false brings it back. Ids stay.
    void RemoveHotKey(int id, bool remove);
    /// A disabled hot key neither fires nor is shown.
    void EnableHotKey(int id, bool enable);
    /// The hot keys of the receiver stay, but call nobody any more.
    void RemoveHotKeyReceiver(QObject* receiver);
    /// Gives a hot key or listed shortcut another key, for this run and later ones, as the operator
    /// does in the overview. Qt::Key(0): it has no key any more.
    void ChangeHotKey(int id, Qt::Key key, int modifiers);
    /// The display name, such as "F1"; "unknown" for a key that is not in the table of names.
    static QString GetKeyAsString(Qt::Key key);
    /// Enters the action's shortcut and text in the hot-key overview, under the scope. The operator
    /// can change the shortcut there; a changed one is set when the action is entered.
    void ShowHotKeyFrom(QAction* action, const QString& scope);
    /// Enters a key that a widget handles itself in the hot-key overview, and returns its id. The
    /// operator can change it there; the widget asks GetHotKey() for the key that counts.
    int ShowHotKey(Qt::Key key, int modifiers, const QString& comment, const QString& scope);
    /// The key that a hot key has now; no key for one that is disabled or was never given.
    QKeyCombination GetHotKey(int id);
    /// Enters the keys for the columns of every SortListView in the hot-key overview, under
    /// "Lists".
    void ShowListHotKeys();
    /// The overview as a list, which belongs to `parent`.
    QWidget* GetHotkeysCtrl(QWidget* parent);
    /// The overview as a modal dialog; tells when there are no hot keys.
    void ExecHotKeysDialog(QWidget* parent);
    bool handleHotKeyEvent(QObject* object, QEvent* event);

    // --- Other ---------------------------------------------------------------------------------

    /// Asks the editor that has the focus, through endEdit(), to commit what was typed.
    void ForceFinishEditing();
    bool isDialogVisible();
    /// The name of the signal type with this letter, 'a' to 'q' in either case.
    QString GetSignalType(char letter);
    /// Wraps the widget in a framed dock and adds it to the window. The dock belongs to the window.
    static QDockWidget* AddAsDockWidget(QWidget* widget, const QString& title,
                                        QMainWindow* mainWindow, Qt::DockWidgetArea area);
    /// Announces that the colours of the application have changed.
    void emit_signalColorsChanged();

    /// As tr(), for callers of the older interface.
    static QString trUtf8(const char* text, const char* comment = nullptr);
    static QString trUtf8(const char* text, const char* comment, int count);

    // --- Called by the toolkit and the platform libraries ----------------------------------------

    bool eventFilter(QObject* object, QEvent* event) override;
    void ApplyPersistantBeforeWrite() override;
    void ApplyPersistantAfterRead() override;
    void Save() override;
    void Load() override;
    void CommitData() override;
    void aboutToTerminate() override;

Q_SIGNALS:
    /// The colours of the application have changed: repaint.
    void signalColorsChanged();
    /// The key of the hot key with this id was pressed or released.
    void signalHotKey(int id);
    /// Escape was pressed, without modifiers.
    void hotkey_ESC_pressed();
    /// All registered windows have been brought back to their places at program start.
    void signalResetToProgramStart();
    /// All registered windows have been brought back to their first places.
    void signalResetToFactoryDefault();
    /// The editor `widget`, which has the focus, must commit what was typed.
    void endEdit(QWidget* widget);

public Q_SLOTS:
    /// For callers of the older interface: do nothing but leave a trace. TrovApplication shows the
    /// splash screen.
    void ShowSplash(QString text, uint seconds);
    void ShowSplash(QString text);
    void ShowSplash(QPixmap picture, uint seconds);
    void ShowSplash(QPixmap picture);
    void ShowSplash(uint seconds);
    void ShowSplash();
    /// Takes the splash screen away once it has been shown for as many seconds as the configuration
    /// tells under "Startup/SplashTimeout"; at once without.
    void HideSplash();
    /// As TrovApplication::HideSplash(), SplashBusy() and Write2Splash(); nothing without a start-
    /// up object.
    void HideSplashAtOnce();
    void BusySplash();
    void Write2Splash(QString text);

private Q_SLOTS:
    void SlotMainWidgetDestroyed(QObject* object);

public Q_SLOTS:
    /// Bring all registered windows back to how they were when they were registered, or before any
    /// stored layout was applied. False, and nothing done, when called from within one of the two.
    bool RestoreWidgetSize();
    bool RestoreFactoryWidgetSize();
    /// Write the layouts of the windows; the second one writes everything that this object keeps.
    void StoreWidgetSize();
    void SavePersistant();
    void slotStyleChanged(int index);
    void slotRereadTimeZoneOffset();
    /// Opens the manual with the program that the desktop has for it, or warns: the file given to
    /// CreateHelpMenu(), or when that was empty the setting "HelpFile". A file that does not exist
    /// as given is looked for beside the program.
    void slotHelpContents();
    void slotShowHotKeysInMenu();

private:
    GuiBase();
    ~GuiBase() override;

    std::unique_ptr<GuiBasePrivate> d;
};
