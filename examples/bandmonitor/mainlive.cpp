// SPDX-License-Identifier: MIT
#include "mainwindow.h"

#include "counts.h"
#include "live/commandsource.h"
#include "live/sourcelabel.h"
#include "livedialog.h"
#include "model/recordingwriter.h"
#include "recentrecordings.h"

#include <guibase/services/guibase.h>
#include <guibase/widgets/widgetflasher.h>

#include <QAction>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>

namespace bandmonitor {

void MainWindow::openLive(std::unique_ptr<LiveSource> source, OnFailure onFailure)
{
    complete();
    m_onFailure = onFailure;
    m_session.openLive(std::move(source), m_historyBytes);
}

void MainWindow::buildLiveEntries(QMenu* menu)
{
    connect(addEntry(menu, tr("&Live…"), {Qt::CTRL | Qt::SHIFT | Qt::Key_O}, false),
            &QAction::triggered, this, [this] {
                const QString command = LiveDialog(this).ask();
                if (!command.isEmpty())
                    openLive(std::make_unique<CommandSource>(command));
            });
    QAction* stop = addEntry(menu, tr("S&top live input"), {Qt::CTRL | Qt::ALT | Qt::Key_O}, false);
    stop->setEnabled(false);
    connect(stop, &QAction::triggered, &m_session, &Session::stopLive);
    connect(&m_session, &Session::liveChanged, stop,
            [this, stop] { stop->setEnabled(m_session.isLive()); });
    QAction* save =
        addEntry(menu, tr("Save re&cording as…"), {Qt::CTRL | Qt::SHIFT | Qt::Key_W}, false);
    save->setEnabled(false);
    connect(save, &QAction::triggered, this, &MainWindow::saveRecording);
    connect(&m_session, &Session::begun, save, [save] { save->setEnabled(true); });
}

void MainWindow::connectLive()
{
    connect(&m_session, &Session::liveChanged, this, &MainWindow::updateReport);
    connect(&m_session, &Session::liveEnded, this, [this](const QString& text) {
        updateTitle();
        updateReport();
        statusBar()->showMessage(tr("Live input has ended. %1").arg(text), messageTime);
        if (!m_session.live()->isStopped()) // The user did not ask for it.
            WidgetFlasher::flash(findChild<SourceLabel*>());
    });
    connect(&m_session, &Session::liveFailed, this,
            [this](const QString& text) { tellFailure(tr("No live input"), text, {}); });
    const RecordingSaver& saver = m_session.saver();
    connect(&saver, &RecordingSaver::saved, m_recordings, &RecentRecordings::noteSaved);
    connect(&saver, &RecordingSaver::failed, this,
            [this](const QString& path, const QString& reason) {
                m_recordings->failed(path);
                statusBar()->clearMessage();
                tellNotWritten(tr("Recording not saved"), path, reason);
            });
}

void MainWindow::saveRecording()
{
    m_recordings->askWhere(tr("%1.csv").arg(baseName()), [this](const QString& path) {
        statusBar()->showMessage(tr("Saving as %1…").arg(path));
        m_session.save(path, receiverRemark(m_values->receiver().addressText()));
    });
}

QString MainWindow::baseName() const
{
    const auto recording = m_session.recording();
    if (!m_session.showsLive())
        return QFileInfo(m_session.fileName()).completeBaseName();
    quint64 begin = recording->sweep(recording->first()).timeUs;
    return tr("live %1").arg(
        GuiBase::Instance().TimeString(begin, QStringLiteral("yyyy-MM-dd hh-mm-ss")));
}

} // namespace bandmonitor
