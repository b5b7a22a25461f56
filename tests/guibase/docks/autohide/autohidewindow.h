// SPDX-License-Identifier: MIT
#pragma once

#include "support/dockwindow.h"

#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/dockwidgetconfigurator.h>

#include <jtbase/windowsystem.h>

#include <QAction>
#include <QCursor>
#include <QEnterEvent>
#include <QToolBar>
#include <QToolButton>

#include <memory>

using QMainWindowHelpers::AutoHideSupport;

inline const QFlags<Qt::ToolBarArea> bothSides = Qt::LeftToolBarArea | Qt::RightToolBarArea;
/// Outside all windows, and not in the corner where a window manager lets new ones appear.
inline constexpr QPoint outside(5, 790);

/// A shown main window with support, and two docks: "left" and "right".
struct AutoHideWindow
{
    AutoHideWindow()
    {
        window->resize(800, 500);
        window->move(300, 100);
        left = addDock(u"left"_s, Qt::LeftDockWidgetArea);
        right = addDock(u"right"_s, Qt::RightDockWidgetArea);
        support = AutoHideSupport::install(*window, bothSides);
        support->setAutoHideDelay(20);
        window->show();
        if (WindowSystem::placesWindows())
            QCursor::setPos(outside);
        QCoreApplication::processEvents();
    }

    QDockWidget* addDock(const QString& name, Qt::DockWidgetArea area)
    {
        QDockWidget* dock = window->addDock(name, area);
        dock->setObjectName(name);
        QDockWidgetHelpers::DockWidgetConfigurator().withAutoHideSupport(true).configure(*dock);
        return dock;
    }
    QToolBar* bar(Qt::ToolBarArea area) const
    {
        return window->findChild<QToolBar*>(u"ToolBar: %1"_s.arg(int(area)));
    }
    /// The buttons that stand for the dock and can be seen.
    QList<QToolButton*> buttons(const QObject* dock) const
    {
        QList<QToolButton*> found;
        for (const QToolBar* toolBar : {bar(Qt::LeftToolBarArea), bar(Qt::RightToolBarArea)}) {
            for (QAction* action : toolBar->actions()) {
                const QVariant stands =
                    action->property("QMainWindowHelpers_AutoHideSupport_dockWidget");
                if (action->isVisible() && stands.value<QObject*>() == dock)
                    found << qobject_cast<QToolButton*>(toolBar->widgetForAction(action));
            }
        }
        return found;
    }
    bool isOn(QDockWidget* dock) const
    {
        return AutoHideSupport::autoHideAction(*dock)->isChecked();
    }

    std::unique_ptr<DockWindow> window = std::make_unique<DockWindow>();
    QDockWidget* left = nullptr;
    QDockWidget* right = nullptr;
    AutoHideSupport* support = nullptr;
};

inline void enter(QWidget* widget)
{
    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), widget->mapToGlobal(QPointF(1, 1)));
    QCoreApplication::sendEvent(widget, &event);
}
inline void leave(QWidget* widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &event);
}
