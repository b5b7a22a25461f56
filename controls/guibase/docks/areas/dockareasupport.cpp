// SPDX-License-Identifier: MIT
#include "dockareasupport_p.h"

#include <guibase/docks/active/activedockkeeper.h>
#include <guibase/docks/areaaction.h>
#include <guibase/docks/dockarrangement.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/survivalcheck.h>

#include <jtbase/qtimerhelpers.h>

#include <QAction>
#include <QChildEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QTimer>

#include <utility>

namespace QMainWindowHelpers {

namespace {

/// Animations, actions and the like come and go in the middle of the toolkit's layouting.
bool isAboutNoWidget(const QEvent& event)
{
    const bool isChildEvent =
        event.type() == QEvent::ChildAdded || event.type() == QEvent::ChildRemoved;
    return isChildEvent && !static_cast<const QChildEvent&>(event).child()->isWidgetType();
}

} // namespace

DockAreaSupport::DockAreaSupport(QObject& support, QMainWindow& mainWindow,
                                 QFlags<Qt::DockWidgetArea> areas,
                                 const DockAreaOperation& operation, DockAreaSignals announcements)
    : m_support(support)
    , m_operation(operation)
    , m_signals(std::move(announcements))
    , m_areas(areas)
    , m_attachment(mainWindow, operation.property, support)
    , m_children(
          mainWindow, [this](QDockWidget& dock) { watch(dock); },
          [this](const QObject*, QDockWidget* dock) { unwatch(dock); }, nullptr)
{}

DockAreaSupport::~DockAreaSupport() = default;

void DockAreaSupport::start(const QMap<Qt::DockWidgetArea, QAction*>& actions)
{
    m_actions = actions;
    mainWindow()->installEventFilter(&m_support);
    const QList<QDockWidget*> docks = dockWidgets(*mainWindow());
    for (QDockWidget* dock : docks)
        dock->installEventFilter(&m_support);
    announce(m_areas);
}

QMainWindow* DockAreaSupport::mainWindow() const
{
    return qobject_cast<QMainWindow*>(m_support.parent());
}

QMap<Qt::DockWidgetArea, QAction*> DockAreaSupport::createActions(QFlags<Qt::DockWidgetArea> areas,
                                                                  QObject* parent)
{
    QMap<Qt::DockWidgetArea, QAction*> actions;
    for (const auto& row : m_operation.areas) {
        if (!areas.testFlag(row.area))
            continue;
        auto* action = new QAction(
            makeDockIcon(row.icon),
            QCoreApplication::translate(m_support.metaObject()->className(), row.actionText),
            parent);
        action->setObjectName(QString::fromLatin1(m_operation.actionName).arg(int(row.area)));
        AreaAction::setArea(*action, row.area);
        QObject::connect(action, &QAction::triggered, &m_support,
                         [this, area = row.area] { perform(area); });
        actions.insert(row.area, action);
    }
    return actions;
}

QAction& DockAreaSupport::action(Qt::DockWidgetArea area)
{
    if (QAction* action = m_actions.value(area))
        return *action;
    if (m_noAction == nullptr) {
        m_noAction = new QAction(&m_support);
        m_noAction->setVisible(false);
    }
    return *m_noAction;
}

bool DockAreaSupport::isPossible(Qt::DockWidgetArea area) const
{
    const QMainWindow* window = mainWindow();
    return window != nullptr &&
           m_operation.isPossible(*window, area, DockArrangement::candidates(*window, area));
}

bool DockAreaSupport::perform(Qt::DockWidgetArea area)
{
    QMainWindow* window = mainWindow();
    if (window == nullptr || !m_areas.testFlag(area))
        return false;
    const QPointer<QObject> alive(&m_support);
    {
        ActiveDockKeeper keeper(*window);
        if (!m_operation.perform(*window, area))
            return false;
        keeper.bringToFront();
    }
    if (alive)
        m_signals.performedInArea(area);
    if (alive)
        m_signals.performed();
    return true;
}

void DockAreaSupport::announce(QFlags<Qt::DockWidgetArea> areas)
{
    const QPointer<QObject> alive(&m_support);
    auto possible = possibleAreas(areas);
    int announcement = ++m_announcements;
    // A receiver may have changed the layout, which has been announced already.
    const auto refresh = [&] {
        if (std::exchange(announcement, m_announcements) != m_announcements)
            possible = possibleAreas(areas);
    };
    for (std::size_t i = 0; i < m_operation.areas.size(); ++i) {
        const Qt::DockWidgetArea area = m_operation.areas[i].area;
        if (!areas.testFlag(area) || mainWindow() == nullptr)
            continue;
        refresh();
        m_signals.possibleChanged(area, possible.testFlag(area));
        if (!alive || mainWindow() == nullptr)
            return;
        refresh();
        if (QAction* action = m_actions.value(area))
            action->setVisible(possible.testFlag(area));
        if (alive)
            m_signals.possibleInAreaChanged(i, possible.testFlag(area));
        if (!alive)
            return;
    }
}

bool DockAreaSupport::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::LayoutRequest:
    case QEvent::ChildAdded:
    case QEvent::ChildPolished:
    case QEvent::ChildRemoved:
        break;
    default:
        return false;
    }
    const SurvivalCheck receiver(watched);
    handle(watched, *event);
    return receiver.hasDied();
}

QFlags<Qt::DockWidgetArea> DockAreaSupport::possibleAreas(QFlags<Qt::DockWidgetArea> areas) const
{
    QFlags<Qt::DockWidgetArea> possible;
    const QMainWindow* window = mainWindow();
    if (window == nullptr)
        return possible;
    const auto candidates = DockArrangement::candidatesByArea(*window, areas);
    for (auto docks = candidates.cbegin(); docks != candidates.cend(); ++docks)
        possible.setFlag(docks.key(), m_operation.isPossible(*window, docks.key(), docks.value()));
    return possible;
}

void DockAreaSupport::handle(QObject* watched, const QEvent& event)
{
    const QPointer<QObject> alive(&m_support);
    if (watched == m_support.parent())
        m_children.handle(event);
    if (!alive || event.type() == QEvent::ChildPolished || isAboutNoWidget(event))
        return;
    // A new layout resizes all docks; tabs that come to the front only move, and minimum sizes
    // change only with the layout.
    const bool isAboutLayout = event.type() == QEvent::Move ||
                               event.type() == QEvent::LayoutRequest ||
                               (event.type() == QEvent::Resize && watched != m_support.parent());
    if (event.type() == QEvent::Hide || isAboutLayout)
        announceLater();
    else
        announceNow();
}

void DockAreaSupport::watch(QDockWidget& dock)
{
    dock.installEventFilter(&m_support);
    announceNow();
}

void DockAreaSupport::unwatch(QDockWidget* dock)
{
    if (dock != nullptr)
        dock->removeEventFilter(&m_support);
    else
        announceNow(); // what is left of a dead dock does not pass for a widget
}

void DockAreaSupport::announceNow()
{
    const QMainWindow* window = mainWindow();
    if (window != nullptr && DockArrangement::Rearrangement::isUnderWay(*window))
        announceLater();
    else
        announce(m_areas);
}

void DockAreaSupport::announceLater()
{
    if (!m_announcement)
        m_announcement = QTimerHelpers::singleShot(0, &m_support, [this] {
            m_announcement = nullptr;
            announceNow();
        });
}

} // namespace QMainWindowHelpers
