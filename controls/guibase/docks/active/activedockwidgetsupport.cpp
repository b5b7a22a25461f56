// SPDX-License-Identifier: MIT
#include "activedockwidgetsupport.h"

#include "activedockkeeper.h"
#include "applicationdockevents_p.h"

#include <guibase/docks/attachedhelper.h>
#include <guibase/docks/dockarrangement.h>
#include <guibase/docks/dockchildren.h>
#include <guibase/docks/dockpointer.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/survivalcheck.h>

#include <jtbase/qtimerhelpers.h>

#include <QApplication>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

namespace QMainWindowHelpers {

namespace {

constexpr const char* propertyName = "QMainWindowHelpers_ActiveDockWidgetSupport_instance";
constexpr Qt::DockWidgetAreas allAreas = Qt::AllDockWidgetAreas;

} // namespace

struct ActiveDockWidgetSupportPrivate
{
    ActiveDockWidgetSupportPrivate(ActiveDockWidgetSupport& support, QMainWindow& mainWindow)
        : q(support)
        , attachment(mainWindow, propertyName, support)
        , children(
              mainWindow, [&support](QDockWidget& dock) { support.handleDockWidgetAdded(dock); },
              [this](const QObject* gone, QDockWidget* dock) { handleGone(gone, dock); }, nullptr)
    {}

    void store(QDockWidget* dock)
    {
        active = dock;
        identity = dock;
    }
    void handleGone(const QObject* gone, QDockWidget* dock);
    void handleRelease(QWidget& widget);
    void handleHidden(const DockPointer& dock) const;

