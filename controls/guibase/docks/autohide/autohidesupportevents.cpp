// SPDX-License-Identifier: MIT
#include "autohidebutton_p.h"
#include "autohidesupport.h"
#include "autohidesupport_p.h"

#include <guibase/docks/docktitle.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/survivalcheck.h>
#include <guibase/layouts/floatingdockkeeper.h>

#include <jtbase/qtimerhelpers.h>

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLayout>
#include <QStyle>
#include <QTextDocument>
#include <QWidgetAction>

#include <algorithm>
#include <utility>

namespace QMainWindowHelpers {

namespace {

constexpr const char* actionProperty = "QMainWindowHelpers_AutoHideSupport_autoHideAction";
constexpr const char* dockProperty = "QMainWindowHelpers_AutoHideSupport_dockWidget";
constexpr const char* buttonProperty = "QMainWindowHelpers_AutoHideSupport_toggleViewButton";

constexpr int expandedExtent = 24;
constexpr int popupButtonExtent = 24;
constexpr int titleMargins = 6;
/// Milliseconds, at least, until it is looked again whether a dock's menu or dialog is still open.
constexpr int shortestWait = 50;

bool isAtSide(Qt::ToolBarArea area)
{
    return area == Qt::LeftToolBarArea || area == Qt::RightToolBarArea;
}

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

bool isInside(const QWidget* widget, const QWidget& ancestor)
{
    while (widget != nullptr && widget != &ancestor)
        widget = widget->parentWidget();
    return widget != nullptr;
}

/// Whether a menu, list or dialog is open that belongs to the dock, or that may: their parents do
/// not tell from where menus and modal dialogs were opened.
bool hasOpenWindow(const QDockWidget& dock)
{
    if (QApplication::activePopupWidget() != nullptr ||
        QApplication::activeModalWidget() != nullptr)
        return true;
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.cbegin(), windows.cend(), [&dock](const QWidget* window) {
        const Qt::WindowType type = window->windowType();
        const bool counts = type == Qt::Dialog || type == Qt::Sheet;
        return counts && window->isVisible() && isInside(window, dock);
    });
}

bool isUnderCursor(const QDockWidget& dock)
{
    return dock.rect().contains(dock.mapFromGlobal(QCursor::pos()));
}

/// The widget of the dock that takes the keys: the one that had the focus last, or the first that
/// can be reached by Tab, or the dock itself.
QWidget* focusTarget(QDockWidget& dock)
{
    if (QWidget* last = dock.focusWidget())
        return last;
    if (dock.widget() == nullptr)
        return &dock;
    QWidget* candidate = dock.widget();
    do {
        if (candidate->isEnabled() && candidate->isVisibleTo(&dock) &&
            (candidate->focusPolicy() & Qt::TabFocus) && isInside(candidate, *dock.widget()))
            return candidate;
        candidate = candidate->nextInFocusChain();
    } while (candidate != dock.widget());
    return &dock;
}

} // namespace

void AutoHideSupportPrivate::addButtons(QDockWidget& dock, Entry& entry)
{
    for (auto bar = toolBars.cbegin(); bar != toolBars.cend(); ++bar)
        if (bar.value() != nullptr)
            entry.proxies.insert(bar.key(), q.createToggleViewProxyAction(dock, bar.key()));
    // Every change of an action that is shown somewhere already makes work there.
    followDock(dock);
    for (auto proxyOfArea = entry.proxies.cbegin(); proxyOfArea != entry.proxies.cend();
         ++proxyOfArea) {
        QAction* proxy = proxyOfArea.value();
        QToolBar* toolBar = toolBars.value(proxyOfArea.key());
        toolBar->addAction(proxy);
        auto* button = qobject_cast<AutoHideButton*>(toolBar->widgetForAction(proxy));
        if (button == nullptr)
            continue;
        button->setProperty(buttonProperty, true);
        button->setProperty(dockProperty, QVariant::fromValue<QObject*>(&dock));
        button->installEventFilter(&q);
        QObject::connect(button, &AutoHideButton::chosenByKey, &dock,
                         [this, &dock] { showByKey(dock); });
    }
}

void AutoHideSupportPrivate::followDock(const QDockWidget& dock)
{
    const Entry* entry = entryOf(&dock);
    if (entry == nullptr)
        return;
    const QString title = shownDockTitle(dock);
    const bool hasIcon = dock.testAttribute(Qt::WA_SetWindowIcon);
    for (QAction* proxy : entry->proxies) {
        proxy->setText(title);
        const QString tip = title.isEmpty() ? dock.objectName() : title;
        proxy->setToolTip(Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip);
        // A window without an icon of its own would give that of its parents.
        proxy->setIcon(hasIcon ? dock.windowIcon() : QIcon());
        proxy->setIconText(dock.windowIconText());
    }
}

