// SPDX-License-Identifier: MIT
#include "docks/panels.h"

#include <guibase/docks/active/activedockwidgetsupport.h>
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/dockwidgetconfigurator.h>
#include <guibase/docks/dockwidgethelpers.h>
#include <guibase/docks/enhanceddockwidgettitlebar.h>
#include <guibase/docks/mainwindowconfigurator.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/services/guibase.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>
#include <QTabBar>

using QDockWidgetHelpers::DockWidgetConfigurator;
using QMainWindowHelpers::ActiveDockWidgetSupport;
using QMainWindowHelpers::AutoHideSupport;
using QMainWindowHelpers::MainWindowConfigurator;
using QMainWindowHelpers::TabifySupport;
using QMainWindowHelpers::TileSupport;

namespace bandmonitor {

namespace {

QString storageName(Mode mode)
{
    return QStringLiteral("BandmonitorMode%1").arg(static_cast<int>(mode));
}

/// The side of the dock's area. At the bottom the place decides; behind another tab there is none.
Qt::ToolBarArea hidingSide(const QMainWindow& window, const QDockWidget& dock,
                           QFlags<Qt::ToolBarArea> areas)
{
    const Qt::ToolBarArea side =
        AutoHideSupport::selectToolBarAreaByDockWidgetArea(window, dock, areas);
    return areas.testFlag(side)
               ? side
               : AutoHideSupport::selectToolBarAreaByDockWidgetScreenPosition(window, dock, areas);
}

void resizeAll(QMainWindow& window, const QList<QDockWidget*>& docks, const QList<QSize>& sizes)
{
    QList<int> widths;
    QList<int> heights;
    for (const QSize& size : sizes) {
        widths << size.width();
        heights << size.height();
    }
    window.resizeDocks(docks, widths, Qt::Horizontal);
    window.resizeDocks(docks, heights, Qt::Vertical);
}

} // namespace

Panels::Panels(QMainWindow& window)
    : QObject(&window)
    , m_window(window)
{
    MainWindowConfigurator()
        .withActiveDockWidgetSupport(true)
        .withAutoHideSupport(MainWindowConfigurator::DefaultAutoHideSupportToolBarAreas)
        .withDockOptions(QMainWindow::AllowTabbedDocks | QMainWindow::AllowNestedDocks)
        .withTabifySupport(MainWindowConfigurator::DefaultTabifySupportDockWidgetAreas)
        .withTileSupport(MainWindowConfigurator::DefaultTileSupportDockWidgetAreas)
        .withTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North)
        .configure(window);
    m_autoHide = AutoHideSupport::get(window);
    m_autoHide->setSelectToolBarAreaFn(&hidingSide);
    m_nothingHides = m_autoHide->saveState();
    m_autoHideAtStart.fill(m_nothingHides);
    connect(ActiveDockWidgetSupport::get(window), &ActiveDockWidgetSupport::activeDockWidgetChanged,
            this, &Panels::markActive);
    m_activateFront.setSingleShot(true);
    connect(&m_activateFront, &QTimer::timeout, this, &Panels::activateFront);
}

Panels::~Panels() = default;

void Panels::add(const Panel& panel)
{
    panel.widget->setObjectName(panel.name);
    panel.widget->setWindowTitle(QString(panel.title).remove(QLatin1Char('&')));
    if (!panel.icon.isNull())
        panel.widget->setWindowIcon(panel.icon);
    QDockWidget* dock = QDockWidgetHelpers::makeDockWidgetFrom(*panel.widget);
    dock->setParent(&m_window);
    m_panels.push_back(panel);
    m_docks << dock;
    m_window.addDockWidget(panel.places.front().area, dock);

    DockWidgetConfigurator()
        .includeActionsFrom(TabifySupport::get(m_window))
        .includeActionsFrom(TileSupport::get(m_window))
        .withAutoHideSupport(true)
        .withMaximizeSupport(true)
        .withMinimizeSupport(true)
        .configure(*dock);
    dock->toggleViewAction()->setText(panel.title);
}

QDockWidget* Panels::dock(const QString& name) const
{
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        if (m_panels[i].name == name)
            return m_docks[static_cast<int>(i)];
    }
    return nullptr;
}

