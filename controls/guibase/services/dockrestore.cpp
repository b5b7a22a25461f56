// SPDX-License-Identifier: MIT
#include "dockrestore_p.h"

#include "dockstatecheck_p.h"
#include "floatingdockkeeper_p.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>

#include <utility>
#include <vector>

QByteArray DockRestore::save(const QMainWindow& window)
{
    return window.saveState(stateVersion);
}

void DockRestore::restore(QMainWindow& window, const QByteArray& state)
{
    if (!DockStateCheck::isValid(state, stateVersion))
        return;
    std::vector<std::pair<QPointer<QDockWidget>, Qt::DockWidgetArea>> former;
    const auto docks = window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QDockWidget* dock : docks)
        former.emplace_back(dock, window.dockWidgetArea(dock));

    const QPointer<QMainWindow> guard(&window);
    window.restoreState(state, stateVersion);
    // The toolkit loses unknown docks whose place among the others is no more.
    for (const auto& [dock, area] : former) {
        if (guard && dock && dock->parentWidget() == guard && area != Qt::NoDockWidgetArea &&
            window.dockWidgetArea(dock) == Qt::NoDockWidgetArea) {
            const bool wasHidden = dock->isHidden();
            window.addDockWidget(area, dock);
            dock->setHidden(wasHidden);
        }
        if (dock && dock->isFloating() && dock->isVisible())
            FloatingDockKeeper::keep(*dock);
    }
}
