// SPDX-License-Identifier: MIT
#include "mainwindow.h"

#include "eventrecorder.h"
#include "infodialog.h"
#include "jobs.h"
#include "panes/bandview.h"
#include "panes/bearingspane.h"
#include "panes/eventlogpane.h"
#include "panes/jobspane.h"
#include "panes/levelspane.h"
#include "panes/signalspane.h"
#include "panes/spectrumpane.h"
#include "receiver/receivercontrol.h"
#include "receiver/receiverpane.h"
#include "recentrecordings.h"
#include "replaybar.h"
#include "settings.h"

#include <guibase/services/guibase.h>
#include <jtbase/coordformat.h>
#include <jtbase/errorhandler.h>
#include <xmsgdlg/xmessagedialog.h>

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

namespace bandmonitor {

namespace {
constexpr int progressSteps = 1000;
constexpr QSize normalSize(1100, 800);
} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_resolution(QStringLiteral("frequency_resolution"))
    , m_bandView(new BandView(this))
    , m_replayBar(new ReplayBar(&m_replay, this))
    , m_signals(new SignalsPane(&m_watch, this))
    , m_levels(new LevelsPane(this))
    , m_panels(new Panels(*this))
    , m_modes(new Modes(m_panels, m_bandView->waterfallRow(), m_bandView->splitter(), this))
    , m_jobs(new Jobs(&m_replay, this))
    , m_jobsPane(new JobsPane(m_jobs, &m_replay, this))
    , m_bearingsPane(new BearingsPane(&m_bearings, this))
    , m_eventsPane(new EventLogPane(&m_events, this))
    , m_recorder(new EventRecorder(&m_events, m_jobs, m_modes, &m_watch, this))
    , m_receiverPane(new ReceiverPane(this))
    , m_receiverControl(new ReceiverControl(m_receiverPane, m_bandView, &m_replay, &m_watch, this))
    , m_recordings(new RecentRecordings(this))
{
    setObjectName(QStringLiteral("bandmonitor"));
    setAcceptDrops(true);
    if (ErrorHandler::GetMessageDlg() == nullptr)
        ErrorHandler::SetMessageDlg(std::make_unique<XMessageDialog>());
    buildCentre();
    buildPanels();
    restoreSettings();
    addJobs();
    buildMenus();
    buildStatusBar();
    connectLoader();
    connectRecordings();
    connectPanes();
    resize(normalSize.boundedTo(screen()->availableGeometry().size()));
    layout()->activate();
    m_modes->showKept();
    m_bandView->setFocus();
    updateTitle();
}

MainWindow::~MainWindow()
{
    // The menus go with the window's children, after the selection that they observe.
    m_bandView->setRecording(nullptr);
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

void MainWindow::connectPanes()
{
    connect(&m_replay, &Replay::positionChanged, this, &MainWindow::showSweep);
    const auto showLevels = [this] {
        m_bandView->spectrum().setReferenceLevels(m_levels->points());
    };
    connect(m_levels, &LevelsPane::pointsChanged, m_bandView, showLevels);
    showLevels();
    connect(m_signals, &SignalsPane::signalChosen, m_bandView, &BandView::showFrequency);
    connect(m_signals, &SignalsPane::followedMoved, m_bandView, &BandView::showFrequency);
    connect(m_bearingsPane, &BearingsPane::signalChosen, m_bandView, &BandView::showFrequency);
    connect(this, &MainWindow::recordingOpened, m_receiverControl,
            &ReceiverControl::recordingOpened);
    connect(m_receiverControl, &ReceiverControl::detectionChanged, this,
            [this] { showSweep(m_replay.position(), -1); });
    connect(m_jobs, &Jobs::report, this,
            [this](const QString& text) { statusBar()->showMessage(text, messageTime); });
}

void MainWindow::refreshTexts()
{
    m_bandView->refreshTexts();
    m_signals->refreshTexts();
    m_levels->refreshTexts();
    m_bearingsPane->refreshTexts();
    m_jobsPane->refresh();
    m_eventsPane->refreshTexts();
    m_recorder->refreshTexts();
}

void MainWindow::restoreSettings()
{
    m_resolution.AddItem(SelectionItem(tr("1 Hz"), false, UnitPrefix::BaseUnit));
    m_resolution.AddItem(SelectionItem(tr("1 kHz"), false, UnitPrefix::Kilo));
    m_resolution.SetValue(Settings::frequencyResolution());
    GuiBase& services = GuiBase::Instance();
    services.SetFrequencyResolution(Settings::frequencyResolution());
    services.SetFrequencyUnit(Settings::frequencyUnit());
    m_bandView->setHoldVisible(Settings::isHoldVisible());
    refreshTexts();
}

void MainWindow::buildStatusBar()
{
    m_report = new QLabel(this);
    m_receiver = new QLabel(this);
    m_receiver->setToolTip(tr("Position of the receiver"));
    m_progress = new QProgressBar(this);
    m_progress->setRange(0, progressSteps);
    m_progress->setFixedWidth(220);
    m_cancel = new QPushButton(tr("Cancel"), this);
    m_cancel->setShortcut(QKeySequence(Qt::Key_Escape));
    connect(m_cancel, &QPushButton::clicked, this, &MainWindow::cancelLoading);
    statusBar()->addWidget(m_progress);
    statusBar()->addWidget(m_cancel);
    statusBar()->addWidget(m_report);
    statusBar()->addPermanentWidget(m_receiver);
    setLoadingShown(false);
    updatePosition();
}

void MainWindow::connectLoader()
{
    connect(&m_loader, &RecordingLoader::progress, this, [this](qint64 done, qint64 total) {
        m_progress->setValue(total > 0 ? static_cast<int>(done * progressSteps / total) : 0);
    });
    connect(&m_loader, &RecordingLoader::finished, this, &MainWindow::takeOverRecording);
    connect(&m_loader, &RecordingLoader::cancelled, this, [this] {
        setLoadingShown(false);
        statusBar()->showMessage(tr("Loading cancelled"), 4000);
    });
    connect(&m_loader, &RecordingLoader::failed, this, [this](const QString& text) {
        setLoadingShown(false);
        m_recorder->recordingFailed(text);
        m_recordings->failed(m_loader.path());
        Q_EMIT openFailed(text);
        if (m_onFailure == OnFailure::ShowMessage)
            showMessage(tr("Recording not opened"), text, m_loader.report());
    });
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
                showMessage(tr("Sweep not saved"), tr("%1 cannot be written.").arg(path), reason);
            });
}

