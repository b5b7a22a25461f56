// SPDX-License-Identifier: MIT
#include "autohidesupport_p.h"

#include <guibase/docks/dockfocus.h>
#include <guibase/docks/edgehiding.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/updatesblocker.h>

#include <jtbase/qtimerhelpers.h>
#include <jtbase/windowsystem.h>

#include <QAction>
#include <QMainWindow>
#include <QPointer>

#include <utility>

namespace QMainWindowHelpers {

namespace {

constexpr const char* instanceProperty = "QMainWindowHelpers_AutoHideSupport_instance";

} // namespace

AutoHideSupportPrivate::AutoHideSupportPrivate(AutoHideSupport& support, QMainWindow& mainWindow,
                                               QFlags<Qt::ToolBarArea> areas)
    : q(support)
    , served(&mainWindow)
    , bars(support, areas)
    , timer(support, {[this](const QDockWidget& dock) { return isOn(dock); },
                      [this](const QDockWidget& dock) {
                          const QWidget* button = bars.buttonOf(&dock);
                          return button != nullptr && AutoHideTimer::isUnderCursor(*button);
                      },
                      [this](QDockWidget& dock) {
                          if (Entry* entry = entryOf(&dock))
                              entry->hiddenByMode = true;
                      }})
    , children(
          mainWindow, [this](QDockWidget& dock) { registerDock(dock); },
          [this](const QObject* gone, QDockWidget* dock) { unregisterDock(gone, dock); }, nullptr)
{
    attachment.emplace(mainWindow, instanceProperty, support);
}

QMainWindow* AutoHideSupportPrivate::window() const
{
    return qobject_cast<QMainWindow*>(served.data());
}

AutoHideSupportPrivate::Entry* AutoHideSupportPrivate::entryOf(const QObject* dock)
{
    const auto found = entries.find(dock);
    return found == entries.end() ? nullptr : &found->second;
}

bool AutoHideSupportPrivate::isOn(const QDockWidget& dock)
{
    const Entry* entry = entryOf(&dock);
    return entry != nullptr && entry->isOn;
}

bool AutoHideSupportPrivate::floatsDocks() const
{
    return syncWithFloating && WindowSystem::placesWindows();
}

bool AutoHideSupportPrivate::isInItsLayer(const QDockWidget& dock)
{
    return dock.isFloating() == WindowSystem::placesWindows();
}

QList<DockPointer> AutoHideSupportPrivate::docksInMode()
{
    QList<DockPointer> docks;
    for (const auto& [key, entry] : entries)
        if (entry.dock && entry.isOn)
            docks << entry.dock;
    return docks;
}

void AutoHideSupportPrivate::release()
{
    QMainWindow* mainWindow = window();
    if (mainWindow == nullptr)
        return;
    record.setName({});
    const QPointer<AutoHideSupport> alive(&q);
    const QList<DockPointer> docks = docksInMode();
    for (const DockPointer& dock : docks)
        if (alive && dock)
            disable(*dock);
    while (alive && !entries.empty()) {
        const auto& [key, entry] = *entries.begin();
        unregisterDock(key, entry.dock.get());
    }
    if (!alive)
        return;
    bars.destroy();
    if (window() != nullptr)
        mainWindow->removeEventFilter(&q);
    attachment.reset();
    served.clear();
}

void AutoHideSupportPrivate::registerDock(QDockWidget& dock)
{
    if (entryOf(&dock) != nullptr || window() == nullptr || dock.parentWidget() != window())
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
                     [this, &dock] { followFloating(dock); });
    bars.addButtons(
        dock, [this](QDockWidget& hovered) { q.popupDockWidgetOnHovered(hovered); },
        [this](QDockWidget& chosen) { showByKey(chosen); });
    connectAutoHideAction(dock);
    // The dock may be in the middle of being shown, and not have its name yet.
    QTimerHelpers::singleShot(0, &q, [this, guarded = DockPointer(&dock)] {
        if (guarded)
            applyExpected(*guarded);
    });
}

void AutoHideSupportPrivate::unregisterDock(const QObject* key, QDockWidget* dock)
{
    const auto found = entries.find(key);
    if (found == entries.end())
        return;
    const Entry entry = std::move(found->second);
    const Qt::ToolBarArea side = bars.areaOf(key);
    entries.erase(found);
    bars.removeButtons(key);
    timer.forget(key);
    if (entry.autoHideAction)
        entry.autoHideAction->disconnect(&q);
    const QPointer<AutoHideSupport> guard(&q); // Who hears of the action may delete it.
    // A dock that dies may do so at the end of the program: in the next run it comes back as it
    // was.
    if (dock != nullptr)
        letGo(*dock, entry);
    else if (entry.isOn && !entry.name.isEmpty() && record.hasName())
        record.expect(entry.name, side);
    if (entry.isOn && guard) {
        bars.updateVisibility();
        store();
    }
}

