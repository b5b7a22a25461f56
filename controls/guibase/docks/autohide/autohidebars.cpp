// SPDX-License-Identifier: MIT
#include "autohidebars_p.h"

#include "autohidebutton_p.h"
#include "autohidesupport.h"

#include <guibase/docks/dockicons.h>
#include <guibase/docks/docktitle.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/layouts/floatingdockkeeper.h>

#include <jtbase/windowsystem.h>

#include <QAction>
#include <QLayout>
#include <QMainWindow>
#include <QStyle>
#include <QTextDocument>
#include <QWidgetAction>

#include <algorithm>

namespace QMainWindowHelpers {

namespace {

constexpr const char* dockProperty = "QMainWindowHelpers_AutoHideSupport_dockWidget";
constexpr const char* buttonProperty = "QMainWindowHelpers_AutoHideSupport_toggleViewButton";
const QFlags<Qt::ToolBarArea> sideAreas = Qt::LeftToolBarArea | Qt::RightToolBarArea;

constexpr int expandedExtent = 24;
constexpr int popupButtonExtent = 24;
constexpr int titleMargins = 6;

/// Makes an AutoHideButton for the tool bar that it is added to.
class ToggleViewProxyAction : public QWidgetAction
{
public:
    ToggleViewProxyAction(Qt::ToolBarArea area, QObject* parent)
        : QWidgetAction(parent)
        , m_area(area)
    {}

protected:
    QWidget* createWidget(QWidget* parent) override
    {
        return new AutoHideButton(*this, m_area, parent);
    }

private:
    Qt::ToolBarArea m_area;
};

/// Where a dock of this size lies against a tool bar with this rectangle.
QRect popupGeometry(const QRect& bar, Qt::ToolBarArea area, const QSize& size)
{
    switch (area) {
    case Qt::RightToolBarArea:
        return {bar.left() - size.width(), bar.top(), size.width(), bar.height()};
    case Qt::TopToolBarArea:
        return {bar.left(), bar.top() + bar.height(), bar.width(), size.height()};
    case Qt::BottomToolBarArea:
        return {bar.left(), bar.top() - size.height(), bar.width(), size.height()};
    default:
        return {bar.left() + bar.width(), bar.top(), size.width(), bar.height()};
    }
}

} // namespace

AutoHideBars::AutoHideBars(QObject& owner, QFlags<Qt::ToolBarArea> areas)
    : m_owner(owner)
    , m_areas(areas & sideAreas)
    , m_popupOnHover(new QAction(makeDockIcon(DockIcon::PopupOnHover),
                                 AutoHideSupport::tr("Popup on mouse hover"), &owner))
{
    m_popupOnHover->setToolTip(m_popupOnHover->text());
    m_popupOnHover->setCheckable(true);
    m_popupOnHover->setChecked(true);
}

AutoHideBars::~AutoHideBars() = default;

void AutoHideBars::createIn(QMainWindow& mainWindow)
{
    const QList<Qt::ToolBarArea> areas = listToolBarAreas(m_areas);
    for (const Qt::ToolBarArea area : areas)
        m_bars.insert(area, makeBar(mainWindow, area));
}

QToolBar* AutoHideBars::makeBar(QMainWindow& mainWindow, Qt::ToolBarArea area)
{
    const QString name = QStringLiteral("ToolBar: %1").arg(int(area));
    auto* toolBar = new QToolBar(name, &mainWindow);
    toolBar->setObjectName(name);
    toolBar->setMovable(false);
    toolBar->toggleViewAction()->setVisible(false);
    toolBar->layout()->setSpacing(5);
    toolBar->layout()->setContentsMargins({}); // The buttons need all of the extent.
    const int icon = toolBar->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, toolBar);
    toolBar->setIconSize(QSize(icon, icon));
    toolBar->setToolButtonStyle(Qt::ToolButtonIconOnly); // also where others show texts
    toolBar->addAction(m_popupOnHover);
    QWidget* button = toolBar->widgetForAction(m_popupOnHover);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    button->setMaximumSize(popupButtonExtent, popupButtonExtent);
    mainWindow.addToolBar(area, toolBar);
    setExpanded(*toolBar, false);
    toolBar->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    return toolBar;
}