void AutoHideSupportPrivate::hideDock(QDockWidget& dock)
{
    if (!dock.isVisible())
        return;
    if (hasOpenWindow(dock)) {
        hideLater(dock);
        return;
    }
    if (Entry* entry = entryOf(&dock))
        entry->hiddenByMode = true;
    dock.hide();
}

void AutoHideSupportPrivate::hideLater(QDockWidget& dock)
{
    Entry* entry = entryOf(&dock);
    if (entry == nullptr || std::exchange(entry->willHide, true))
        return;
    const int wait = std::max(delay, shortestWait);
    QTimerHelpers::singleShot(wait, &q, [this, key = static_cast<const QObject*>(&dock)] {
        Entry* waiting = entryOf(key);
        if (waiting == nullptr)
            return;
        waiting->willHide = false;
        // Otherwise the user has come back to it, or it will be hidden in its turn.
        if (waiting->dock && isOn(*waiting->dock) && !(pending == key) &&
            !isUnderCursor(*waiting->dock))
            hideDock(*waiting->dock);
    });
}

void AutoHideSupportPrivate::leaveWhenGone(QDockWidget& dock)
{
    QTimerHelpers::singleShot(0, &q, [this, guarded = DockPointer(&dock)] {
        Entry* entry = guarded ? entryOf(guarded.get()) : nullptr;
        if (entry == nullptr)
            return;
        // A dock that is still there has refused to be closed.
        const bool isClosed = std::exchange(entry->isClosed, false);
        if (!isOn(*guarded) || guarded->isVisible() || !mainWindow.isVisible())
            return;
        const bool isRemoved =
            entry->hadArea && mainWindow.dockWidgetArea(guarded.get()) == Qt::NoDockWidgetArea;
        const bool isDocked = !guarded->isFloating() && syncWithFloating && !allowNonFloating;
        if (isClosed || isRemoved)
            entry->hiddenByMode = false;
        if (isClosed || isRemoved || isDocked)
            q.disableAutoHide(*guarded);
    });
}

void AutoHideSupportPrivate::hideOther(QDockWidget* other, const QDockWidget& dock)
{
    if (other != nullptr && other != &dock)
        hideDock(*other);
}

void AutoHideSupportPrivate::dockShown(QDockWidget& dock)
{
    if (Entry* entry = entryOf(&dock))
        entry->hiddenByMode = entry->isClosed = false;
    if (dock.isFloating() || (isOn(dock) && allowNonFloating)) {
        if (const QToolBar* toolBar = q.toolBarResponsibleFor(dock))
            q.moveDockWidget(dock, *toolBar);
    } else if (isOn(dock)) {
        const DockPointer guarded(&dock);
        const QPointer<AutoHideSupport> alive(&q);
        QDockWidget* other = q.deactivateAutoHideTimer();
        hideOther(other, dock);
        if (alive && guarded)
            q.disableAutoHide(dock);
    }
}

void AutoHideSupportPrivate::followMainWindow()
{
    if (autoHideDocks.isEmpty() || std::exchange(isFollowing, true))
        return;
    // The tool bars get their places after this event.
    QTimerHelpers::singleShot(0, &q, [this] {
        isFollowing = false;
        for (const auto& [key, entry] : entries) {
            const DockPointer& dock = entry.dock;
            const QToolBar* toolBar = dock && dock->isFloating() && dock->isVisible()
                                          ? q.toolBarResponsibleFor(*dock)
                                          : nullptr;
            if (toolBar != nullptr)
                q.moveDockWidget(*dock, *toolBar);
        }
    });
}

void AutoHideSupportPrivate::showByKey(QDockWidget& dock)
{
    if (!dock.isVisible())
        return;
    dock.raise();
    dock.activateWindow();
    focusTarget(dock)->setFocus(Qt::ShortcutFocusReason);
}

void AutoHideSupportPrivate::dismissByKey(QDockWidget& dock)
{
    const QPointer<AutoHideSupport> alive(&q);
    const QToolBar* toolBar = q.toolBarResponsibleFor(dock);
    const QPointer<QWidget> button =
        toolBar == nullptr ? nullptr : toolBar->widgetForAction(q.toolBarActionFor(*toolBar, dock));
    if (pending == &dock)
        q.deactivateAutoHideTimer();
    hideDock(dock);
    if (alive && button) {
        mainWindow.activateWindow();
        button->setFocus(Qt::ShortcutFocusReason);
    }
}

