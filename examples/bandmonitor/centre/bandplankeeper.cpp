// SPDX-License-Identifier: MIT
#include "centre/bandplankeeper.h"

#include "model/panenames.h"

#include <radiopanes/core/bandplan.h>
#include <radiopanes/panes/bandpanes.h>

#include <jtbase/errorhandler.h>
#include <valueframework/undorecording.h>

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace bandmonitor {

BandPlanKeeper::BandPlanKeeper(std::shared_ptr<SessionValues> values, BandPanes* panes,
                               QObject* parent)
    : QObject(parent)
    , m_values(std::move(values))
    , m_panes(panes)
{
    const auto showBookmarks = [this] {
        m_panes->setBookmarks(BandPlan::parse(m_values->bookmarks.GetValue()).plan);
    };
    showBookmarks();
    showPlan();
    connect(m_panes, &BandPanes::bookmarksChanged, this, &BandPlanKeeper::takeBookmarks);
    m_followers = SessionValues::follow({&m_values->bookmarks}, showBookmarks);
    auto plan = SessionValues::follow({&m_values->bandPlan}, [this] { showPlan(); });
    std::ranges::move(plan, std::back_inserter(m_followers));
}

BandPlanKeeper::~BandPlanKeeper() = default;

void BandPlanKeeper::takeBookmarks()
{
    const QString text = m_panes->bookmarks().text();
    if (text == m_values->bookmarks.GetValue())
        return;
    const SessionValues::Step step = m_values->step(tr("Bookmarks"));
    m_values->bookmarks.SetValue(text);
}

QStringList BandPlanKeeper::showPlan()
{
    const QString path = m_values->bandPlan.GetValue();
    const BandPlan::Reading reading = path.isEmpty() ? BandPlan::Reading() : BandPlan::read(path);
    m_panes->setBandPlan(reading.plan);
    return reading.errors;
}

void BandPlanKeeper::choosePlan()
{
    const QString path = QFileDialog::getOpenFileName(
        m_panes->window(), tr("Band plan"), QFileInfo(m_values->bandPlan.GetValue()).path(),
        tr("Text files (*.txt *.csv);;All files (*)"));
    if (path.isEmpty())
        return;
    {
        const SessionValues::Step step = m_values->step(tr("Band plan"));
        m_values->bandPlan.SetValue(path);
    }
    const QStringList errors = showPlan(); // also of a file that has changed
    if (errors.isEmpty())
        return;
    UserMessage message;
    message.severity = MessageSeverity::Warning;
    message.title = tr("Band plan with errors");
    message.text = errors.first();
    message.details = errors.join(QLatin1Char('\n'));
    ErrorHandler::GetMessageDlg()->Show(message, m_panes->window());
}

void BandPlanKeeper::removePlan()
{
    const SessionValues::Step step = m_values->step(tr("Band plan"));
    m_values->bandPlan.SetValue(QString());
}

} // namespace bandmonitor
