// SPDX-License-Identifier: MIT
#include "dockwidgethelpers.h"

#include "dockwidgetconfigurator.h"
#include "enhanceddockwidgettitlebar.h"
#include "updatesblocker.h"

#include <QAction>
#include <QDockWidget>

namespace QDockWidgetHelpers {

QDockWidget* makeDockWidgetFrom(QWidget& widget)
{
    if (auto* dock = qobject_cast<QDockWidget*>(&widget))
        return dock;
    const QString objectName = widget.objectName().isNull()
                                   ? QString()
                                   : widget.objectName() + QStringLiteral("_outerDockWidget");
    const Qt::WindowFlags windowFlags = widget.windowFlags();
    // That of its parents it would give as well, and so does the dock.
    const bool hasIcon = widget.testAttribute(Qt::WA_SetWindowIcon);
    const UpdatesBlocker blocker(widget);
    auto* dock = new QDockWidget(widget.parentWidget());
    widget.setParent(dock);
    dock->setWidget(&widget);
    QList<QAction*> noActions;
    DockWidgetConfigurator()
        .withFocusPolicy(widget.focusPolicy())
        .withWindowFlags(windowFlags)
        .withStyleSheet(widget.styleSheet())
        .configure(*dock, noActions, objectName, widget.windowTitle(),
                   hasIcon ? widget.windowIcon() : QIcon(), widget.windowIconText());
    return dock;
}

void addActionToTitleBar(QDockWidget& dockWidget, QAction& action, int index)
{
    auto* titleBar = qobject_cast<EnhancedDockWidgetTitleBar*>(dockWidget.titleBarWidget());
    if (titleBar == nullptr) {
        QWidget* former = dockWidget.titleBarWidget();
        // One that was put aside is used again: two would both answer for the dock.
        titleBar = dockWidget.findChild<EnhancedDockWidgetTitleBar*>(QString(),
                                                                     Qt::FindDirectChildrenOnly);
        if (titleBar == nullptr)
            titleBar = new EnhancedDockWidgetTitleBar(dockWidget);
        dockWidget.setTitleBarWidget(titleBar);
        if (former != nullptr)
            former->hide();
    }
    titleBar->addTitleBarAction(action, index);
}

} // namespace QDockWidgetHelpers