QDockWidget* Panels::activeDock() const
{
    return ActiveDockWidgetSupport::get(m_window)->activeDockWidget();
}

void Panels::markActive(QDockWidget* active)
{
    for (QDockWidget* dock : m_docks) {
        if (auto* bar = qobject_cast<EnhancedDockWidgetTitleBar*>(dock->titleBarWidget()))
            bar->setActive(dock == active);
    }
}

void Panels::activateFront()
{
    QDockWidget* active = activeDock();
    if (active == nullptr)
        return;
    const QList<QDockWidget*> beside = m_window.tabifiedDockWidgets(active);
    const QList<QTabBar*> bars =
        QMainWindowHelpers::tabBarsInDockWidgetArea(m_window, m_window.dockWidgetArea(active));
    for (const QTabBar* bar : bars) {
        QDockWidget* front = QMainWindowHelpers::findParentDockWidget(*bar, &m_window);
        if (!beside.contains(front))
            continue;
        // The focus stays where the user left it.
        const QPointer<QWidget> focus = QApplication::focusWidget();
        ActiveDockWidgetSupport::get(m_window)->bringToFront(*front);
        if (focus)
            focus->setFocus();
        return;
    }
}

// --- Layouts -------------------------------------------------------------------------------------

void Panels::arrange(Mode mode)
{
    std::map<Qt::DockWidgetArea, QDockWidget*> lastOfArea;
    QList<QDockWidget*> shown;
    QList<QSize> sizes;
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        const PanelPlace& place = of(m_panels[i].places, mode);
        QDockWidget* dock = m_docks[static_cast<int>(i)];
        QDockWidget*& last = lastOfArea[place.area];
        dock->hide();
        dock->setFloating(false);
        m_window.addDockWidget(place.area, dock);
        if (place.shown == PanelPlace::Tabbed && last != nullptr)
            m_window.tabifyDockWidget(last, dock);
        else if (place.shown == PanelPlace::Beside) {
            shown << dock;
            sizes << place.size;
        }
        if (place.shown != PanelPlace::Hidden)
            last = dock;
    }
    for (std::size_t i = 0; i < m_panels.size(); ++i)
        m_docks[static_cast<int>(i)]->setVisible(of(m_panels[i].places, mode).shown !=
                                                 PanelPlace::Hidden);
    for (QDockWidget* dock : shown)
        dock->raise();
    resizeAll(m_window, shown, sizes);
}

void Panels::announce(Mode current)
{
    GuiBase& services = GuiBase::Instance();
    const QByteArray kept = m_window.saveState();
    for (const Mode mode : allModes) {
        arrange(mode);
        services.storeFactoryDefaultWidgets(static_cast<long>(mode));
    }
    m_window.restoreState(kept);
    // The services know the layout that a mode has at program start once it was shown.
    for (const Mode mode : allModes) {
        show(mode, nullptr);
        m_autoHideAtStart[static_cast<std::size_t>(mode)] = m_autoHide->saveState();
    }
    show(current, nullptr);
}

void Panels::showProgramStart(Mode mode)
{
    show(mode, &of(m_autoHideAtStart, mode));
}

void Panels::showFactory(Mode mode)
{
    show(mode, &m_nothingHides);
    arrange(mode);
    GuiBase::Instance().storeFactoryDefaultWidgets(static_cast<long>(mode));
}

void Panels::showMode(Mode mode)
{
    show(mode, nullptr);
}

void Panels::show(Mode mode, const QByteArray* autoHide)
{
    m_activateFront.start();        // once the active dock is found for what is hidden now
    m_autoHide->setStorageName({}); // what follows is no wish of the user
    GuiBase::Instance().setMode(static_cast<long>(mode));
    const QByteArray layout = m_window.saveState();
    // Docks that hid themselves in the former mode come out, and go where this mode has them.
    if (m_autoHide->saveState() != m_nothingHides) {
        m_autoHide->restoreState(m_nothingHides);
        m_window.restoreState(layout);
    }
    m_autoHide->setStorageName(storageName(mode));
    if (autoHide == nullptr || m_autoHide->saveState() == *autoHide)
        return;
    m_autoHide->restoreState(*autoHide);
    m_window.restoreState(layout);
}

} // namespace bandmonitor