void AutoHideBars::destroy()
{
    for (QToolBar* toolBar : std::as_const(m_bars))
        if (toolBar != nullptr)
            toolBar->deleteLater();
    m_bars.clear();
}

void AutoHideBars::addButtons(QDockWidget& dock, const DockFunction& hovered,
                              const DockFunction& chosenByKey)
{
    Proxies& proxies = m_proxies[&dock];
    for (auto bar = m_bars.cbegin(); bar != m_bars.cend(); ++bar)
        if (bar.value() != nullptr)
            proxies.insert(bar.key(), createProxy(dock, bar.key(), hovered));
    // Every change of an action that is shown somewhere already makes work there.
    followDock(dock);
    for (auto proxy = proxies.cbegin(); proxy != proxies.cend(); ++proxy) {
        QToolBar* toolBar = m_bars.value(proxy.key());
        toolBar->addAction(proxy.value());
        auto* button = qobject_cast<AutoHideButton*>(toolBar->widgetForAction(proxy.value()));
        if (button == nullptr)
            continue;
        button->setProperty(buttonProperty, true);
        button->setProperty(dockProperty, QVariant::fromValue<QObject*>(&dock));
        button->installEventFilter(&m_owner);
        QObject::connect(button, &AutoHideButton::chosenByKey, &dock,
                         [&dock, chosenByKey] { chosenByKey(dock); });
    }
}

void AutoHideBars::removeButtons(const QObject* key)
{
    const auto found = m_proxies.find(key);
    if (found == m_proxies.end())
        return;
    for (QAction* proxy : std::as_const(found->second)) {
        for (QToolBar* toolBar : std::as_const(m_bars))
            if (toolBar != nullptr)
                toolBar->removeAction(proxy);
        proxy->deleteLater();
    }
    m_proxies.erase(found);
}

QAction* AutoHideBars::createProxy(QDockWidget& dock, Qt::ToolBarArea area,
                                   const DockFunction& hovered)
{
    auto* proxy = new ToggleViewProxyAction(area, &m_owner);
    proxy->setVisible(false);
    proxy->setProperty(dockProperty, QVariant::fromValue<QObject*>(&dock));
    QObject::connect(proxy, &QAction::hovered, &dock, [&dock, hovered] { hovered(dock); });
    QObject::connect(proxy, &QAction::triggered, &dock, &QWidget::show);
    return proxy;
}

void AutoHideBars::followDock(const QDockWidget& dock)
{
    const Proxies* proxies = proxiesOf(&dock);
    if (proxies == nullptr)
        return;
    const QString title = shownDockTitle(dock);
    const bool hasIcon = dock.testAttribute(Qt::WA_SetWindowIcon);
    for (QAction* proxy : *proxies) {
        proxy->setText(title);
        const QString tip = title.isEmpty() ? dock.objectName() : title;
        proxy->setToolTip(Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip);
        // A window without an icon of its own would give that of its parents.
        proxy->setIcon(hasIcon ? dock.windowIcon() : QIcon());
        proxy->setIconText(dock.windowIconText());
    }
}

Qt::ToolBarArea AutoHideBars::usableArea(Qt::ToolBarArea wanted) const
{
    if (wanted != Qt::LeftToolBarArea && wanted != Qt::RightToolBarArea)
        return Qt::NoToolBarArea;
    const Qt::ToolBarArea other =
        wanted == Qt::LeftToolBarArea ? Qt::RightToolBarArea : Qt::LeftToolBarArea;
    if (m_bars.value(wanted))
        return wanted;
    return m_bars.value(other) ? other : Qt::NoToolBarArea;
}

const AutoHideBars::Proxies* AutoHideBars::proxiesOf(const QObject* dock) const
{
    const auto found = m_proxies.find(dock);
    return found == m_proxies.end() ? nullptr : &found->second;
}