void AutoHideSupportPrivate::letGo(QDockWidget& dock, const Entry& entry)
{
    dock.removeEventFilter(&q);
    dock.disconnect(&q);
    EdgeHiding::setOn(dock, false);
    if (entry.autoHideAction)
        entry.autoHideAction->setChecked(false);
    // In its new window nothing else would bring it out again.
    if (entry.isOn && entry.hiddenByMode)
        QTimerHelpers::singleShot(0, &dock, [&dock] { dock.show(); });
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
    bars.showButton(&dock, area);
    bars.updateVisibility();
    Entry& entry = *entryOf(&dock);
    entry.isOn = true;
    entry.hadArea = window()->dockWidgetArea(&dock) != Qt::NoDockWidgetArea;
    // Shown now, it would stand alone on the screen.
    if (!window()->isVisible() && !dock.isHidden()) {
        entry.hiddenByMode = true;
        dock.hide();
    }
    hideOthersAt(area, dock);
    if (alive && guarded)
        EdgeHiding::setOn(dock, true);
    if (alive && guarded)
        setActionChecked(dock, true);
    if (alive && guarded && isOn(dock))
        moveToItsLayer(dock);
    if (alive)
        store();
}

void AutoHideSupportPrivate::moveToItsLayer(QDockWidget& dock)
{
    const DockPointer guarded(&dock);
    const QPointer<AutoHideSupport> alive(&q);
    if (floatsDocks() && !dock.isFloating()) {
        dock.setFloating(true);
        // The toolkit places a window that it has just made by itself.
        if (alive && guarded)
            placeLater(dock);
    } else if (!WindowSystem::placesWindows() && dock.isFloating()) {
        const bool isRight = bars.areaOf(&dock) == Qt::RightToolBarArea;
        if (window()->dockWidgetArea(&dock) == Qt::NoDockWidgetArea)
            window()->addDockWidget(isRight ? Qt::RightDockWidgetArea : Qt::LeftDockWidgetArea,
                                    &dock);
        if (guarded)
            dock.setFloating(false);
    }
}

void AutoHideSupportPrivate::followFloating(QDockWidget& dock)
{
    if (WindowSystem::placesWindows() || !dock.isFloating()) {
        leaveWhenGone(dock);
        return;
    }
    QTimerHelpers::singleShot(0, &q, [this, guarded = DockPointer(&dock)] {
        if (guarded && isOn(*guarded) && guarded->isFloating())
            disable(*guarded);
    });
}

void AutoHideSupportPrivate::hideOthersAt(Qt::ToolBarArea area, const QDockWidget& dock)
{
    const QPointer<AutoHideSupport> alive(&q);
    const QList<DockPointer> docks = docksInMode();
    for (const DockPointer& other : docks)
        if (alive && other && other.get() != &dock && other->isFloating() && other->isVisible() &&
            bars.areaOf(other.get()) == area && !other->isActiveWindow() &&
            !AutoHideTimer::isUnderCursor(*other))
            timer.hide(*other);
}

void AutoHideSupportPrivate::placeLater(QDockWidget& dock)
{
    QTimerHelpers::singleShot(0, &q, [this, guarded = DockPointer(&dock)] {
        if (guarded && isOn(*guarded) && guarded->isFloating())
            place(*guarded);
    });
}

void AutoHideSupportPrivate::place(QDockWidget& dock)
{
    if (const QToolBar* toolBar = bars.barOf(&dock))
        AutoHideBars::moveDock(dock, *toolBar);
}

void AutoHideSupportPrivate::restore(QDockWidget& dock, Qt::ToolBarArea area)
{
    const Qt::ToolBarArea usable = bars.usableArea(area);
    if (usable == Qt::NoToolBarArea)
        return;
    if (isOn(dock)) {
        bars.showButton(&dock, usable);
        bars.updateVisibility();
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
            if (guarded && isOn(*guarded) && isInItsLayer(*guarded))
                timer.hide(*guarded);
        });
    }
}

void AutoHideSupportPrivate::disable(QDockWidget& dock)
{
    Entry* entry = entryOf(&dock);
    if (entry == nullptr || !std::exchange(entry->isOn, false))
        return;
    const DockPointer guarded(&dock);
    const QPointer<AutoHideSupport> alive(&q);
    const UpdatesBlocker blocker(dock);
    const bool wasHidden = std::exchange(entry->hiddenByMode, false);
    const bool docksIt = floatsDocks();
    bars.showButton(&dock, Qt::NoToolBarArea);
    bars.updateVisibility();
    timer.forget(&dock);
    store();
    EdgeHiding::setOn(dock, false);
    if (alive && guarded)
        setActionChecked(dock, false);
    if (guarded && docksIt)
        dock.setFloating(false);
    if (guarded && wasHidden)
        dock.show();
}

