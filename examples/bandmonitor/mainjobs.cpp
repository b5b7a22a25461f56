// SPDX-License-Identifier: MIT
#include "mainwindow.h"

#include "centre/bandview.h"
#include "model/recordingwriter.h"
#include "model/textfile.h"
#include "recentrecordings.h"
#include "settings/settings.h"

#include <guibase/dialogs/modaldialogs.h>
#include <guibase/services/guibase.h>

#include <QFileInfo>
#include <QStatusBar>

namespace bandmonitor {

namespace {

QByteArray exportText(const SessionValues& values, const Sweep& sweep)
{
    return receiverRemark(values.receiver().addressText()) + sweepText(sweep);
}

} // namespace

void MainWindow::addJobs()
{
    Jobs& jobs = m_session.jobs();
    jobs.addTask(tr("Jump to the start"), [this] {
        m_session.replay().jump(0);
        return JobState::Done;
    });
    jobs.addTask(tr("Restart the hold maximum"), [this] {
        m_bandView->resetHold();
        return JobState::Done;
    });
    jobs.addTask(tr("Export the shown sweep…"), [this] { return exportSweep(); });
    using Found = std::optional<qsizetype>;
    jobs.addPause(tr("Pause at the next new signal"), [this](qsizetype, qsizetype last) {
        const SignalTrack* newcomer = m_session.watch().newcomer();
        if (newcomer != nullptr)
            m_bandView->showFrequency(newcomer->signal.centreHz);
        return newcomer != nullptr ? Found(last) : Found();
    });
    const auto pauseAbove = [this](qsizetype first, qsizetype last) {
        for (qsizetype index = first; index <= last; ++index) {
            const Sweep sweep = m_session.recording()->sweep(index);
            const auto hertz = firstAbove(sweep, m_session.referenceLevels());
            if (!hertz)
                continue;
            m_bandView->showFrequency(*hertz);
            return Found(index);
        }
        return Found();
    };
    jobs.addPause(tr("Pause above the reference levels"), pauseAbove);
}

std::optional<JobState> MainWindow::exportSweep()
{
    const Sweep sweep = m_session.replay().sweep();
    if (sweep.isEmpty())
        return JobState::Failed;
    const QByteArray text = exportText(*m_values, sweep);
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
    const Sweep sweep = m_session.replay().sweep();
    const VisibleBand& band = m_bandView->visibleBand();
    const std::vector<Segment> hops = hopsBetween(sweep, band.low(), band.high());
    if (hops.empty()) {
        statusBar()->showMessage(tr("No levels are shown that could be saved."), messageTime);
        return;
    }
    const QString name =
        tr("%1 sweep %2.csv").arg(baseName()).arg(m_session.replay().position() + 1);
    m_recordings->saveAs(name, exportText(*m_values, makeSweep(sweep.timeUs, hops)));
}

} // namespace bandmonitor
