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

#include <guibase/services/guibase.h>

#include <QAction>
#include <QStatusBar>

namespace bandmonitor {

namespace {

Panel* makeSignals(Session& session, QWidget* parent)
{
    auto* panel = new SignalsPanel(&session.watch(), parent);
    QObject::connect(&session, &Session::sweepShown, panel, &SignalsPanel::refresh);
    return panel;
}

Panel* makeLevels(Session& session, const std::shared_ptr<SessionValues>& values, QWidget* parent)
{
    auto* panel = new LevelsPanel(values, parent);
    const auto take = [panel, &session] { session.setReferenceLevels(panel->points()); };
    QObject::connect(panel, &LevelsPanel::pointsChanged, &session, take);
    take();
    return panel;
}

Panel* makeJobs(Session& session, QWidget* parent)
{
    auto* panel = new JobsPanel(&session.jobs(), &session.replay(), parent);
    QObject::connect(&session, &Session::grown, panel, &JobsPanel::refreshTimes);
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
    const auto makeEvents = [this](QWidget* parent) {
        auto* panel = new EventLogPanel(&m_session.events(), parent);
        connect(panel, &EventLogPanel::placeWanted, this, &MainWindow::showPlace);
        return panel;
    };
    const auto makeReceiver = [this](QWidget* parent) {
        auto* panel = new ReceiverPanel(*m_values, parent);
        auto* control = new ReceiverControl(m_values, panel, m_bandView, &m_session, panel);
        connect(control, &ReceiverControl::centreRefused, this,
                [this](const QString& text) { statusBar()->showMessage(text, messageTime); });
        return panel;
    };
    // Name, title, icon, maker, and the places in the modes Search, Measure and Plan.
    const PanelRow rows[] = {
        // clang-format off
        {name("signals"), tr("&Signals"), makeIcon(Icon::Signals),
         [this](QWidget* parent) { return makeSignals(m_session, parent); },
         {beside(bottom, 1100, 220), hidden(bottom), beside(bottom, 770, 220)}},
        {name("events"), tr("&Event log"), makeIcon(Icon::Events), makeEvents,
         {tabbed(bottom), hidden(bottom), tabbed(bottom)}},
        {name("levels"), tr("&Reference levels"), makeIcon(Icon::Levels),
         [this](QWidget* parent) { return makeLevels(m_session, m_values, parent); },
         {hidden(bottom), beside(bottom, 1100, 200), beside(bottom, 330, 220)}},
        {name("jobs"), tr("&Jobs"), makeIcon(Icon::Jobs),
         [this](QWidget* parent) { return makeJobs(m_session, parent); },
         {hidden(right), hidden(right), beside(right, 360, 500)}},
        {name("bearings"), tr("&Bearings"), makeIcon(Icon::Bearings),
         [this](QWidget* parent) {
             return new BearingsPanel(&m_session.bearings(), *m_values, parent);
         },
         {hidden(right), beside(right, 260, 500), tabbed(right)}},
        {name("receiver"), tr("Re&ceiver"), makeIcon(Icon::Receiver),
         makeReceiver,
         {beside(left, 240, 500), beside(left, 240, 500), hidden(left)}},
        {name("history"), tr("H&istory"), makeIcon(Icon::History),
         [](QWidget* parent) { return new HistoryPanel(parent); },
         {hidden(left), hidden(left), hidden(left)}},
        // clang-format on
    };
    connect(m_panelDocks, &PanelDocks::panelMade, this, [this](const Panel* panel) {
        connect(panel, &Panel::frequencyWanted, m_bandView, &BandView::showFrequency);
        const QList<QAction*> actions = panel->keyActions();
        for (QAction* action : actions)
            GuiBase::Instance().ShowHotKeyFrom(action, panel->windowTitle());
    });
    for (const PanelRow& row : rows)
        m_panelDocks->add(row);
}

/// Of the panels that are not seen: those whose values the spectrum shows.
void MainWindow::makeNeededPanels()
{
    m_panelDocks->makePanel(*m_panelDocks->dock(QStringLiteral("receiver")));
    if (!m_values->referenceLevels.GetValue().isEmpty())
        m_panelDocks->makePanel(*m_panelDocks->dock(QStringLiteral("levels")));
}

} // namespace bandmonitor