void AutoHideSupportPrivate::leaveWhenGone(QDockWidget& dock)
{
    QTimerHelpers::singleShot(0, &q, [this, guarded = DockPointer(&dock)] {
        Entry* entry = guarded ? entryOf(guarded.get()) : nullptr;
        if (entry == nullptr)
            return;
        // A dock that is still there has refused to be closed.
        const bool isClosed = std::exchange(entry->isClosed, false);
        if (!entry->isOn || guarded->isVisible() || window() == nullptr || !window()->isVisible())
            return;
        const bool isRemoved =
            entry->hadArea && window()->dockWidgetArea(guarded.get()) == Qt::NoDockWidgetArea;
        const bool isDocked = !guarded->isFloating() && floatsDocks() && !allowNonFloating;
        if (isClosed || isRemoved)
            entry->hiddenByMode = false;
        if (isClosed || isRemoved || isDocked)
            disable(*guarded);
    });
}

void AutoHideSupportPrivate::dockShown(QDockWidget& dock)
{
    if (Entry* entry = entryOf(&dock))
        entry->hiddenByMode = entry->isClosed = false;
    if (window() != nullptr && EdgeHiding::Pause::isOn(*window()))
        return;
    if (isOn(dock) && !WindowSystem::placesWindows()) {
        dock.raise(); // It may be behind a tab.
    } else if (dock.isFloating() || (isOn(dock) && allowNonFloating)) {
        place(dock);
    } else if (isOn(dock)) {
        const DockPointer guarded(&dock);
        const QPointer<AutoHideSupport> alive(&q);
        timer.hideOther(dock);
        if (alive && guarded)
            disable(dock);
    }
}

void AutoHideSupportPrivate::followMainWindow()
{
    if (docksInMode().isEmpty() || std::exchange(isFollowing, true))
        return;
    // The tool bars get their places after this event.
    QTimerHelpers::singleShot(0, &q, [this] {
        isFollowing = false;
        const QList<DockPointer> docks = docksInMode();
        for (const DockPointer& dock : docks)
            if (dock && dock->isFloating() && dock->isVisible())
                place(*dock);
    });
}

void AutoHideSupportPrivate::showByKey(QDockWidget& dock)
{
    if (!dock.isVisible())
        return;
    dock.raise();
    dock.activateWindow();
    DockFocus::target(dock)->setFocus(Qt::ShortcutFocusReason);
}

void AutoHideSupportPrivate::dismissByKey(QDockWidget& dock)
{
    const QPointer<AutoHideSupport> alive(&q);
    const QPointer<QWidget> button = bars.buttonOf(&dock);
    timer.forget(&dock);
    timer.hide(dock);
    if (alive && button && window() != nullptr) {
        window()->activateWindow();
        button->setFocus(Qt::ShortcutFocusReason);
    }
}

void AutoHideSupportPrivate::dismissAll()
{
    const QPointer<AutoHideSupport> alive(&q);
    const QList<DockPointer> docks = docksInMode();
    for (const DockPointer& dock : docks)
        if (alive && dock && dock->isVisible() && isInItsLayer(*dock))
            timer.hide(*dock);
}

AutoHideState AutoHideSupportPrivate::state()
{
    AutoHideState state;
    state.popupOnHover = bars.popupOnHover().isChecked();
    state.sides = record.expected();
    const QList<DockPointer> docks = docksInMode();
    for (const DockPointer& dock : docks) {
        // Somebody may have deleted the tool bar.
        const Qt::ToolBarArea side = bars.areaOf(dock.get());
        if (side != Qt::NoToolBarArea && !dock->objectName().isEmpty())
            state.sides.insert(dock->objectName(), side);
    }
    return state;
}

void AutoHideSupportPrivate::store()
{
    if (record.hasName())
        record.write(state());
}

void AutoHideSupportPrivate::apply(const AutoHideState& state)
{
    const QPointer<AutoHideSupport> alive(&q);
    record.setPaused(true);
    bars.popupOnHover().setChecked(state.popupOnHover);
    record.setExpected(state.sides);
    QList<DockPointer> docks;
    for (const auto& [key, entry] : entries)
        docks << entry.dock;
    for (const DockPointer& dock : std::as_const(docks)) {
        if (alive && dock && isOn(*dock) && !state.sides.contains(dock->objectName()))
            disable(*dock);
        else if (alive && dock)
            applyExpected(*dock);
    }
    if (alive)
        record.setPaused(false);
}

void AutoHideSupportPrivate::applyExpected(QDockWidget& dock)
{
    if (entryOf(&dock) == nullptr)
        return;
    const Qt::ToolBarArea side = record.take(dock.objectName());
    if (side != Qt::NoToolBarArea)
        restore(dock, side);
}

} // namespace QMainWindowHelpers
