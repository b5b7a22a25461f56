// SPDX-License-Identifier: MIT
#include "mainwindow.h"

#include "centre/bandview.h"
#include "panels/bearingspanel.h"
#include "panels/eventlogpanel.h"
#include "panels/historypanel.h"
#include "panels/icons.h"
#include "panels/jobspanel.h"
#include "panels/levelspanel.h"
#include "panels/signalspanel.h"
#include "receiver/receivercontrol.h"
#include "receiver/receiverpanel.h"

namespace bandmonitor {

namespace {

Panel* makeSignals(Session& session)
{
    auto* panel = new SignalsPanel(&session.watch());
    QObject::connect(&session, &Session::sweepShown, panel, &SignalsPanel::refresh);
    return panel;
}

Panel* makeLevels(Session& session, const std::shared_ptr<SessionValues>& values)
{
    auto* panel = new LevelsPanel(values);
    const auto take = [panel, &session] { session.setReferenceLevels(panel->points()); };
    QObject::connect(panel, &LevelsPanel::pointsChanged, &session, take);
    take();
    return panel;
}

Panel* makeJobs(Session& session)
{
    auto* panel = new JobsPanel(&session.jobs(), &session.replay());
    QObject::connect(&session, &Session::grown, panel, &JobsPanel::refreshTimes);
    return panel;
}

Panel* makeReceiver(Session& session, const std::shared_ptr<SessionValues>& values,
                    BandView& bandView)
{
    auto* panel = new ReceiverPanel(*values);
    new ReceiverControl(values, panel, &bandView, &session, panel);
    return panel;
}

constexpr auto left = Qt::LeftDockWidgetArea;
constexpr auto right = Qt::RightDockWidgetArea;
constexpr auto bottom = Qt::BottomDockWidgetArea;

PanelPlace hidden(Qt::DockWidgetArea area)
{
    return {area, PanelPlace::Hidden, {}};
}

PanelPlace beside(Qt::DockWidgetArea area, int width, int height)
{
    return {area, PanelPlace::Beside, {width, height}};
}

PanelPlace tabbed(Qt::DockWidgetArea area)
{
    return {area, PanelPlace::Tabbed, {}};
}

} // namespace

/// The one place to enter a panel; its entry in the menu, its keys and its layouts follow.
void MainWindow::buildPanels()
{
    const auto name = [](const char* text) { return QString::fromLatin1(text); };
    // Name, title, icon, panel, and the places in the modes Search, Measure and Plan.
    const PanelRow rows[] = {
        // clang-format off
        {name("signals"), tr("&Signals"), makeIcon(Icon::Signals), makeSignals(m_session),
         {beside(bottom, 1100, 220), hidden(bottom), beside(bottom, 770, 220)}},
        {name("events"), tr("&Event log"), makeIcon(Icon::Events),
         new EventLogPanel(&m_session.events()),
         {tabbed(bottom), hidden(bottom), tabbed(bottom)}},
        {name("levels"), tr("&Reference levels"), makeIcon(Icon::Levels), makeLevels(m_session, m_values),
         {hidden(bottom), beside(bottom, 1100, 200), beside(bottom, 330, 220)}},
        {name("jobs"), tr("&Jobs"), makeIcon(Icon::Jobs),
         makeJobs(m_session),
         {hidden(right), hidden(right), beside(right, 360, 500)}},
        {name("bearings"), tr("&Bearings"), makeIcon(Icon::Bearings),
         new BearingsPanel(&m_session.bearings(), *m_values),
         {hidden(right), beside(right, 260, 500), tabbed(right)}},
        {name("receiver"), tr("Re&ceiver"), makeIcon(Icon::Receiver),
         makeReceiver(m_session, m_values, *m_bandView),
         {beside(left, 240, 500), beside(left, 240, 500), hidden(left)}},
        {name("history"), tr("H&istory"), makeIcon(Icon::History), new HistoryPanel,
         {hidden(left), hidden(left), hidden(left)}},
        // clang-format on
    };
    for (const PanelRow& row : rows) {
        m_panelDocks->add(row);
        connect(row.panel, &Panel::frequencyWanted, m_bandView, &BandView::showFrequency);
    }
}

} // namespace bandmonitor
