// SPDX-License-Identifier: MIT
#include "docks/windowmenu.h"

#include "docks/paneldocks.h"
#include "docks/panelfocus.h"
#include "settings/keys.h"

#include <guibase/docks/active/activedockwidgetsupport.h>
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/maximizeminimizesupport.h>

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>

#include <algorithm>

using QDockWidgetHelpers::MaximizeMinimizeSupport;
using QMainWindowHelpers::ActiveDockWidgetSupport;
using QMainWindowHelpers::AutoHideSupport;
using QMainWindowHelpers::TabifySupport;
using QMainWindowHelpers::TileSupport;

namespace bandmonitor {

namespace {

/// On a dock that floats only because it was maximized.
constexpr char floatsForMaximizing[] = "bandmonitor_floatsForMaximizing";

constexpr int firstPanelKey = Qt::Key_2; // the waterfall has the 1
constexpr int lastPanelKey = Qt::Key_9;
// One for each area, with Control and Alt.
constexpr int firstTabifyKey = Qt::Key_1;
constexpr int firstTileKey = Qt::Key_5;

bool hasVisibleAction(const QMenu& menu)
{
    const QList<QAction*> actions = menu.actions();
    return std::any_of(actions.begin(), actions.end(),
                       [](const QAction* action) { return action->isVisible(); });
}

void addAreaEntry(QMenu& menu, QAction& action, int key)
{
    action.setShortcut(Qt::CTRL | Qt::ALT | static_cast<Qt::Key>(key));
    Keys::listEverywhere(&action);
    menu.addAction(&action);
}

} // namespace

WindowMenu::WindowMenu(PanelDocks* panels, QWidget* centre, QWidget* parent)
    : QMenu(parent)
    , m_panels(panels)
    , m_centre(centre)
{
    addPanels();
    addSeparator();
    const auto cycle = [this](bool forward) { PanelFocus::cycle(*m_panels, *m_centre, forward); };
    Keys::addEntry(*this, tr("Ne&xt part of the window"), Qt::Key_F6, [cycle] { cycle(true); });
    Keys::addEntry(*this, tr("&Previous part of the window"), Qt::SHIFT | Qt::Key_F6,
                   [cycle] { cycle(false); });
    addSeparator();
    addAreas();
    addSeparator();
    addActivePanel();
    connect(this, &QMenu::aboutToShow, this, &WindowMenu::refresh);
    connect(ActiveDockWidgetSupport::get(panels->window()),
            &ActiveDockWidgetSupport::activeDockWidgetChanged, this, &WindowMenu::refresh);
    refresh();
}

WindowMenu::~WindowMenu() = default;

void WindowMenu::addPanels()
{
    int key = firstPanelKey;
    for (QDockWidget* dock : m_panels->docks()) {
        // Unlike the toolkit's own action this one does not close a panel behind another tab.
        const QAction* toggle = dock->toggleViewAction();
        QAction* action = addAction(toggle->text());
        action->setCheckable(true);
        action->setChecked(toggle->isChecked());
        connect(toggle, &QAction::toggled, action, &QAction::setChecked);
        connect(action, &QAction::triggered, this, [this, dock, action, toggle] {
            if (dock->isVisible() && !dock->visibleRegion().isEmpty())
                dock->close();
            else
                PanelFocus::enter(*m_panels, *dock, Qt::ShortcutFocusReason);
            action->setChecked(toggle->isChecked());
        });
        if (key <= lastPanelKey)
            action->setShortcut(Qt::ALT | static_cast<Qt::Key>(key++));
        Keys::listEverywhere(action);
    }
}

void WindowMenu::addAreas()
{
    m_tabify = addMenu(tr("Tabif&y"));
    m_tile = addMenu(tr("&Tile"));
    QMainWindow& window = m_panels->window();
    const TabifySupport* tabify = TabifySupport::get(window);
    const TileSupport* tile = TileSupport::get(window);
    int tabifyKey = firstTabifyKey;
    int tileKey = firstTileKey;
    for (const Qt::DockWidgetArea area :
         QMainWindowHelpers::listDockWidgetAreas(Qt::AllDockWidgetAreas)) {
        addAreaEntry(*m_tabify, tabify->tabifyDockWidgetsAction(area), tabifyKey++);
        addAreaEntry(*m_tile, tile->tileDockWidgetsAction(area), tileKey++);
    }
}

QAction* WindowMenu::addActiveEntry(const QString& text, const QKeySequence& key,
                                    void (WindowMenu::*perform)(QDockWidget&), bool checkable)
{
    QAction* action = Keys::addEntry(*this, text, key, [this, perform] {
        if (QDockWidget* dock = m_panels->activeDock())
            (this->*perform)(*dock);
        refresh();
    });
    action->setCheckable(checkable);
    m_activeEntries << action;
    return action;
}

void WindowMenu::addActivePanel()
{
    const auto key = [](Qt::Key letter) { return QKeySequence(Qt::CTRL | Qt::ALT | letter); };
    addSection(tr("Active panel"));
    m_float = addActiveEntry(tr("&Float"), key(Qt::Key_F), &WindowMenu::toggleFloating, true);
    m_maximize =
        addActiveEntry(tr("&Maximize"), key(Qt::Key_M), &WindowMenu::toggleMaximized, true);
    m_autoHide = addActiveEntry(tr("Hide &automatically"), key(Qt::Key_A),
                                &WindowMenu::toggleAutoHide, true);
    addActiveEntry(tr("C&lose"), QKeySequence(Qt::CTRL | Qt::Key_F4), &WindowMenu::closePanel,
                   false);
}

void WindowMenu::refresh()
{
    m_tabify->setEnabled(hasVisibleAction(*m_tabify));
    m_tile->setEnabled(hasVisibleAction(*m_tile));
    const QDockWidget* dock = m_panels->activeDock();
    m_float->setChecked(dock != nullptr && dock->isFloating());
    m_maximize->setChecked(dock != nullptr &&
                           MaximizeMinimizeSupport::isRestoreDockWidgetPossible(*dock));
    m_autoHide->setChecked(dock != nullptr && AutoHideSupport::autoHideAction(*dock)->isChecked());
    for (QAction* action : m_activeEntries)
        action->setEnabled(dock != nullptr);
}

void WindowMenu::toggleFloating(QDockWidget& dock)
{
    dock.setProperty(floatsForMaximizing, {});
    dock.setFloating(!dock.isFloating());
}

void WindowMenu::toggleMaximized(QDockWidget& dock)
{
    MaximizeMinimizeSupport* support = MaximizeMinimizeSupport::get(dock);
    if (support->restoreDockWidget()) {
        if (dock.property(floatsForMaximizing).toBool())
            toggleFloating(dock);
        return;
    }
    if (!dock.isFloating()) {
        dock.setFloating(true);
        dock.setProperty(floatsForMaximizing, true);
    }
    support->maximizeDockWidget();
}

void WindowMenu::toggleAutoHide(QDockWidget& dock)
{
    QAction* action = AutoHideSupport::autoHideAction(dock);
    action->toggle();
    if (!action->isChecked())
        return;
    dock.hide(); // no mouse is there to leave it
    m_panels->window().activateWindow();
    m_centre->setFocus();
}

void WindowMenu::closePanel(QDockWidget& dock)
{
    dock.close();
}

} // namespace bandmonitor