    ActiveDockWidgetSupport& q;
    AttachedHelpers::Attachment attachment;
    DockChildren children;
    DockPointer active;
    /// The check that runs after the last dock was hidden.
    QPointer<QTimer> hiddenCheck;
    /// The active dock too, for comparing; the dock may be dead already.
    const QObject* identity = nullptr;
    bool mouseButtonPressed = false;
};

void ActiveDockWidgetSupportPrivate::handleGone(const QObject* gone, QDockWidget* dock)
{
    if (dock != nullptr)
        q.handleDockWidgetRemoved(*dock);
    else if (gone == identity)
        q.setActiveDockWidget(q.findNextActiveDockWidget());
}

void ActiveDockWidgetSupportPrivate::handleRelease(QWidget& widget)
{
    const QPointer<ActiveDockWidgetSupport> alive(&q);
    const QPointer<QDockWidget> dock = findParentDockWidget(widget, q.mainWindow());
    if (dock.isNull())
        return;
    Q_EMIT q.mouseButtonReleasedOverDockWidget(*dock);
    if (alive && dock && dock->parentWidget() == q.mainWindow())
        q.setActiveDockWidget(dock);
}

void ActiveDockWidgetSupportPrivate::handleHidden(const DockPointer& dock) const
{
    if (q.mainWindow() == nullptr || mouseButtonPressed || !dock || dock->isVisible())
        return;
    if (!active || !active->isVisible())
        q.setActiveDockWidget(q.findNextActiveDockWidget());
}

ActiveDockWidgetSupport* ActiveDockWidgetSupport::get(const QMainWindow& mainWindow)
{
    return AttachedHelpers::get<ActiveDockWidgetSupport>(mainWindow, propertyName);
}

ActiveDockWidgetSupport* ActiveDockWidgetSupport::install(QMainWindow& mainWindow)
{
    ActiveDockWidgetSupport* existing = get(mainWindow);
    return existing != nullptr ? existing : new ActiveDockWidgetSupport(mainWindow);
}

ActiveDockWidgetSupport::ActiveDockWidgetSupport(QMainWindow& mainWindow)
    : QObject(&mainWindow)
    , d(std::make_unique<ActiveDockWidgetSupportPrivate>(*this, mainWindow))
{
    connect(&mainWindow, &QObject::destroyed, this,
            &ActiveDockWidgetSupport::onMainWindowDestroyed);
    const QWidget* focus = QApplication::focusWidget();
    QDockWidget* dock = focus != nullptr ? findParentDockWidget(*focus, &mainWindow) : nullptr;
    setActiveDockWidget(dock != nullptr ? dock : findNextActiveDockWidget());
    ApplicationDockEvents::add(*this);
    connect(qApp, &QApplication::focusChanged, this, &ActiveDockWidgetSupport::onFocusChanged);
}

ActiveDockWidgetSupport::~ActiveDockWidgetSupport()
{
    ApplicationDockEvents::remove(*this);
}

QMainWindow* ActiveDockWidgetSupport::mainWindow() const
{
    return qobject_cast<QMainWindow*>(parent());
}

QDockWidget* ActiveDockWidgetSupport::activeDockWidget() const
{
    return d->active.get();
}

void ActiveDockWidgetSupport::bringToFront(QDockWidget& dock)
{
    // Each step may have receivers that delete the dock or the window.
    const QPointer<ActiveDockWidgetSupport> alive(this);
    const QPointer<QDockWidget> guarded(&dock);
    guarded->show();
    if (guarded)
        guarded->raise();
    if (guarded)
        guarded->setFocus();
    if (alive && guarded && guarded->parentWidget() == mainWindow())
        setActiveDockWidget(guarded);
}

bool ActiveDockWidgetSupport::eventFilter(QObject* watched, QEvent* event)
{
    const SurvivalCheck receiver(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        d->mouseButtonPressed = true;
        break;
    case QEvent::MouseButtonRelease:
        d->mouseButtonPressed = false;
        if (d->active && !d->active->isVisible()) // hidden while the button was down
            d->hiddenCheck =
                QTimerHelpers::singleShot(0, this, [this] { d->handleHidden(d->active); });
        if (auto* widget = qobject_cast<QWidget*>(watched))
            d->handleRelease(*widget);
        break;
    case QEvent::Hide:
        if (auto* dock = qobject_cast<QDockWidget*>(watched);
            dock != nullptr && dock->parentWidget() == mainWindow()) {
            // The toolkit hides docks for a moment while it docks or stacks them.
            d->hiddenCheck = QTimerHelpers::singleShot(
                0, this, [this, hidden = DockPointer(dock)] { d->handleHidden(hidden); });
        }
        break;
    case QEvent::ChildAdded:
    case QEvent::ChildPolished:
    case QEvent::ChildRemoved:
        if (watched == mainWindow())
            d->children.handle(*event);
        break;
    default:
        break;
    }
    return receiver.hasDied();
}

void ActiveDockWidgetSupport::setActiveDockWidget(QDockWidget* dock)
{
    const QPointer<ActiveDockWidgetSupport> alive(this);
    const QPointer<QDockWidget> guarded(dock);
    // One that leaves before it was announced would be held for ever.
    d->children.announce(dock);
    if (!alive || (dock != nullptr && (!guarded || guarded->parentWidget() != mainWindow())) ||
        dock == d->identity)
        return;
    d->store(dock);
    Q_EMIT activeDockWidgetChanged(dock);
}

QDockWidget* ActiveDockWidgetSupport::findNextActiveDockWidget() const
{
    const QMainWindow* window = mainWindow();
    if (window == nullptr)
        return nullptr;
    QList<QDockWidget*> docks = dockWidgets(*window, allAreas, true);
    DockArrangement::sortByTitle(docks);
    QDockWidget* active = activeDockWidget();
    const qsizetype start = docks.indexOf(active) + 1;
    for (qsizetype i = 0; i < docks.size(); ++i) {
        QDockWidget* dock = docks[(start + i) % docks.size()];
        if (dock != active && dock->isVisible())
            return dock;
    }
    return nullptr;
}

void ActiveDockWidgetSupport::handleDockWidgetAdded(QDockWidget& dock)
{
    const QPointer<ActiveDockWidgetSupport> alive(this);
    const QPointer<QDockWidget> guarded(&dock);
    Q_EMIT dockWidgetAdded(dock);
    if (alive && guarded && guarded->parentWidget() == mainWindow())
        setActiveDockWidget(guarded);
}

void ActiveDockWidgetSupport::handleDockWidgetRemoved(QDockWidget& dock)
{
    const QPointer<ActiveDockWidgetSupport> alive(this);
    const QObject* gone = &dock;
    Q_EMIT dockWidgetRemoved(dock);
    if (alive && gone == d->identity)
        setActiveDockWidget(findNextActiveDockWidget());
}

void ActiveDockWidgetSupport::onFocusChanged(QWidget*, QWidget* now)
{
    QMainWindow* window = mainWindow();
    if (window == nullptr || now == nullptr)
        return;
    // The focus leaves a dock that is hidden; who follows it, the check decides.
    if (d->hiddenCheck && d->active && !d->active->isVisible())
        return;
    QDockWidget* dock = findParentDockWidget(*now, window);
    if (dock != nullptr && window->dockWidgetArea(dock) != Qt::NoDockWidgetArea)
        setActiveDockWidget(dock);
}

void ActiveDockWidgetSupport::onMainWindowDestroyed()
{
    disconnect();
    ApplicationDockEvents::remove(*this);
}

ActiveDockKeeper::ActiveDockKeeper(const QMainWindow& mainWindow)
    : m_support(ActiveDockWidgetSupport::get(mainWindow))
{
    if (m_support.isNull())
        return;
    m_dock = m_support->activeDockWidget();
    m_hadDock = bool(m_dock);
    m_wasBlocked = m_support->blockSignals(true);
}

ActiveDockKeeper::~ActiveDockKeeper()
{
    if (m_support.isNull())
        return;
    const bool kept = m_dock && m_dock->parentWidget() == m_support->mainWindow();
    if (kept)
        m_support->d->store(
            m_dock.get()); // for the receivers of signals it has always been this one
    m_support->blockSignals(m_wasBlocked);
    if (kept && m_bringToFront)
        m_support->bringToFront(*m_dock);
    else if (!kept && (m_hadDock || m_support->activeDockWidget() != nullptr))
        Q_EMIT m_support->activeDockWidgetChanged(m_support->activeDockWidget());
}

} // namespace QMainWindowHelpers
