// SPDX-License-Identifier: MIT
#include "mainwindow.h"
#include "panes/bearingspane.h"
#include "panes/eventlogpane.h"
#include "panes/jobspane.h"
#include "panes/levelspane.h"
#include "panes/pictures.h"
#include "panes/signalspane.h"
#include "receiver/receiverpane.h"

namespace bandmonitor {

namespace {

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
    // Name, title, icon, widget, and the places in the modes Search, Measure and Plan.
    const Panel rows[] = {
        // clang-format off
        {name("signals"), tr("&Signals"), makePicture(Picture::Signals), m_signals,
         {beside(bottom, 1100, 220), hidden(bottom), beside(bottom, 770, 220)}},
        {name("events"), tr("&Event log"), makePicture(Picture::Events), m_eventsPane,
         {tabbed(bottom), hidden(bottom), tabbed(bottom)}},
        {name("levels"), tr("&Reference levels"), makePicture(Picture::Levels), m_levels,
         {hidden(bottom), beside(bottom, 1100, 200), beside(bottom, 330, 220)}},
        {name("jobs"), tr("&Jobs"), makePicture(Picture::Jobs), m_jobsPane,
         {hidden(right), hidden(right), beside(right, 360, 500)}},
        {name("bearings"), tr("&Bearings"), makePicture(Picture::Bearings), m_bearingsPane,
         {hidden(right), beside(right, 260, 500), tabbed(right)}},
        {name("receiver"), tr("Re&ceiver"), makePicture(Picture::Receiver), m_receiverPane,
         {beside(left, 240, 500), beside(left, 240, 500), hidden(left)}},
        // clang-format on
    };
    for (const Panel& row : rows)
        m_panels->add(row);
}

} // namespace bandmonitor
