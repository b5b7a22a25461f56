// SPDX-License-Identifier: MIT
#include "docks/paneldocks.h"

#include "panels/panel.h"

#include <guibase/docks/active/activedockwidgetsupport.h>
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/dockwidgetconfigurator.h>
#include <guibase/docks/enhanceddockwidgettitlebar.h>
#include <guibase/docks/mainwindowconfigurator.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/services/guibase.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QPointer>
#include <QTabBar>

#include <algorithm>
#include <utility>

using QDockWidgetHelpers::DockWidgetConfigurator;
using QMainWindowHelpers::ActiveDockWidgetSupport;
using QMainWindowHelpers::AutoHideSupport;
using QMainWindowHelpers::MainWindowConfigurator;
using QMainWindowHelpers::TabifySupport;
using QMainWindowHelpers::TileSupport;

namespace bandmonitor {

namespace {

/// In a smaller window all docks share one column, so that the centre keeps its room.
constexpr QSize smallestRoomy{660, 500};
constexpr auto columnArea = Qt::RightDockWidgetArea;
constexpr PanelPlace inColumn{columnArea, PanelPlace::Beside, {400, 500}};
constexpr PanelPlace behind{columnArea, PanelPlace::Tabbed, {}};

QString storageName(Mode mode)
{
    return QStringLiteral("BandmonitorMode%1").arg(static_cast<int>(mode));
}

/// The side of the window where the dock hides: that of its area. A dock at the bottom hides at the
/// nearer side. A dock behind another tab has no place, so that there is no side.
Qt::ToolBarArea hidingSide(const QMainWindow& window, const QDockWidget& dock,
                           QFlags<Qt::ToolBarArea> areas)
{
    const Qt::ToolBarArea side =
        AutoHideSupport::selectToolBarAreaByDockWidgetArea(window, dock, areas);
    return areas.testFlag(side)
               ? side
               : AutoHideSupport::selectToolBarAreaByDockWidgetScreenPosition(window, dock, areas);
}

QString plainTitle(const PanelRow& row)
{
    return QString(row.title).remove(QLatin1Char('&'));
}

/// The smallest of the panel's sizes beside others; invalid without one.
QSize smallestPlace(const PanelRow& row)
{
    QSize smallest;
    for (const PanelPlace& place : row.places) {
        if (place.shown == PanelPlace::Beside)
            smallest = smallest.isValid() ? smallest.boundedTo(place.size) : place.size;
    }
    return smallest;
}

QSize smaller(const QSize& size, const QSize& window)
{
    const QSize normal = PanelDocks::windowSize;
    return {size.width() * std::min(window.width(), normal.width()) / normal.width(),
            size.height() * std::min(window.height(), normal.height()) / normal.height()};
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

PanelDocks::PanelDocks(QMainWindow& window)
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
    connect(ActiveDockWidgetSupport::get(window), &ActiveDockWidgetSupport::activeDockWidgetChanged,
            this, &PanelDocks::markActive);
    m_activateFront.setSingleShot(true);
    connect(&m_activateFront, &QTimer::timeout, this, &PanelDocks::activateFront);
}

PanelDocks::~PanelDocks() = default;

void PanelDocks::add(const PanelRow& row)
{
    auto* dock = new QDockWidget(plainTitle(row), &m_window);
    dock->setObjectName(row.name + QStringLiteral("_outerDockWidget"));
    if (!row.icon.isNull())
        dock->setWindowIcon(row.icon);
    dock->installEventFilter(this);
    m_rows.push_back(row);
    m_docks << dock;
    dock->hide(); // until all docks are arranged, which needs less room than all beside each other
    m_window.addDockWidget(row.places.front().area, dock);

    DockWidgetConfigurator()
        .includeActionsFrom(TabifySupport::get(m_window))
        .includeActionsFrom(TileSupport::get(m_window))
        .withAutoHideSupport(true)
        .withMaximizeSupport(true)
        .withMinimizeSupport(true)
        .configure(*dock);
    dock->toggleViewAction()->setText(row.title);
}

void PanelDocks::makePanel(QDockWidget& dock)
{
    if (dock.widget() != nullptr)
        return;
    const PanelRow& row = m_rows[static_cast<std::size_t>(m_docks.indexOf(&dock))];
    Panel* panel = row.make(&dock);
    panel->setObjectName(row.name);
    panel->setWindowTitle(plainTitle(row));
    panel->setPreferredSize(smallestPlace(row));
    if (!row.icon.isNull())
        panel->setWindowIcon(row.icon);
    dock.setWidget(panel);
    panel->show(); // now: the dock may be on the screen already
    Q_EMIT panelMade(panel);
}

void PanelDocks::makePanels()
{
    for (QDockWidget* dock : m_docks)
        makePanel(*dock);
}

bool PanelDocks::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShowToParent)
        makePanel(*static_cast<QDockWidget*>(watched));
    return QObject::eventFilter(watched, event);
}