void MainWindow::open(const QString& path, OnFailure onFailure)
{
    m_onFailure = onFailure;
    m_progress->setValue(0);
    m_progress->setFormat(tr("Loading %1  %p %").arg(QFileInfo(path).fileName()));
    setLoadingShown(true);
    m_loader.load(path);
}

void MainWindow::cancelLoading()
{
    m_loader.cancel();
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

void MainWindow::takeOverRecording()
{
    setLoadingShown(false);
    m_fileName = QFileInfo(m_loader.path()).fileName();
    m_recordings->opened(m_loader.path());
    const std::shared_ptr<const Recording> recording = m_loader.recording();
    m_bandView->setRecording(recording);
    m_watch.setRecording(recording);
    m_recorder->recordingOpened(m_fileName, recording->count(), m_loader.skippedCount());
    m_jobs->reset();
    m_replay.setRecording(recording);
    m_replayBar->refresh();
    showSweep(m_replay.position(), -1);

    const QLocale locale;
    QString report =
        tr("%1 sweeps, up to %2 bins")
            .arg(locale.toString(recording->count()),
                 locale.toString(static_cast<qulonglong>(recording->largestBinCount())));
    if (m_loader.skippedCount() > 0)
        report += tr(", %1 lines skipped").arg(locale.toString(m_loader.skippedCount()));
    m_report->setText(report);
    Q_EMIT recordingOpened();
    if (m_loader.skippedCount() > 0)
        reportSkippedLines();
}

void MainWindow::reportSkippedLines()
{
    if (m_onFailure == OnFailure::ShowMessage)
        showMessage(tr("Recording opened with gaps"),
                    tr("%1 lines of %2 cannot be read and were skipped.")
                        .arg(QLocale().toString(m_loader.skippedCount()), m_fileName),
                    m_loader.report());
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

void MainWindow::showSweep(qsizetype position, qsizetype previous)
{
    m_bandView->showSweep(position, previous);
    m_watch.showSweep(position, previous);
    m_recorder->sweepShown();
    m_bearings.update(m_watch.tracks());
    m_signals->refresh();
    updateTitle();
    m_jobs->sweepsPlayed(position, previous);
}

void MainWindow::updateTitle()
{
    if (m_replay.position() < 0) {
        setWindowTitle(QStringLiteral("bandmonitor"));
        return;
    }
    setWindowTitle(tr("%1 – sweep %2 of %3 – bandmonitor")
                       .arg(m_fileName)
                       .arg(m_replay.position() + 1)
                       .arg(m_replay.count()));
}

void MainWindow::updatePosition()
{
    const auto [latitude, longitude] = Settings::receiverPosition();
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