void AutoHideSupportPrivate::dismissAll()
{
    QList<DockPointer> shown;
    for (const auto& [key, entry] : entries)
        if (entry.dock && isOn(*entry.dock) && entry.dock->isVisible() && entry.dock->isFloating())
            shown << entry.dock;
    const QPointer<AutoHideSupport> alive(&q);
    for (const DockPointer& dock : std::as_const(shown))
        if (alive && dock)
            hideDock(*dock);
}

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
    if (event->timerId() != d->hideTimer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    const bool waited = d->waitsForOpenWindow;
    QDockWidget* dock = deactivateAutoHideTimer();
    if (dock == nullptr)
        return;
    if (hasOpenWindow(*dock)) {
        activateAutoHideTimer(*dock);
        d->hideTimer.start(std::max(d->delay, shortestWait), this);
        d->waitsForOpenWindow = true;
    } else if (!waited || !isUnderCursor(*dock)) {
        d->hideDock(*dock);
    }
}

void AutoHideSupport::popupDockWidgetOnHovered(QDockWidget& dock)
{
    if (!isPopupOnHoverEnabled())
        return;
    dock.show();
}

void AutoHideSupport::mainWindowEvent(const QEvent& event)
{
    if (event.type() == QEvent::Resize || event.type() == QEvent::Move)
        d->followMainWindow();
    // All that a hidden dock's removal from the layout leads to.
    if (event.type() == QEvent::LayoutRequest)
        for (const auto& [key, entry] : d->entries)
            if (entry.dock && d->isOn(*entry.dock) &&
                d->mainWindow.dockWidgetArea(entry.dock.get()) == Qt::NoDockWidgetArea)
                d->leaveWhenGone(*entry.dock);
    // A dock that the mouse has shown does not have the focus.
    if (event.type() == QEvent::KeyPress &&
        static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape)
        d->dismissAll();
    // A dock may have been registered before it was announced.
    if (event.type() == QEvent::ChildRemoved) {
        const QObject* child = static_cast<const QChildEvent&>(event).child();
        if (const auto* entry = d->entryOf(child))
            d->unregisterDock(child, entry->dock.get());
    }
    d->children.handle(event);
}

void AutoHideSupport::dockWidgetEvent(QDockWidget& dock, const QEvent& event)
{
    const bool isOn = d->isOn(dock);
    switch (event.type()) {
    case QEvent::Enter:
        if (isOn)
            d->hideOther(deactivateAutoHideTimer(), dock);
        break;
    case QEvent::Leave:
        // Child widgets make the toolkit tell this while the mouse is still over the dock.
        if (isOn && !isUnderCursor(dock))
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
        if (isOn && dock.isVisible() &&
            static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape)
            d->dismissByKey(dock);
        break;
    case QEvent::WindowTitleChange:
    case QEvent::WindowIconChange:
    case QEvent::ModifiedChange:
    case QEvent::IconTextChange:
        d->followDock(dock);
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
    const auto* entry = d->entryOf(button.property(dockProperty).value<QObject*>());
    if (entry == nullptr || !entry->dock)
        return;
    QDockWidget& dock = *entry->dock;
    if (event.type() == QEvent::Enter)
        d->hideOther(deactivateAutoHideTimer(), dock);
    else
        activateAutoHideTimer(dock);
}

void AutoHideSupport::activateAutoHideTimer(QDockWidget& dock)
{
    const DockPointer guarded(&dock);
    const QPointer<AutoHideSupport> alive(this);
    if (QDockWidget* former = deactivateAutoHideTimer())
        d->hideDock(*former);
    if (!alive || !guarded)
        return;
    d->pending = guarded;
    d->hideTimer.start(d->delay, this);
}

QDockWidget* AutoHideSupport::deactivateAutoHideTimer()
{
    d->hideTimer.stop();
    d->waitsForOpenWindow = false;
    return std::exchange(d->pending, nullptr).get();
}

void AutoHideSupport::moveDockWidget(QDockWidget& dock, const QToolBar& toolBar)
{
    const Qt::ToolBarArea area = d->mainWindow.toolBarArea(const_cast<QToolBar*>(&toolBar));
    const QWidget* frame = toolBar.parentWidget();
    if (frame == nullptr)
        return;
    QRect bar = toolBar.geometry();
    bar.moveTopLeft(frame->mapToGlobal(bar.topLeft()));
    // A dock that was as wide as the window would reach beyond it now.
    QRect geometry = popupGeometry(
        bar, area, dock.size().boundedTo(frame->size() - QSize(bar.width(), bar.height())));
    if (!dock.isWindow() && dock.parentWidget() != nullptr)
        geometry.moveTopLeft(dock.parentWidget()->mapFromGlobal(geometry.topLeft()));
    dock.setGeometry(geometry);
    // The answer of the window manager to an earlier showing may still be on its way.
    if (dock.isFloating())
        FloatingDockKeeper::keep(dock);
}

void AutoHideSupport::createDockWidgetTabToolBars()
{
    const QList<Qt::ToolBarArea> areas = listToolBarAreas(d->areas);
    for (const Qt::ToolBarArea area : areas) {
        const QString name = QStringLiteral("ToolBar: %1").arg(int(area));
        auto* toolBar = new QToolBar(name, &d->mainWindow);
        toolBar->setObjectName(name);
        toolBar->setMovable(false);
        toolBar->toggleViewAction()->setVisible(false);
        toolBar->layout()->setSpacing(5);
        toolBar->layout()->setContentsMargins({}); // The buttons need all of the extent.
        const int icon = toolBar->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, toolBar);
        toolBar->setIconSize(QSize(icon, icon));
        toolBar->setToolButtonStyle(Qt::ToolButtonIconOnly); // also where others show texts
        toolBar->addAction(d->popupOnHover);
        QWidget* button = toolBar->widgetForAction(d->popupOnHover);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        button->setMaximumSize(popupButtonExtent, popupButtonExtent);
        d->mainWindow.addToolBar(area, toolBar);
        setToolBarVisible(*toolBar, false);
        if (isAtSide(area))
            toolBar->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        else
            toolBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        d->toolBars.insert(area, toolBar);
    }
}

