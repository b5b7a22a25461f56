// SPDX-License-Identifier: MIT
#include "autohidesupport.h"

#include "autohidesupport_p.h"

#include <guibase/docks/dockicons.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/survivalcheck.h>

#include <jtbase/windowsystem.h>

#include <QAbstractButton>
#include <QAction>
#include <QKeyEvent>
#include <QMainWindow>

#include <utility>

namespace QMainWindowHelpers {

namespace {

constexpr const char* instanceProperty = "QMainWindowHelpers_AutoHideSupport_instance";
constexpr const char* actionProperty = "QMainWindowHelpers_AutoHideSupport_autoHideAction";

bool isEscape(const QEvent& event)
{
    return event.type() == QEvent::KeyPress &&
           static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

} // namespace

AutoHideSupport::AutoHideSupport(QMainWindow& mainWindow, QFlags<Qt::ToolBarArea> areas)
    : QObject(&mainWindow)
    , d(std::make_unique<AutoHideSupportPrivate>(*this, mainWindow, areas))
{
    connect(&d->bars.popupOnHover(), &QAction::toggled, this, [this] { d->store(); });
    setSelectToolBarAreaFn({});
    mainWindow.installEventFilter(this);
    createDockWidgetTabToolBars();
    const QList<QDockWidget*> docks = QMainWindowHelpers::dockWidgets(mainWindow);
    for (QDockWidget* dock : docks)
        d->registerDock(*dock);
}

AutoHideSupport::~AutoHideSupport()
{
    d->release();
}

AutoHideSupport* AutoHideSupport::install(QMainWindow& mainWindow, QFlags<Qt::ToolBarArea> areas)
{
    if (AutoHideSupport* existing = get(mainWindow))
        return existing->toolBarAreas() == areas ? existing : nullptr;
    return new AutoHideSupport(mainWindow, areas);
}

AutoHideSupport* AutoHideSupport::get(const QMainWindow& mainWindow)
{
    return AttachedHelpers::get<AutoHideSupport>(mainWindow, instanceProperty);
}

QAction* AutoHideSupport::createAutoHideAction(QDockWidget& dock)
{
    if (QAction* existing = autoHideAction(dock))
        return existing;
    static const QIcon icon = makeDockIcon(DockIcon::AutoHideDisabled, DockIcon::AutoHideEnabled);
    auto* action = new QAction(icon, tr("Hide automatically"), &dock);
    action->setObjectName(QStringLiteral("autoHideButton"));
    action->setCheckable(true);
    connect(action, &QObject::destroyed, &dock, [&dock, action] {
        if (dock.property(actionProperty).value<QObject*>() == action)
            dock.setProperty(actionProperty, QVariant());
    });
    dock.setProperty(actionProperty, QVariant::fromValue<QObject*>(action));
    // The main window may not have told yet that the dock has come.
    const auto* mainWindow = qobject_cast<QMainWindow*>(dock.parentWidget());
    if (AutoHideSupport* support = mainWindow == nullptr ? nullptr : get(*mainWindow))
        support->d->registerDock(dock);
    return action;
}

QAction* AutoHideSupport::autoHideAction(const QDockWidget& dock)
{
    return AttachedHelpers::get<QAction>(dock, actionProperty);
}

QFlags<Qt::ToolBarArea> AutoHideSupport::toolBarAreas() const
{
    return d->bars.areas();
}

void AutoHideSupport::setPopupOnHoverEnabled(bool enabled)
{
    d->bars.popupOnHover().setChecked(enabled);
}

bool AutoHideSupport::isPopupOnHoverEnabled() const
{
    return d->bars.popupOnHover().isChecked();
}

void AutoHideSupport::setSyncAutoHideWithFloatingEnabled(bool enabled)
{
    d->syncWithFloating = enabled;
}

bool AutoHideSupport::isSyncAutoHideWithFloatingEnabled() const
{
    return d->syncWithFloating;
}

void AutoHideSupport::setAllowAutoHideOfNonFloatingEnabled(bool enabled)
{
    d->allowNonFloating = enabled;
}

bool AutoHideSupport::isAllowAutoHideOfNonFloatingEnabled() const
{
    return d->allowNonFloating;
}

void AutoHideSupport::setAutoHideDelay(int milliseconds)
{
    d->timer.setDelay(milliseconds);
}

int AutoHideSupport::autoHideDelay() const
{
    return d->timer.delay();
}

void AutoHideSupport::setAutoHideEnabled(QDockWidget& dock, bool enabled)
{
    if (enabled)
        enableAutoHide(dock);
    else
        disableAutoHide(dock);
}

void AutoHideSupport::enableAutoHide(QDockWidget& dock)
{
    d->registerDock(dock);
    if (d->isOn(dock))
        return;
    Qt::ToolBarArea area = Qt::NoToolBarArea;
    if (d->entryOf(&dock) != nullptr && d->window() != nullptr)
        area = d->bars.usableArea(selectToolBarArea(*d->window(), dock, toolBarAreas()));
    if (area == Qt::NoToolBarArea)
        d->setActionChecked(dock, false);
    else
        d->enable(dock, area);
}

void AutoHideSupport::disableAutoHide(QDockWidget& dock)
{
    d->disable(dock);
}

void AutoHideSupport::setSelectToolBarAreaFn(SelectToolBarAreaFn function)
{
    d->selectArea = function ? std::move(function)
                             : SelectToolBarAreaFn(&selectToolBarAreaByDockWidgetScreenPosition);
}

Qt::ToolBarArea AutoHideSupport::selectToolBarArea(const QMainWindow& mainWindow,
                                                   const QDockWidget& dock,
                                                   QFlags<Qt::ToolBarArea> areas)
{
    return d->selectArea(mainWindow, dock, areas);
}

Qt::ToolBarArea AutoHideSupport::selectToolBarAreaByDockWidgetArea(const QMainWindow& mainWindow,
                                                                   const QDockWidget& dock,
                                                                   QFlags<Qt::ToolBarArea>)
{
    switch (mainWindow.dockWidgetArea(const_cast<QDockWidget*>(&dock))) {
    case Qt::LeftDockWidgetArea:
        return Qt::LeftToolBarArea;
    case Qt::RightDockWidgetArea:
        return Qt::RightToolBarArea;
    case Qt::TopDockWidgetArea:
        return Qt::TopToolBarArea;
    case Qt::BottomDockWidgetArea:
        return Qt::BottomToolBarArea;
    default:
        return Qt::NoToolBarArea;
    }
}

Qt::ToolBarArea AutoHideSupport::selectToolBarAreaByDockWidgetScreenPosition(
    const QMainWindow& mainWindow, const QDockWidget& dock, QFlags<Qt::ToolBarArea>)
{
    // Where windows have no places, that of the dock in the main window counts.
    if (dock.isFloating() && !WindowSystem::placesWindows())
        return mainWindow.dockWidgetArea(const_cast<QDockWidget*>(&dock)) == Qt::RightDockWidgetArea
                   ? Qt::RightToolBarArea
                   : Qt::LeftToolBarArea;
    const auto centre = [](const QRect& rect) { return (rect.left() + rect.right()) / 2; };
    QRect dockRect = dock.geometry();
    if (!dock.isFloating())
        dockRect.moveTopLeft(mainWindow.mapToGlobal(dockRect.topLeft()));
    return centre(dockRect) > centre(mainWindow.geometry()) ? Qt::RightToolBarArea
                                                            : Qt::LeftToolBarArea;
}

QByteArray AutoHideSupport::saveState() const
{
    return d->state().toBytes();
}

bool AutoHideSupport::restoreState(const QByteArray& state)
{
    const std::optional<AutoHideState> read = AutoHideState::fromBytes(state);
    if (!read)
        return false;
    const QPointer<AutoHideSupport> alive(this);
    d->apply(*read);
    if (alive)
        d->store();
    return true;
}

void AutoHideSupport::setStorageName(const QString& name)
{
    d->record.setName(name);
    if (const std::optional<AutoHideState> stored = d->record.read())
        d->apply(*stored);
}

// --- Events --------------------------------------------------------------------------------------

bool AutoHideSupport::eventFilter(QObject* watched, QEvent* event)
{
    const SurvivalCheck receiver(watched);
    if (watched == parent())
        mainWindowEvent(*event);
    else if (const auto* entry = d->entryOf(watched); entry != nullptr && entry->dock)
        dockWidgetEvent(*entry->dock, *event);
    else if (auto* button = qobject_cast<QAbstractButton*>(watched))
        actionWidgetEvent(*button, *event);
    return receiver.hasDied();
}

void AutoHideSupport::timerEvent(QTimerEvent* event)
{
    if (!d->timer.handle(*event))
        QObject::timerEvent(event);
}

void AutoHideSupport::mainWindowEvent(const QEvent& event)
{
    const QPointer<AutoHideSupport> alive(this);
    switch (event.type()) {
    case QEvent::Resize:
    case QEvent::Move:
        d->followMainWindow();
        break;
    case QEvent::LayoutRequest:
        // All that a hidden dock's removal from the layout leads to.
        for (const DockPointer& dock : d->docksInMode())
            if (d->window() != nullptr &&
                d->window()->dockWidgetArea(dock.get()) == Qt::NoDockWidgetArea)
                d->leaveWhenGone(*dock);
        break;
    case QEvent::KeyPress:
        // A dock that the mouse has shown does not have the focus.
        if (isEscape(event))
            d->dismissAll();
        break;
    case QEvent::ChildRemoved: {
        const QObject* child = static_cast<const QChildEvent&>(event).child();
        // A dock may have been registered before it was announced.
        if (child == this)
            d->release();
        else if (const auto* entry = d->entryOf(child))
            d->unregisterDock(child, entry->dock.get());
        break;
    }
    default:
        break;
    }
    if (alive)
        d->children.handle(event);
}

void AutoHideSupport::dockWidgetEvent(QDockWidget& dock, const QEvent& event)
{
    const bool isOn = d->isOn(dock);
    switch (event.type()) {
    case QEvent::Enter:
        if (isOn)
            d->timer.hideOther(dock);
        break;
    case QEvent::Leave:
        // Child widgets make the toolkit tell this while the mouse is still over the dock.
        if (isOn && !AutoHideTimer::isUnderCursor(dock))
            activateAutoHideTimer(dock);
        break;
    case QEvent::Show:
        // The window system's own shows, after minimizing, change nothing.
        if (!event.spontaneous())
            d->dockShown(dock);
        break;
    case QEvent::Close:
        if (auto* entry = d->entryOf(&dock); isOn && entry != nullptr)
            entry->isClosed = true;
        [[fallthrough]];
    case QEvent::Hide:
        if (isOn)
            d->leaveWhenGone(dock);
        break;
    case QEvent::KeyPress:
        if (isOn && dock.isVisible() && isEscape(event))
            d->dismissByKey(dock);
        break;
    case QEvent::WindowTitleChange:
    case QEvent::WindowIconChange:
    case QEvent::ModifiedChange:
    case QEvent::IconTextChange:
        d->bars.followDock(dock);
        break;
    case QEvent::DynamicPropertyChange:
        if (static_cast<const QDynamicPropertyChangeEvent&>(event).propertyName() == actionProperty)
            d->connectAutoHideAction(dock);
        break;
    default:
        break;
    }
}

void AutoHideSupport::actionWidgetEvent(QAbstractButton& button, const QEvent& event)
{
    if (event.type() != QEvent::Enter && event.type() != QEvent::Leave)
        return;
    const auto* entry = d->entryOf(AutoHideBars::dockOf(button));
    if (entry == nullptr || !entry->dock)
        return;
    QDockWidget& dock = *entry->dock;
    if (event.type() == QEvent::Enter)
        d->timer.hideOther(dock);
    else
        activateAutoHideTimer(dock);
}

// --- For derived classes -------------------------------------------------------------------------

QList<QDockWidget*> AutoHideSupport::dockWidgets(bool includeFloating) const
{
    return d->window() == nullptr ? QList<QDockWidget*>()
                                  : QMainWindowHelpers::dockWidgets(
                                        *d->window(), Qt::AllDockWidgetAreas, includeFloating);
}

bool AutoHideSupport::isAutoHideDisabled(const QDockWidget& dock) const
{
    return !d->isOn(dock);
}

void AutoHideSupport::onAutoHideActionToggled(QDockWidget& dock, bool checked)
{
    setAutoHideEnabled(dock, checked);
}

void AutoHideSupport::popupDockWidgetOnHovered(QDockWidget& dock)
{
    if (isPopupOnHoverEnabled())
        dock.show();
}

void AutoHideSupport::activateAutoHideTimer(QDockWidget& dock)
{
    d->timer.start(dock);
}

QDockWidget* AutoHideSupport::deactivateAutoHideTimer()
{
    return d->timer.stop();
}

void AutoHideSupport::moveDockWidget(QDockWidget& dock, const QToolBar& toolBar)
{
    AutoHideBars::moveDock(dock, toolBar);
}

void AutoHideSupport::createDockWidgetTabToolBars()
{
    if (d->window() != nullptr)
        d->bars.createIn(*d->window());
}

QAction* AutoHideSupport::createToggleViewProxyAction(QDockWidget& dock, Qt::ToolBarArea area)
{
    return d->bars.createProxy(dock, area,
                               [this](QDockWidget& hovered) { popupDockWidgetOnHovered(hovered); });
}

QAction* AutoHideSupport::toolBarActionFor(const QToolBar& toolBar, const QDockWidget& dock) const
{
    return d->bars.proxyOn(toolBar, &dock);
}

QToolBar* AutoHideSupport::toolBarResponsibleFor(const QDockWidget& dock) const
{
    return d->bars.barOf(&dock);
}

void AutoHideSupport::setDockWidgetActionVisibility(const QDockWidget& dock, Qt::ToolBarArea area)
{
    d->bars.showButton(&dock, area);
}

void AutoHideSupport::updateToolBarVisibility()
{
    d->bars.updateVisibility();
}

void AutoHideSupport::setToolBarVisible(QToolBar& toolBar, bool visible)
{
    d->bars.setExpanded(toolBar, visible);
}

} // namespace QMainWindowHelpers
