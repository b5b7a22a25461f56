// SPDX-License-Identifier: MIT
#include "mainwindow.h"

#include "centre/bandplankeeper.h"
#include "centre/bandview.h"
#include "centre/paneskeeper.h"
#include "centre/pinkeeper.h"
#include "centre/replaybar.h"
#include "colorskeeper.h"
#include "counts.h"
#include "eventrecorder.h"
#include "exports.h"
#include "infodialog.h"
#include "live/sourcelabel.h"
#include "model/panenames.h"
#include "model/recordingparser.h"
#include "panels/elidedlabel.h"
#include "panels/icons.h"
#include "panels/panel.h"
#include "receiver/receiverbar.h"
#include "recentrecordings.h"
#include "settings/settings.h"

#include <radiopanes/panes/overviewpane.h>
#include <radiopanes/panes/spectrumpane.h>

#include <guibase/services/guibase.h>
#include <guibase/undo/guiundorecordinghelper.h>
#include <guibase/undo/undoactions.h>
#include <jtbase/coordformat.h>
#include <jtbase/errorhandler.h>
#include <xmsgdlg/xmessagedialog.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

#include <utility>

namespace bandmonitor {

namespace {
constexpr int progressSteps = 1000;
constexpr QSize broadFrame(20, 60); // left for a frame, which is not known before it is there
} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_resolution(QStringLiteral("frequency_resolution"))
    , m_undo(new UndoActions(this))
    , m_bandView(new BandView(this))
    , m_replayBar(new ReplayBar(&m_session.replay(), m_values, this))
    , m_panelDocks(new PanelDocks(*this))
    , m_modes(new Modes(m_panelDocks, m_bandView->waterfallRow(), m_bandView->splitter(), this))
    , m_recorder(new EventRecorder(&m_session, m_modes, this))
    , m_recordings(new RecentRecordings(this))
{
    setObjectName(QStringLiteral("bandmonitor"));
    setAcceptDrops(true);
    if (ErrorHandler::GetMessageDlg() == nullptr)
        ErrorHandler::SetMessageDlg(std::make_unique<XMessageDialog>());
    buildUndo();
    buildCentre();
    buildStatusBar();
    connectSession();
    connectLive();
    addJobs();
    buildPanels();
    restoreSettings();
    m_exports = new Exports(*this);
    buildMenuBar();
    connectRecordings();
    connectExports();
    resize(PanelDocks::windowSize.boundedTo(screen()->availableGeometry().size() - broadFrame));
    layout()->activate();
    m_modes->showKept();
    makeNeededPanels();
    m_bandView->setFocus();
    updateTitle();
}

MainWindow::~MainWindow() = default;

void MainWindow::buildUndo()
{
    GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath(m_values->path());
    m_undo->undoAction()->setIcon(makeIcon(Icon::Undo));
    m_undo->redoAction()->setIcon(makeIcon(Icon::Redo));
    addToolBar(new ReceiverBar(*m_values, *m_undo, this));
    new ColorsKeeper(m_values, this);
}

void MainWindow::buildCentre()
{
    auto* centre = new QWidget(this);
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_bandView, 1);
    column->addWidget(m_replayBar);
    setCentralWidget(centre);
}

void MainWindow::connectSession()
{
    connect(&m_session, &Session::openProgress, this, [this](qint64 done, qint64 total) {
        m_progress->setValue(total > 0 ? static_cast<int>(done * progressSteps / total) : 0);
    });
    m_pins = new PinKeeper(m_values, &m_bandView->visibleBand(), this);
    connect(&m_session, &Session::recordingChanged, m_pins, [this] {
        m_pins->changeBand([this] { m_bandView->setRecording(m_session.recording()); });
    });
    connect(&m_session, &Session::grown, this, &MainWindow::recordingGrown);
    connect(&m_session, &Session::sweepShown, m_bandView, &BandView::showSweep);
    connect(m_bandView, &BandView::jumpRequested, &m_session.replay(), &Replay::jump);
    new BandPlanKeeper(m_values, m_bandView, m_bandView);
    new PanesKeeper(m_values, m_bandView, m_bandView);
    connect(&m_session, &Session::sweepShown, this, &MainWindow::updateTitle);
    connect(&m_session.replay(), &Replay::playingChanged, this, &MainWindow::updateTitle);
    connect(&m_session, &Session::referenceLevelsChanged, m_bandView,
            [this] { m_bandView->spectrum().setReferenceLevels(m_session.referenceLevels()); });
    connect(&m_session.jobs(), &Jobs::report, this,
            [this](const QString& text) { statusBar()->showMessage(text, messageTime); });
    connect(&m_session, &Session::opened, this, &MainWindow::recordingOpened);
    // Once everybody has the recording: a message box keeps the others waiting.
    connect(&m_session, &Session::opened, this, &MainWindow::reportSkippedLines,
            Qt::QueuedConnection);
    connect(&m_session, &Session::openCancelled, this, [this] {
        setLoadingShown(false);
        updateReport();
        statusBar()->showMessage(tr("Loading cancelled"), messageTime);
    });
    connect(&m_session, &Session::openFailed, this, [this](const QString& text) {
        setLoadingShown(false);
        m_recordings->failed(m_session.loader().path());
        statusBar()->showMessage(text, messageTime);
        tellFailure(tr("Recording not opened"), text, m_session.loader().report());
    });
}

