// SPDX-License-Identifier: MIT
#include "jobs.h"
#include "mainwindow.h"
#include "model/levelline.h"
#include "model/recordingwriter.h"
#include "model/textfile.h"
#include "panes/bandview.h"
#include "panes/levelspane.h"
#include "panes/signalspane.h"
#include "receiver/receivercontrol.h"
#include "recentrecordings.h"
#include "settings.h"

#include <guibase/dialogs/modaldialogs.h>
#include <guibase/services/guibase.h>

#include <QFileInfo>
#include <QStatusBar>

namespace bandmonitor {

void MainWindow::addJobs()
{
    m_jobs->addTask(tr("Jump to the start"), [this] {
        m_replay.jump(0);
        return JobState::Done;
    });
    m_jobs->addTask(tr("Start the hold maximum anew"), [this] {
        m_bandView->resetHold();
        return JobState::Done;
    });
    m_jobs->addTask(tr("Export the shown sweep…"), [this] { return exportSweep(); });
    using Found = std::optional<qsizetype>;
    m_jobs->addPause(tr("Pause at the next new signal"), [this](qsizetype, qsizetype last) {
        const SignalTrack* newcomer = m_watch.newcomer();
        if (newcomer != nullptr)
            m_bandView->showFrequency(newcomer->signal.centreHz);
        return newcomer != nullptr ? Found(last) : Found();
    });
    const auto pauseAbove = [this](qsizetype first, qsizetype last) {
        for (qsizetype sweep = first; sweep <= last; ++sweep) {
            const auto hertz = firstAbove(m_replay.recording()->sweep(sweep), m_levels->points());
            if (!hertz)
                continue;
            m_bandView->showFrequency(*hertz);
            return Found(sweep);
        }
        return Found();
    };
    m_jobs->addPause(tr("Pause above the reference levels"), pauseAbove);
}

QByteArray MainWindow::exportText(const Sweep& sweep) const
{
    return receiverRemark(m_receiverControl->settings().addressText()) + sweepText(sweep);
}

std::optional<JobState> MainWindow::exportSweep()
{
    const Sweep sweep = m_replay.sweep();
    if (sweep.isEmpty())
        return JobState::Failed;
    const QByteArray text = exportText(sweep);
    const QString path =
        ModalDialogs::askForFile(this, {QFileDialog::AcceptSave, tr("Export the sweep"),
                                        Settings::lastFolder(), tr("Recordings (*.csv)")});
    if (path.isEmpty())
        return std::nullopt;
    if (writeTextFile(path, text))
        return JobState::Failed;
    Settings::setLastFolder(QFileInfo(path).absolutePath());
    return JobState::Done;
}

/// As recorded, like all that is exported: opened again, it is shown like the sweep it came from.
void MainWindow::saveVisibleSweep()
{
    const Sweep sweep = m_replay.sweep();
    const FrequencyView& view = m_bandView->view();
    const std::vector<Segment> hops = hopsBetween(sweep, view.low(), view.high());
    if (hops.empty()) {
        statusBar()->showMessage(tr("No levels are shown that could be saved."), messageTime);
        return;
    }
    const QString name = tr("%1 sweep %2.csv")
                             .arg(QFileInfo(m_fileName).completeBaseName())
                             .arg(m_replay.position() + 1);
    m_recordings->saveAs(name, exportText(makeSweep(sweep.timeUs, hops)));
}

} // namespace bandmonitor
