// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/docks/active/activedockkeeper.h>
#include <guibase/docks/attachedhelper.h>
#include <guibase/docks/dockarrangement.h>
#include <guibase/docks/dockchildren.h>
#include <guibase/docks/dockicons.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/survivalcheck.h>

#include <jtbase/qtimerhelpers.h>

#include <QAction>
#include <QChildEvent>
#include <QDockWidget>
#include <QMainWindow>
#include <QMap>
#include <QPointer>
#include <QTimer>

#include <array>
#include <utility>

namespace QMainWindowHelpers {

/// What distinguishes one support that rearranges the docks of an area from another.
template <class Support>
struct DockAreaOperation
{
    struct Area
    {
        Qt::DockWidgetArea area;
        DockIcon icon;
        const char* actionText;
        bool (Support::*perform)();
        void (Support::*possibleChanged)(bool);
    };

    const char* property;
    const char* actionName;
    /// Takes the candidates of the area.
    bool (*isPossible)(const QMainWindow&, Qt::DockWidgetArea, const QList<QDockWidget*>&);
    bool (*perform)(QMainWindow&, Qt::DockWidgetArea);
    void (Support::*possibleChanged)(Qt::DockWidgetArea, bool);
    void (Support::*performedInArea)(Qt::DockWidgetArea);
    void (Support::*performed)();
    /// In the order left, right, top, bottom.
    std::array<Area, 4> areas;
};

/// The body of the supports that rearrange the docks of an area.
template <class Support>
class DockAreaSupportPrivate
{
public:
    using Operation = DockAreaOperation<Support>;

    static Support* install(QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas,
                            const char* property)
    {
        if (Support* existing = AttachedHelpers::get<Support>(mainWindow, property))
            return existing;
        return new Support(mainWindow, areas);
    }

    DockAreaSupportPrivate(Support& support, QMainWindow& mainWindow,
                           QFlags<Qt::DockWidgetArea> areas, const Operation& operation)
        : q(support)
        , m_operation(operation)
        , m_areas(areas)
        , m_attachment(mainWindow, operation.property, support)
        , m_children(
              mainWindow, [this](QDockWidget& dock) { watch(dock); },
              [this](const QObject*, QDockWidget* dock) { unwatch(dock); }, nullptr)
    {}

    /// The second half of the construction, when the support is complete.
    void start(QMainWindow& mainWindow, const QMap<Qt::DockWidgetArea, QAction*>& actions)
    {
        m_actions = actions;
        QObject::connect(&mainWindow, &QObject::destroyed, &q, &Support::onMainWindowDestroyed);
        mainWindow.installEventFilter(&q);
        const auto any = [](const QDockWidget&) { return true; };
        const QList<QDockWidget*> docks = dockWidgets(mainWindow, any, -1);
        for (QDockWidget* dock : docks)
            dock->installEventFilter(&q);
        announce(m_areas);
    }

    QFlags<Qt::DockWidgetArea> areas() const { return m_areas; }

    QMap<Qt::DockWidgetArea, QAction*> createActions(QFlags<Qt::DockWidgetArea> areas,
                                                     QObject* parent)
    {
        QMap<Qt::DockWidgetArea, QAction*> actions;
        for (const auto& row : m_operation.areas) {
            if (!areas.testFlag(row.area))
                continue;
            auto* action = new QAction(makeDockIcon(row.icon), Support::tr(row.actionText), parent);
            action->setObjectName(QString::fromLatin1(m_operation.actionName).arg(int(row.area)));
            QObject::connect(action, &QAction::triggered, &q, row.perform);
            QObject::connect(&q, row.possibleChanged, action, &QAction::setVisible);
            actions.insert(row.area, action);
        }
        return actions;
    }

    QAction& action(Qt::DockWidgetArea area)
    {
        if (QAction* action = m_actions.value(area))
            return *action;
        if (m_noAction == nullptr) {
            m_noAction = new QAction(&q);
            m_noAction->setVisible(false);
        }
        return *m_noAction;
    }