Qt::ToolBarArea AutoHideBars::areaOf(const QObject* dock) const
{
    if (const Proxies* proxies = proxiesOf(dock))
        for (auto proxy = proxies->cbegin(); proxy != proxies->cend(); ++proxy)
            if (proxy.value()->isVisible() && m_bars.value(proxy.key()))
                return proxy.key();
    return Qt::NoToolBarArea;
}

QToolBar* AutoHideBars::barOf(const QObject* dock) const
{
    return m_bars.value(areaOf(dock));
}

QAction* AutoHideBars::proxyOn(const QToolBar& toolBar, const QObject* dock) const
{
    const Proxies* proxies = proxiesOf(dock);
    for (auto bar = m_bars.cbegin(); proxies != nullptr && bar != m_bars.cend(); ++bar)
        if (bar.value() == &toolBar)
            return proxies->value(bar.key());
    return nullptr;
}

QWidget* AutoHideBars::buttonOf(const QObject* dock) const
{
    const QToolBar* toolBar = barOf(dock);
    return toolBar == nullptr ? nullptr : toolBar->widgetForAction(proxyOn(*toolBar, dock));
}

const QObject* AutoHideBars::dockOf(const QObject& button)
{
    return button.property(dockProperty).value<QObject*>();
}

void AutoHideBars::showButton(const QObject* dock, Qt::ToolBarArea area)
{
    if (const Proxies* proxies = proxiesOf(dock))
        for (auto proxy = proxies->cbegin(); proxy != proxies->cend(); ++proxy)
            proxy.value()->setVisible(proxy.key() == area);
}

void AutoHideBars::updateVisibility()
{
    for (auto bar = m_bars.cbegin(); bar != m_bars.cend(); ++bar) {
        const auto showsOn = [&bar](const auto& entry) {
            const QAction* proxy = entry.second.value(bar.key());
            return proxy != nullptr && proxy->isVisible();
        };
        if (bar.value())
            setExpanded(*bar.value(), std::any_of(m_proxies.cbegin(), m_proxies.cend(), showsOn));
    }
}

void AutoHideBars::setExpanded(QToolBar& toolBar, bool expanded)
{
    // A collapsed tool bar keeps its place in the main window's layout, a hidden one would not.
    // Titles in a large font need more room than usual.
    const int wanted = std::max(expandedExtent, toolBar.fontMetrics().height() + titleMargins);
    const int extent = expanded ? wanted : 0;
    if (toolBar.orientation() == Qt::Vertical)
        toolBar.setMaximumWidth(extent);
    else
        toolBar.setMaximumHeight(extent);
    if (QWidget* button = toolBar.widgetForAction(m_popupOnHover))
        button->setFocusPolicy(expanded ? Qt::TabFocus : Qt::NoFocus);
    toolBar.show();
}

void AutoHideBars::moveDock(QDockWidget& dock, const QToolBar& toolBar)
{
    const auto* window = qobject_cast<const QMainWindow*>(toolBar.parentWidget());
    if (window == nullptr || !WindowSystem::placesWindows())
        return;
    // The user may have maximized the window when it was shown last.
    dock.setWindowState(dock.windowState() & ~(Qt::WindowMaximized | Qt::WindowMinimized));
    QRect bar = toolBar.geometry();
    bar.moveTopLeft(window->mapToGlobal(bar.topLeft()));
    // A dock that was as wide as the window would reach beyond it now.
    QRect geometry =
        popupGeometry(bar, window->toolBarArea(&toolBar),
                      dock.size().boundedTo(window->size() - QSize(bar.width(), bar.height())));
    if (!dock.isWindow() && dock.parentWidget() != nullptr)
        geometry.moveTopLeft(dock.parentWidget()->mapFromGlobal(geometry.topLeft()));
    dock.setGeometry(geometry);
    // The answer of the window manager to an earlier showing may still be on its way.
    if (dock.isFloating())
        FloatingDockKeeper::keep(dock);
}

} // namespace QMainWindowHelpers
