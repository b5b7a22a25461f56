// SPDX-License-Identifier: MIT
#pragma once

#include "docks/modes.h"
#include "docks/paneldocks.h"
#include "model/session.h"
#include "settings/languagechoice.h"
#include "settings/sessionvalues.h"

#include <valueframework/observable.h>
#include <valueframework/valueselection.h>

#include <QMainWindow>

#include <memory>
#include <optional>

class QLabel;
class QProgressBar;
class QPushButton;
class UndoActions;

namespace bandmonitor {

class BandView;
struct ChoiceEntry;
class EventRecorder;
class Exports;
class PinKeeper;
class RecentRecordings;
class ReplayBar;

/// The main window: it shows a session. The band with its replay bar is in the centre, panels lie
/// around it, with menus and a status bar.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// What a recording that cannot be opened, or only with gaps, leads to.
    enum class OnFailure {
        ShowMessage, ///< A message box.
        Tell,        ///< Nothing but notOpened(), for the start of the program.
    };

    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    Session& session() { return m_session; }
    /// What the user sets in the window.
    SessionValues& values() { return *m_values; }
    /// Makes what the first frame does not show: entries of menus, and panels in hidden docks.
    void complete();
    /// Opens the recording in the session, see Session::open(), in a window that is complete then.
    void open(const QString& path, OnFailure onFailure = OnFailure::ShowMessage);
    /// Shows the layout that was kept; once the window is the main widget of the services.
    void announceModes() { m_modes->announce(); }

    /// Begins to read live input, see Session::openLive().
    void openLive(std::unique_ptr<LiveSource> source, OnFailure onFailure = OnFailure::ShowMessage);
    /// The memory that the next live input may take; LiveInput::defaultHistory at first.
    void setHistory(std::size_t bytes) { m_historyBytes = bytes; }

    BandView& bandView() { return *m_bandView; }
    PanelDocks& panelDocks() { return *m_panelDocks; }
    /// The panel of this class, which must be in the table of panels.
    template <typename PanelClass>
    PanelClass& panel() const
    {
        m_panelDocks->makePanels();
        return *findChild<PanelClass*>();
    }
    Modes& modes() { return *m_modes; }
    /// What the user can choose; "1 Hz" and "1 kHz".
    ValueSelection& frequencyResolution() { return m_resolution; }

    /// Shows a warning, and waits until the user has read it.
    void showMessage(const QString& title, const QString& text, const QString& details);
    /// The same for a file that could not be written.
    void tellNotWritten(const QString& title, const QString& path, const QString& reason);

    /// Of files that are saved of the recording, without an ending; empty without a recording.
    QString baseName() const;

public Q_SLOTS:
    /// Opens the dialog about the program.
    void showInfo();

Q_SIGNALS:
    /// What was opened has failed; `text` is one line for the user. A message box comes after it.
    void notOpened(const QString& text, OnFailure onFailure);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // mainmenus.cpp
    void buildMenuBar();
    void buildMenus();
    QMenu* buildFileMenu();
    QMenu* buildEditMenu();
    QMenu* buildViewMenu();
    void buildBandEntries(QMenu* menu);
    void buildTraceMenu(QMenu* menu);
    void buildModeEntries(QMenu* menu);
    QMenu* buildReplayMenu();
    void addSelectionMenu(QMenu* menu, const QString& title, const ChoiceEntry& entry,
                          void (MainWindow::*changed)());
    /// Adds the action to the menu; with `bandKey` its shortcut works in the band view only, so
    /// that single keys stay usable in the other controls.
    QAction* addEntry(QMenu* menu, QAction* action, bool bandKey);
    QAction* addEntry(QMenu* menu, const QString& text, const QList<QKeySequence>& keys,
                      bool bandKey);

    // mainpanels.cpp
    void buildPanels();
    void makeNeededPanels();

    // mainlive.cpp
    void buildLiveEntries(QMenu* menu);
    void connectLive();
    void saveRecording();

    // mainjobs.cpp
    void addJobs();
    std::optional<JobState> exportSweep();
    void saveVisibleSweep();

    void buildCentre();
    void buildUndo();
    void buildStatusBar();
    void connectSession();
    void connectRecordings();
    void connectExports();
    void addExportsTo(QMenu& menu) const;
    void showPlace(const EventPlace& place);
    void restoreSettings();
    void refreshTexts();
    void recordingGrown();
    void recordingOpened();
    void updateReport();
    void reportSkippedLines();
    void tellFailure(const QString& title, const QString& text, const QString& details);
    void setLoadingShown(bool shown);
    void updateTitle();
    void updatePosition();

    void frequencyUnitChanged();
    void frequencyResolutionChanged();
    void timeZoneChanged();
    void languageChanged();

    static constexpr int messageTime = 8000; // of the status bar, in milliseconds

    ValueSelection m_resolution;
    LanguageChoice m_language;
    std::shared_ptr<SessionValues> m_values = std::make_shared<SessionValues>();
    SessionValues::Followers m_positionFollower;
    UndoActions* m_undo;
    Session m_session;
    bool m_isComplete = false;
    OnFailure m_onFailure = OnFailure::ShowMessage;
    std::size_t m_historyBytes = LiveInput::defaultHistory;
    BandView* m_bandView;
    ReplayBar* m_replayBar;
    PanelDocks* m_panelDocks;
    Modes* m_modes;
    EventRecorder* m_recorder;
    RecentRecordings* m_recordings;
    PinKeeper* m_pins = nullptr;
    Exports* m_exports = nullptr;
    QLabel* m_report = nullptr;
    QLabel* m_receiver = nullptr;
    QProgressBar* m_progress = nullptr;
    QPushButton* m_cancel = nullptr;
};

} // namespace bandmonitor
