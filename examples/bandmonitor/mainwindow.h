// SPDX-License-Identifier: MIT
#pragma once

#include "docks/panels.h"
#include "model/bearings.h"
#include "model/eventlog.h"
#include "model/joblist.h"
#include "model/recordingloader.h"
#include "model/replay.h"
#include "model/signalwatch.h"
#include "modes.h"

#include <valueframework/observable.h>
#include <valueframework/valueselection.h>

#include <QMainWindow>

#include <optional>

class QLabel;
class QProgressBar;
class QPushButton;

namespace bandmonitor {

class BandView;
class BearingsPane;
class EventLogPane;
class EventRecorder;
class Jobs;
class JobsPane;
class LevelsPane;
class ReceiverControl;
class ReceiverPane;
class RecentRecordings;
class ReplayBar;
class SignalsPane;

/// The main window: the band with its replay bar in the centre, panels around it, menus and status
/// bar, all for one recording.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// What a recording that cannot be opened leads to.
    enum class OnFailure {
        ShowMessage, ///< A message box; the former recording stays.
        Tell,        ///< Only openFailed(), for the start of the program.
    };

    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Begins to load the recording; recordingOpened(), openFailed() or nothing (cancelled) follows
    /// from the event loop. Until then the former recording stays.
    void open(const QString& path, OnFailure onFailure = OnFailure::ShowMessage);
    /// Tells the services the modes of the window; once it is their main widget.
    void announceModes() { m_modes->announce(); }
    bool isLoading() const { return m_loader.isLoading(); }

    Replay& replay() { return m_replay; }
    BandView& bandView() { return *m_bandView; }
    SignalsPane& signalsPane() { return *m_signals; }
    LevelsPane& levelsPane() { return *m_levels; }
    Panels& panels() { return *m_panels; }
    Modes& modes() { return *m_modes; }
    Jobs& jobs() { return *m_jobs; }
    ReceiverPane& receiverPane() { return *m_receiverPane; }
    EventLog& eventLog() { return m_events; }
    /// What the user can choose; "1 Hz" and "1 kHz".
    ValueSelection& frequencyResolution() { return m_resolution; }

Q_SIGNALS:
    void recordingOpened();
    void openFailed(const QString& text);

public Q_SLOTS:
    void showInfo();
    void cancelLoading();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // mainmenus.cpp
    void buildMenus();
    void buildFileMenu();
    void buildViewMenu();
    void buildModeEntries(QMenu* menu);
    void buildReplayMenu();
    void buildJobsMenu();
    void buildColorsMenu();
    void buildHelpMenu();
    void addSelectionMenu(QMenu* menu, const QString& title, ValueSelection* selection,
                          void (MainWindow::*changed)());
    /// Adds the action to the menu; with `paneKey` its shortcut works in the panes only, so that
    /// single keys stay usable in the other controls.
    QAction* addEntry(QMenu* menu, QAction* action, bool paneKey);
    QAction* addEntry(QMenu* menu, const QString& text, const QList<QKeySequence>& keys,
                      bool paneKey);

    // mainpanels.cpp
    void buildPanels();

    // mainjobs.cpp
    void addJobs();
    std::optional<JobState> exportSweep();
    void saveVisibleSweep();
    QByteArray exportText(const Sweep& sweep) const;

    void buildCentre();
    void connectPanes();
    void refreshTexts();
    void buildStatusBar();
    void connectLoader();
    void connectRecordings();
    void restoreSettings();
    void takeOverRecording();
    void reportSkippedLines();
    void showMessage(const QString& title, const QString& text, const QString& details);
    void setLoadingShown(bool shown);
    void showSweep(qsizetype position, qsizetype previous);
    void updateTitle();
    void updatePosition();

    void loadColors();
    void saveColors();
    void restoreFactoryColors();
    void frequencyUnitChanged();
    void frequencyResolutionChanged();
    void timeZoneChanged();

    static constexpr int messageTime = 8000; // of the status bar, in milliseconds

    ValueSelection m_resolution;
    RecordingLoader m_loader;
    OnFailure m_onFailure = OnFailure::ShowMessage;
    Replay m_replay;
    SignalWatch m_watch;
    Bearings m_bearings;
    EventLog m_events;
    QString m_fileName;
    BandView* m_bandView;
    ReplayBar* m_replayBar;
    SignalsPane* m_signals;
    LevelsPane* m_levels;
    Panels* m_panels;
    Modes* m_modes;
    Jobs* m_jobs;
    JobsPane* m_jobsPane;
    BearingsPane* m_bearingsPane;
    EventLogPane* m_eventsPane;
    EventRecorder* m_recorder;
    ReceiverPane* m_receiverPane;
    ReceiverControl* m_receiverControl;
    RecentRecordings* m_recordings;
    QLabel* m_report = nullptr;
    QLabel* m_receiver = nullptr;
    QProgressBar* m_progress = nullptr;
    QPushButton* m_cancel = nullptr;
};

} // namespace bandmonitor