QList<Panel*> PanelDocks::panels() const
{
    QList<Panel*> result;
    for (const QDockWidget* dock : m_docks) {
        if (auto* panel = qobject_cast<Panel*>(dock->widget()))
            result << panel;
    }
    return result;
}

QDockWidget* PanelDocks::dock(const QString& name) const
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].name == name)
            return m_docks[static_cast<int>(i)];
    }
    return nullptr;
}

QDockWidget* PanelDocks::activeDock() const
{
    return ActiveDockWidgetSupport::get(m_window)->activeDockWidget();
}

void PanelDocks::markActive(QDockWidget* active)
{
    for (QDockWidget* dock : m_docks) {
        if (auto* bar = qobject_cast<EnhancedDockWidgetTitleBar*>(dock->titleBarWidget()))
            bar->setActive(dock == active);
    }
}

void PanelDocks::activateFront()
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

void PanelDocks::arrange(Mode mode)
{
    m_arranged = {mode, m_window.size()};
    const bool isSmall = m_window.size().boundedTo(smallestRoomy) != smallestRoomy;
    std::map<Qt::DockWidgetArea, QDockWidget*> lastOfArea;
    QList<QDockWidget*> shown;
    QList<QSize> sizes;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        PanelPlace place = forMode(m_rows[i].places, mode);
        if (isSmall && place.shown != PanelPlace::Hidden)
            place = lastOfArea[columnArea] != nullptr ? behind : inColumn;
        QDockWidget* dock = m_docks[static_cast<int>(i)];
        QDockWidget*& last = lastOfArea[place.area];
        dock->hide();
        if (dock->isFloating())
            dock->setFloating(false);
        m_window.addDockWidget(place.area, dock);
        if (place.shown == PanelPlace::Tabbed && last != nullptr)
            m_window.tabifyDockWidget(last, dock);
        else if (place.shown == PanelPlace::Beside) {
            shown << dock;
            sizes << smaller(place.size, m_window.size());
        }
        if (place.shown != PanelPlace::Hidden)
            last = dock;
    }
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        m_docks[static_cast<int>(i)]->setVisible(forMode(m_rows[i].places, mode).shown !=
                                                 PanelPlace::Hidden);
    for (QDockWidget* dock : shown)
        dock->raise();
    resizeAll(m_window, shown, sizes);
}

void PanelDocks::showProgramStart(Mode mode)
{
    const std::optional<QByteArray>& start = forMode(m_autoHideAtStart, mode);
    show(mode, start ? &*start : nullptr);
}

void PanelDocks::showFactory(Mode mode)
{
    show(mode, &m_nothingHides);
    arrange(mode);
    GuiBase::Instance().storeFactoryDefaultWidgets(static_cast<long>(mode));
}

void PanelDocks::showMode(Mode mode)
{
    show(mode, nullptr);
    std::optional<QByteArray>& start = m_autoHideAtStart[static_cast<std::size_t>(mode)];
    if (!start)
        start = m_autoHide->saveState();
}

void PanelDocks::show(Mode mode, const QByteArray* autoHide)
{
    m_activateFront.start();        // once the active dock is found for what is hidden now
    m_autoHide->setStorageName({}); // the user did not ask for what follows
    GuiBase& services = GuiBase::Instance();
    const bool isNew = !services.hasModeLayout(static_cast<long>(mode));
    services.setMode(static_cast<long>(mode));
    const QByteArray layout = m_window.saveState();
    // Docks that hid in the former mode come out first. Then they go where this mode has them.
    if (m_autoHide->saveState() != m_nothingHides) {
        m_autoHide->restoreState(m_nothingHides);
        m_window.restoreState(layout);
    }
    const std::pair wanted(mode, m_window.size());
    const bool isArranged = std::exchange(m_arranged, std::nullopt) == wanted;
    if (isNew) {
        if (!isArranged) {
            arrange(mode);
            // Docks that have just come up lose the sizes that they were given, but not these.
            m_window.restoreState(m_window.saveState());
        }
        m_arranged.reset();
        services.storeFactoryDefaultWidgets(static_cast<long>(mode));
    }
    m_autoHide->setStorageName(storageName(mode));
    if (autoHide == nullptr || m_autoHide->saveState() == *autoHide)
        return;
    m_autoHide->restoreState(*autoHide);
    m_window.restoreState(layout);
}

} // namespace bandmonitor
