// SPDX-License-Identifier: MIT
#include "areaaction.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QVariant>

namespace AreaAction {

namespace {

constexpr const char* propertyName = "GuiBase_dockWidgetArea";

} // namespace

void setArea(QAction& action, Qt::DockWidgetArea area)
{
    action.setProperty(propertyName, int(area));
}

Qt::DockWidgetArea areaOf(const QAction& action)
{
    return Qt::DockWidgetArea(action.property(propertyName).toInt());
}

Qt::DockWidgetArea areaOf(const QDockWidget& dock)
{
    const auto* window = qobject_cast<const QMainWindow*>(dock.parentWidget());
    // The toolkit takes the dock as mutable but only looks it up.
    return window == nullptr || dock.isFloating()
               ? Qt::NoDockWidgetArea
               : window->dockWidgetArea(const_cast<QDockWidget*>(&dock));
}

} // namespace AreaAction