void MainWindow::refreshTexts()
{
    m_bandView->refreshTexts();
    m_recorder->refreshTexts();
    for (Panel* panel : m_panelDocks->panels())
        panel->refreshTexts();
}

void MainWindow::restoreSettings()
{
    m_resolution.AddItem(SelectionItem(tr("1 Hz"), false, UnitPrefix::BaseUnit));
    m_resolution.AddItem(SelectionItem(tr("1 kHz"), false, UnitPrefix::Kilo));
    m_resolution.SetValue(Settings::frequencyResolution());
    GuiBase& services = GuiBase::Instance();
    services.SetFrequencyResolution(Settings::frequencyResolution());
    services.SetFrequencyUnit(Settings::frequencyUnit());
    refreshTexts();
}

void MainWindow::buildStatusBar()
{
    m_report = new ElidedLabel(this);
    m_receiver = new ElidedLabel(this);
    m_receiver->setToolTip(tr("Position of the receiver"));
    m_progress = new QProgressBar(this);
    m_progress->setRange(0, progressSteps);
    m_progress->setFixedWidth(220);
    m_cancel = new QPushButton(tr("Cancel"), this);
    m_cancel->setShortcut(QKeySequence(Qt::Key_Escape));
    m_cancel->setToolTip(tr("Stops loading (Esc)"));
    connect(m_cancel, &QPushButton::clicked, &m_session, &Session::cancelOpening);
    statusBar()->addWidget(m_progress);
    statusBar()->addWidget(m_cancel);
    statusBar()->addWidget(m_report);
    statusBar()->addPermanentWidget(new SourceLabel(&m_session, this));
    statusBar()->addPermanentWidget(m_receiver);
    setLoadingShown(false);
    m_positionFollower = SessionValues::follow({&m_values->position}, [this] { updatePosition(); });
    updatePosition();
}

void MainWindow::connectRecordings()
{
    connect(m_recordings, &RecentRecordings::chosen, this,
            [this](const QString& path) { open(path); });
    connect(m_recordings, &RecentRecordings::saved, this, [this](const QString& path) {
        statusBar()->showMessage(tr("Saved as %1").arg(path), messageTime);
    });
    connect(m_recordings, &RecentRecordings::notSaved, this,
            [this](const QString& path, const QString& reason) {
                tellNotWritten(tr("Sweep not saved"), path, reason);
            });
}

void MainWindow::connectExports()
{
    connect(m_exports, &Exports::done, this,
            [this](const QString& report) { statusBar()->showMessage(report, messageTime); });
    connect(m_exports, &Exports::failed, this, [this](const QString& path, const QString& reason) {
        tellNotWritten(tr("Not exported"), path, reason);
    });
    m_bandView->setMenuExtension([this](QMenu& menu) { addExportsTo(menu); });
}

void MainWindow::showPlace(const EventPlace& place)
{
    QString problem;
    if (place.sweep < 0)
        problem = tr("No sweep was shown at this event.");
    else if (place.recording != m_session.recordingNumber())
        problem = tr("The recording of this event is closed.");
    else if (place.sweep < m_session.recording()->first())
        problem = tr("The sweep of this event is not kept any more.");
    if (!problem.isEmpty()) {
        statusBar()->showMessage(problem, messageTime);
        return;
    }
    m_session.replay().pause();
    m_session.replay().jump(place.sweep);
}

void MainWindow::complete()
{
    if (std::exchange(m_isComplete, true))
        return;
    m_panelDocks->makePanels();
    buildMenus();
}

void MainWindow::open(const QString& path, OnFailure onFailure)
{
    complete();
    m_onFailure = onFailure;
    m_progress->setValue(0);
    m_progress->setFormat(tr("Loading %1  %p %").arg(QFileInfo(path).fileName()));
    setLoadingShown(true);
    m_session.open(path);
}

void MainWindow::tellFailure(const QString& title, const QString& text, const QString& details)
{
    const OnFailure onFailure = m_onFailure;
    Q_EMIT notOpened(text, onFailure);
    if (onFailure == OnFailure::ShowMessage)
        showMessage(title, text, details);
}

void MainWindow::setLoadingShown(bool shown)
{
    const bool hadFocus = m_cancel->hasFocus();
    m_progress->setVisible(shown);
    m_cancel->setVisible(shown);
    m_report->setVisible(!shown);
    if (hadFocus && !shown)
        m_bandView->setFocus();
}