    bool perform(Qt::DockWidgetArea area)
    {
        QMainWindow* mainWindow = q.mainWindow();
        if (mainWindow == nullptr || !m_areas.testFlag(area))
            return false;
        const QPointer<Support> alive(&q);
        {
            ActiveDockKeeper keeper(*mainWindow);
            if (!m_operation.perform(*mainWindow, area))
                return false;
            keeper.bringToFront();
        }
        if (alive)
            Q_EMIT(q.*m_operation.performedInArea)(area);
        if (alive)
            Q_EMIT(q.*m_operation.performed)();
        return true;
    }

    void announce(QFlags<Qt::DockWidgetArea> areas)
    {
        const QPointer<Support> alive(&q);
        auto possible = possibleAreas(areas);
        int announcement = ++m_announcements;
        // A receiver may have changed the layout, which has been announced already.
        const auto refresh = [&] {
            if (std::exchange(announcement, m_announcements) != m_announcements)
                possible = possibleAreas(areas);
        };
        for (const auto& row : m_operation.areas) {
            if (!areas.testFlag(row.area) || q.mainWindow() == nullptr)
                continue;
            refresh();
            Q_EMIT(q.*m_operation.possibleChanged)(row.area, possible.testFlag(row.area));
            if (!alive || q.mainWindow() == nullptr)
                return;
            refresh();
            Q_EMIT(q.*row.possibleChanged)(possible.testFlag(row.area));
            if (!alive)
                return;
        }
    }

    bool eventFilter(QObject* watched, QEvent* event)
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

private:
    /// Those of the areas where the operation is possible.
    QFlags<Qt::DockWidgetArea> possibleAreas(QFlags<Qt::DockWidgetArea> areas) const
    {
        QFlags<Qt::DockWidgetArea> possible;
        const QMainWindow* mainWindow = q.mainWindow();
        if (mainWindow == nullptr)
            return possible;
        const auto candidates = DockArrangement::candidatesByArea(*mainWindow, areas);
        for (auto docks = candidates.cbegin(); docks != candidates.cend(); ++docks)
            possible.setFlag(docks.key(),
                             m_operation.isPossible(*mainWindow, docks.key(), docks.value()));
        return possible;
    }

    void handle(QObject* watched, const QEvent& event)
    {
        const QPointer<Support> alive(&q);
        if (watched == q.parent())
            m_children.handle(event);
        if (!alive || event.type() == QEvent::ChildPolished || isAboutNoWidget(event))
            return;
        // A new layout resizes all docks; tabs that come to the front only move, and minimum sizes
        // change only with the layout.
        const bool isAboutLayout = event.type() == QEvent::Move ||
                                   event.type() == QEvent::LayoutRequest ||
                                   (event.type() == QEvent::Resize && watched != q.parent());
        if (event.type() == QEvent::Hide || isAboutLayout)
            announceLater();
        else
            announceNow();
    }

    /// Animations, actions and the like come and go in the middle of the toolkit's layouting.
    static bool isAboutNoWidget(const QEvent& event)
    {
        const bool isChildEvent =
            event.type() == QEvent::ChildAdded || event.type() == QEvent::ChildRemoved;
        return isChildEvent && !static_cast<const QChildEvent&>(event).child()->isWidgetType();
    }

    void watch(QDockWidget& dock)
    {
        dock.installEventFilter(&q);
        announceNow();
    }

    void unwatch(QDockWidget* dock)
    {
        if (dock != nullptr)
            dock->removeEventFilter(&q);
        else
            announceNow(); // what is left of a dead dock does not pass for a widget
    }

    void announceNow()
    {
        const QMainWindow* mainWindow = q.mainWindow();
        if (mainWindow != nullptr && DockArrangement::Rearrangement::isUnderWay(*mainWindow))
            announceLater();
        else
            announce(m_areas);
    }

    void announceLater()
    {
        if (!m_announcement)
            m_announcement = QTimerHelpers::singleShot(0, &q, [this] {
                m_announcement = nullptr;
                announceNow();
            });
    }

    Support& q;
    const Operation& m_operation;
    QFlags<Qt::DockWidgetArea> m_areas;
    AttachedHelpers::Attachment m_attachment;
    DockChildren m_children;
    QMap<Qt::DockWidgetArea, QAction*> m_actions;
    QAction* m_noAction = nullptr;
    QPointer<QTimer> m_announcement;
    int m_announcements = 0;
};

} // namespace QMainWindowHelpers
