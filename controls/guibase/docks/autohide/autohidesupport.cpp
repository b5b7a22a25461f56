// SPDX-License-Identifier: MIT
#include "autohidesupport.h"
#include "autohidesupport_p.h"

#include <guibase/docks/dockicons.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/updatesblocker.h>

#include <jtbase/qtimerhelpers.h>
#include <trovappstartup/cfgcenter.h>

#include <QAction>

#include <algorithm>
#include <utility>

namespace QMainWindowHelpers {

namespace {

constexpr const char* instanceProperty = "QMainWindowHelpers_AutoHideSupport_instance";
constexpr const char* actionProperty = "QMainWindowHelpers_AutoHideSupport_autoHideAction";
const QFlags<Qt::ToolBarArea> sideAreas = Qt::LeftToolBarArea | Qt::RightToolBarArea;

QString storageSection()
{
    return QStringLiteral("Auto hide");
}

} // namespace

AutoHideSupportPrivate::AutoHideSupportPrivate(AutoHideSupport& support, QMainWindow& served,
                                               QFlags<Qt::ToolBarArea> givenAreas)
    : q(support)
    , mainWindow(served)
    , areas(givenAreas & sideAreas)
    , children(
          served, [this](QDockWidget& dock) { registerDock(dock); },
          [this](const QObject* gone, QDockWidget* dock) { unregisterDock(gone, dock); }, nullptr)
    , attachment(served, instanceProperty, support)
{}

AutoHideSupportPrivate::Entry* AutoHideSupportPrivate::entryOf(const QObject* dock)
{
    const auto found = entries.find(dock);
    return found == entries.end() ? nullptr : &found->second;
}

void AutoHideSupportPrivate::registerDock(QDockWidget& dock)
{
    if (entryOf(&dock) != nullptr || dock.parentWidget() != &mainWindow)
        return;
    Entry& entry = entries[&dock];
    entry.dock = &dock;
    entry.name = dock.objectName();
    dock.installEventFilter(&q);
    QObject::connect(&dock, &QObject::objectNameChanged, &q,
                     [this, key = static_cast<const QObject*>(&dock)](const QString& name) {
                         if (Entry* named = entryOf(key))
                             named->name = name;
                     });
    QObject::connect(&dock, &QDockWidget::topLevelChanged, &q,
                     [this, &dock] { leaveWhenGone(dock); });
    addButtons(dock, entry);
    connectAutoHideAction(dock);
    // The dock may be in the middle of being shown, and not have its name yet.
    QTimerHelpers::singleShot(0, &q, [this, guarded = DockPointer(&dock)] {
        if (guarded)
            applyRemembered(*guarded);
    });
}

void AutoHideSupportPrivate::unregisterDock(const QObject* key, QDockWidget* dock)
{
    const auto found = entries.find(key);
    if (found == entries.end())
        return;
    const Entry entry = std::move(found->second);
    const Qt::ToolBarArea side = [&] {
        for (auto proxy = entry.proxies.cbegin(); proxy != entry.proxies.cend(); ++proxy)
            if (proxy.value()->isVisible())
                return proxy.key();
        return Qt::NoToolBarArea;
    }();
    entries.erase(found);
    for (QAction* proxy : entry.proxies) {
        for (QToolBar* toolBar : std::as_const(toolBars))
            if (toolBar != nullptr)
                toolBar->removeAction(proxy);
        proxy->deleteLater();
    }
    const bool wasOn =
        autoHideDocks.removeIf([key](const QDockWidget* other) { return other == key; }) > 0;
    if (pending == nullptr || pending == key)
        q.deactivateAutoHideTimer();
    if (entry.autoHideAction)
        entry.autoHideAction->disconnect(&q);
    if (dock != nullptr) {
        dock->removeEventFilter(&q);
        dock->disconnect(&q);
        if (entry.autoHideAction)
            entry.autoHideAction->setChecked(false);
        // In its new window nothing else would bring it out again.
        if (wasOn && entry.hiddenByMode)
            QTimerHelpers::singleShot(0, dock, [dock] { dock->show(); });
    } else if (wasOn && !entry.name.isEmpty() && !storageName.isEmpty()) {
        // It is the end of the program, perhaps: in the next run the dock comes back as it was.
        remembered.insert(entry.name, side);
    }
    if (wasOn) {
        q.updateToolBarVisibility();
        store();
    }
}

void AutoHideSupportPrivate::connectAutoHideAction(QDockWidget& dock)
{
    Entry* entry = entryOf(&dock);
    QAction* action = AutoHideSupport::autoHideAction(dock);
    if (entry == nullptr || entry->autoHideAction == action)
        return;
    if (entry->autoHideAction)
        entry->autoHideAction->disconnect(&q);
    entry->autoHideAction = action;
    if (action == nullptr)
        return;
    // The dock may have left by the time that the second one runs.
    const auto follow = [this, guarded = DockPointer(&dock)] {
        const auto* current = guarded ? entryOf(guarded.get()) : nullptr;
        if (current != nullptr && current->autoHideAction)
            q.onAutoHideActionToggled(*guarded, current->autoHideAction->isChecked());
    };
    QObject::connect(action, &QAction::toggled, &q, follow);
    if (isOn(dock))
        action->setChecked(true);
    else if (action->isChecked())
        QTimerHelpers::singleShot(0, &q, follow);
}

Qt::ToolBarArea AutoHideSupportPrivate::usableArea(Qt::ToolBarArea wanted) const
{
    if (wanted != Qt::LeftToolBarArea && wanted != Qt::RightToolBarArea)
        return Qt::NoToolBarArea;
    const Qt::ToolBarArea other =
        wanted == Qt::LeftToolBarArea ? Qt::RightToolBarArea : Qt::LeftToolBarArea;
    if (toolBars.value(wanted))
        return wanted;
    return toolBars.value(other) ? other : Qt::NoToolBarArea;
}

Qt::ToolBarArea AutoHideSupportPrivate::shownArea(const QDockWidget& dock) const
{
    const QToolBar* toolBar = q.toolBarResponsibleFor(dock);
    for (auto bar = toolBars.cbegin(); toolBar != nullptr && bar != toolBars.cend(); ++bar)
        if (bar.value() == toolBar)
            return bar.key();
    return Qt::NoToolBarArea;
}

void AutoHideSupportPrivate::setActionChecked(const QDockWidget& dock, bool checked)
{
    if (QAction* action = AutoHideSupport::autoHideAction(dock); action != nullptr)
        action->setChecked(checked);
}

void AutoHideSupportPrivate::enable(QDockWidget& dock, Qt::ToolBarArea area)
{
    const DockPointer guarded(&dock);
    const QPointer<AutoHideSupport> alive(&q);
    const UpdatesBlocker blocker(dock);
    q.setDockWidgetActionVisibility(dock, area);
    q.updateToolBarVisibility();
    autoHideDocks.append(&dock);
    entryOf(&dock)->hadArea = mainWindow.dockWidgetArea(&dock) != Qt::NoDockWidgetArea;
    // Shown now, it would stand alone on the screen.
    if (!mainWindow.isVisible() && !dock.isHidden()) {
        entryOf(&dock)->hiddenByMode = true;
        dock.hide();
    }
    setActionChecked(dock, true);
    if (alive && guarded && isOn(dock) && syncWithFloating && !dock.isFloating()) {
        dock.setFloating(true);
        // The toolkit places a window that it has just made by itself.
        if (alive && guarded)
            QTimerHelpers::singleShot(0, &q, [this, guarded] {
                if (guarded && isOn(*guarded) && guarded->isFloating())
                    if (const QToolBar* toolBar = q.toolBarResponsibleFor(*guarded))
                        q.moveDockWidget(*guarded, *toolBar);
            });
    }
    if (alive)
        store();
}

void AutoHideSupportPrivate::restore(QDockWidget& dock, Qt::ToolBarArea area)
{
    const Qt::ToolBarArea usable = usableArea(area);
    if (usable == Qt::NoToolBarArea)
        return;
    if (isOn(dock)) {
        q.setDockWidgetActionVisibility(dock, usable);
        q.updateToolBarVisibility();
        return;
    }
    const DockPointer guarded(&dock);
    const QPointer<AutoHideSupport> alive(&q);
    enable(dock, usable);
    if (alive && guarded && isOn(dock)) {
        entryOf(&dock)->hiddenByMode = true;
        dock.hide();
        // The window's layout, restored next, may show it as it was at the end of the program.
        QTimerHelpers::singleShot(0, &q, [this, guarded] {
            if (guarded && isOn(*guarded) && guarded->isFloating())
                hideDock(*guarded);
        });
    }
}

AutoHideState AutoHideSupportPrivate::state() const
{
    AutoHideState state;
    state.popupOnHover = popupOnHover->isChecked();
    state.sides = remembered;
    for (const auto& [key, entry] : entries) {
        const bool counts = entry.dock && isOn(*entry.dock) && !entry.dock->objectName().isEmpty();
        // Somebody may have deleted the tool bar.
        const Qt::ToolBarArea side = counts ? shownArea(*entry.dock) : Qt::NoToolBarArea;
        if (side != Qt::NoToolBarArea)
            state.sides.insert(entry.dock->objectName(), side);
    }
    return state;
}

void AutoHideSupportPrivate::apply(const AutoHideState& state)
{
    const QPointer<AutoHideSupport> alive(&q);
    isApplying = true;
    popupOnHover->setChecked(state.popupOnHover);
    remembered = state.sides;
    QList<DockPointer> docks;
    for (const auto& [key, entry] : entries)
        docks << entry.dock;
    for (const DockPointer& dock : std::as_const(docks)) {
        if (alive && dock && isOn(*dock) && !remembered.contains(dock->objectName()))
            q.disableAutoHide(*dock);
        else if (alive && dock)
            applyRemembered(*dock);
    }
    if (alive)
        isApplying = false;
}

void AutoHideSupportPrivate::applyRemembered(QDockWidget& dock)
{
    const auto side = remembered.find(dock.objectName());
    if (side == remembered.end() || entryOf(&dock) == nullptr)
        return;
    const Qt::ToolBarArea area = *side;
    remembered.erase(side);
    restore(dock, area);
}

void AutoHideSupportPrivate::store() const
{
    if (storageName.isEmpty() || isApplying)
        return;
    if (ICfg* layout = CfgCenter::GetAppCfg(LayoutView))
        if (const auto section = layout->OpenSubCfg(storageSection()))
            section->SetString(storageName, QString::fromLatin1(state().toBytes().toHex()));
}

AutoHideSupport::AutoHideSupport(QMainWindow& mainWindow, QFlags<Qt::ToolBarArea> areas)
    : QObject(&mainWindow)
    , d(std::make_unique<AutoHideSupportPrivate>(*this, mainWindow, areas))
{
    d->popupOnHover =
        new QAction(makeDockIcon(DockIcon::PopupOnHover), tr("Popup on mouse hover"), this);
    d->popupOnHover->setToolTip(tr("Popup on mouse hover"));
    d->popupOnHover->setCheckable(true);
    d->popupOnHover->setChecked(true);
    connect(d->popupOnHover, &QAction::toggled, this, [this] { d->store(); });
    setSelectToolBarAreaFn({});
    mainWindow.installEventFilter(this);
    createDockWidgetTabToolBars();
    const auto docks = QMainWindowHelpers::dockWidgets(
        mainWindow, [](const QDockWidget&) { return true; }, -1);
    for (QDockWidget* dock : docks)
        d->registerDock(*dock);
}

AutoHideSupport::~AutoHideSupport()
{
    parent()->removeEventFilter(this);
    // A main window that is being destroyed is none any more, and takes everything with it.
    if (qobject_cast<QMainWindow*>(parent()) != nullptr) {
        d->storageName.clear();
        const QList<const QDockWidget*> docks = d->autoHideDocks;
        for (const QDockWidget* dock : docks)
            if (auto* entry = d->entryOf(dock); entry != nullptr && entry->dock)
                disableAutoHide(*entry->dock);
        for (QToolBar* toolBar : std::as_const(d->toolBars))
            if (toolBar != nullptr)
                toolBar->deleteLater();
    }
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
    return d->areas;
}

void AutoHideSupport::setPopupOnHoverEnabled(bool enabled)
{
    d->popupOnHover->setChecked(enabled);
}

bool AutoHideSupport::isPopupOnHoverEnabled() const
{
    return d->popupOnHover->isChecked();
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
    d->delay = std::max(0, milliseconds);
}

int AutoHideSupport::autoHideDelay() const
{
    return d->delay;
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
    if (d->entryOf(&dock) != nullptr)
        area = d->usableArea(selectToolBarArea(d->mainWindow, dock, d->areas));
    if (area == Qt::NoToolBarArea)
        d->setActionChecked(dock, false);
    else
        d->enable(dock, area);
}

void AutoHideSupport::disableAutoHide(QDockWidget& dock)
{
    if (isAutoHideDisabled(dock))
        return;
    const DockPointer guarded(&dock);
    const QPointer<AutoHideSupport> alive(this);
    const UpdatesBlocker blocker(dock);
    d->autoHideDocks.removeAll(&dock);
    setDockWidgetActionVisibility(dock, Qt::NoToolBarArea);
    updateToolBarVisibility();
    if (d->pending == &dock)
        deactivateAutoHideTimer();
    AutoHideSupportPrivate::Entry* entry = d->entryOf(&dock);
    const bool wasHidden = entry != nullptr && std::exchange(entry->hiddenByMode, false);
    const bool sync = d->syncWithFloating;
    d->store();
    d->setActionChecked(dock, false);
    if (guarded && sync)
        dock.setFloating(false);
    if (guarded && wasHidden)
        dock.show();
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
    d->storageName = name;
    ICfg* layout = name.isEmpty() ? nullptr : CfgCenter::GetAppCfg(LayoutView);
    if (layout == nullptr || !layout->HasSubCfg(storageSection()))
        return;
    const QString stored = layout->OpenSubCfg(storageSection())->GetString(name);
    if (const auto state = AutoHideState::fromBytes(QByteArray::fromHex(stored.toLatin1())))
        d->apply(*state);
}

QList<QDockWidget*> AutoHideSupport::dockWidgets(bool includeFloating) const
{
    return QMainWindowHelpers::dockWidgets(d->mainWindow, Qt::AllDockWidgetAreas, includeFloating);
}

bool AutoHideSupport::isAutoHideDisabled(const QDockWidget& dock) const
{
    return !d->isOn(dock);
}

void AutoHideSupport::onAutoHideActionToggled(QDockWidget& dock, bool checked)
{
    setAutoHideEnabled(dock, checked);
}

} // namespace QMainWindowHelpers