void MainWindow::recordingGrown()
{
    if (m_bandView->leavesBand())
        m_pins->changeBand([this] { m_bandView->recordingGrown(); });
    else
        m_bandView->recordingGrown();
    m_bandView->historyGrown();
    m_replayBar->refreshRange();
    updateTitle();
}

void MainWindow::recordingOpened()
{
    setLoadingShown(false);
    m_bandView->recordingCompleted();
    m_recordings->opened(m_session.loader().path());
    updateReport();
}

void MainWindow::updateReport()
{
    if (!m_session.recording())
        return;
    const RecordingLoader& loader = m_session.loader();
    const Recording& recording = *m_session.recording();
    const qint64 skipped = loader.recording() == m_session.recording() ? loader.skippedCount() : 0;
    QString report = tr("%1, up to %2")
                         .arg(sweepCountText(recording.count() - recording.first()),
                              binCountText(static_cast<qint64>(recording.largestBinCount())));
    if (skipped > 0)
        report += QLatin1String(", ") + skippedLinesText(skipped);
    m_report->setText(report);
}

void MainWindow::reportSkippedLines()
{
    const RecordingLoader& loader = m_session.loader();
    if (loader.skippedCount() == 0 || m_onFailure == OnFailure::Tell)
        return;
    showMessage(tr("Recording opened with gaps"),
                tr("%1 cannot be read as a whole: %2.")
                    .arg(m_session.fileName(), skippedLinesText(loader.skippedCount())),
                loader.report() + QLatin1Char('\n') + RecordingParser::expectedForm());
}

void MainWindow::tellNotWritten(const QString& title, const QString& path, const QString& reason)
{
    const QFileInfo folder(QFileInfo(path).absolutePath());
    showMessage(title,
                folder.isDir() ? tr("%1 cannot be written: %2.").arg(path, reason)
                               : tr("%1 cannot be written: there is no folder %2.")
                                     .arg(path, QDir::toNativeSeparators(folder.filePath())),
                {});
}

void MainWindow::showMessage(const QString& title, const QString& text, const QString& details)
{
    UserMessage message;
    message.severity = MessageSeverity::Warning;
    message.title = title;
    message.text = text;
    message.details = details;
    ErrorHandler::GetMessageDlg()->Show(message, this);
}

void MainWindow::updateTitle()
{
    const Replay& replay = m_session.replay();
    if (replay.position() < 0) {
        setWindowTitle(QStringLiteral("bandmonitor"));
        return;
    }
    if (replay.isFollowing()) {
        setWindowTitle(tr("%1 – live – bandmonitor").arg(m_session.fileName()));
        return;
    }
    setWindowTitle(tr("%1 – sweep %2 of %3 – bandmonitor")
                       .arg(m_session.fileName())
                       .arg(replay.position() + 1)
                       .arg(replay.count()));
}

void MainWindow::updatePosition()
{
    const auto [latitude, longitude] = m_values->position.GetValue();
    const auto format =
        static_cast<CoordFormat>(qRound(GuiBase::Instance().GetPositionFormat()->GetValue()));
    const QString position = formatPosition(latitude, longitude, format);
    m_receiver->setText(position.isEmpty() ? tr("Receiver: no position in this format")
                                           : tr("Receiver: %1").arg(position));
}

void MainWindow::frequencyUnitChanged()
{
    Settings::setFrequencyUnit(static_cast<UnitPrefix::ESuffix>(
        qRound(GuiBase::Instance().GetFrequencyUnit()->GetValue())));
    refreshTexts();
}

void MainWindow::frequencyResolutionChanged()
{
    const auto resolution = static_cast<UnitPrefix::ESuffix>(qRound(m_resolution.GetValue()));
    GuiBase::Instance().SetFrequencyResolution(resolution);
    Settings::setFrequencyResolution(resolution);
    refreshTexts();
}

void MainWindow::timeZoneChanged()
{
    m_replayBar->refresh();
    refreshTexts();
}

/// Texts lie in all widgets, lists and menus, and in what jobs and events have already told: they
/// are made in one language, from the start on.
void MainWindow::languageChanged()
{
    if (!m_language.keep())
        return;
    UserMessage message;
    message.title = tr("Language");
    message.text = tr("The language changes when bandmonitor starts the next time.");
    ErrorHandler::GetMessageDlg()->Show(message, this);
}

/// Where nothing below has a menu of its own.
void MainWindow::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = createPopupMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSeparator();
    addExportsTo(*menu);
    menu->popup(event->globalPos());
}

void MainWindow::addExportsTo(QMenu& menu) const
{
    menu.addMenu(m_exports->copyMenu());
    menu.addMenu(m_exports->exportMenu());
}

void MainWindow::showInfo()
{
    InfoDialog(this).exec();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.first().isLocalFile())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.first().isLocalFile())
        open(urls.first().toLocalFile());
}

} // namespace bandmonitor