QAction* AutoHideSupport::createToggleViewProxyAction(QDockWidget& dock, Qt::ToolBarArea area)
{
    auto* proxy = new ToggleViewProxyAction(area, this);
    proxy->setVisible(false);
    proxy->setProperty(dockProperty, QVariant::fromValue<QObject*>(&dock));
    connect(proxy, &QAction::hovered, &dock, [this, &dock] { popupDockWidgetOnHovered(dock); });
    connect(proxy, &QAction::triggered, &dock, &QWidget::show);
    return proxy;
}

QAction* AutoHideSupport::toolBarActionFor(const QToolBar& toolBar, const QDockWidget& dock) const
{
    const auto* entry = d->entryOf(&dock);
    for (auto bar = d->toolBars.cbegin(); entry != nullptr && bar != d->toolBars.cend(); ++bar)
        if (bar.value() == &toolBar)
            return entry->proxies.value(bar.key());
    return nullptr;
}

QToolBar* AutoHideSupport::toolBarResponsibleFor(const QDockWidget& dock) const
{
    for (QToolBar* toolBar : std::as_const(d->toolBars)) {
        const QAction* proxy = toolBar == nullptr ? nullptr : toolBarActionFor(*toolBar, dock);
        if (proxy != nullptr && proxy->isVisible())
            return toolBar;
    }
    return nullptr;
}

void AutoHideSupport::setDockWidgetActionVisibility(const QDockWidget& dock, Qt::ToolBarArea area)
{
    if (const auto* entry = d->entryOf(&dock))
        for (auto proxy = entry->proxies.cbegin(); proxy != entry->proxies.cend(); ++proxy)
            proxy.value()->setVisible(proxy.key() == area);
}

void AutoHideSupport::updateToolBarVisibility()
{
    for (auto bar = d->toolBars.cbegin(); bar != d->toolBars.cend(); ++bar) {
        const auto showsOn = [&bar](const auto& entry) {
            const QAction* proxy = entry.second.proxies.value(bar.key());
            return proxy != nullptr && proxy->isVisible();
        };
        if (bar.value())
            setToolBarVisible(*bar.value(),
                              std::any_of(d->entries.cbegin(), d->entries.cend(), showsOn));
    }
}

void AutoHideSupport::setToolBarVisible(QToolBar& toolBar, bool visible)
{
    // A collapsed tool bar keeps its place in the main window's layout, a hidden one would not.
    // Titles in a large font need more room than usual.
    const int wanted = std::max(expandedExtent, toolBar.fontMetrics().height() + titleMargins);
    const int extent = visible ? wanted : 0;
    if (toolBar.orientation() == Qt::Vertical)
        toolBar.setMaximumWidth(extent);
    else
        toolBar.setMaximumHeight(extent);
    if (QWidget* button = toolBar.widgetForAction(d->popupOnHover))
        button->setFocusPolicy(visible ? Qt::TabFocus : Qt::NoFocus);
    toolBar.show();
}

} // namespace QMainWindowHelpers
