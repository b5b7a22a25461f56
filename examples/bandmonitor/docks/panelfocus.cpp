// SPDX-License-Identifier: MIT
#include "docks/panelfocus.h"

#include "docks/paneldocks.h"

#include <guibase/docks/active/activedockwidgetsupport.h>
#include <guibase/docks/mainwindowhelpers.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>

#include <algorithm>

namespace bandmonitor::PanelFocus {

QWidget* target(QWidget& panel)
{
    if (QWidget* last = panel.focusWidget())
        return last;
    QWidget* candidate = &panel;
    do {
        if (candidate->isEnabled() && candidate->isVisibleTo(&panel) &&
            (candidate->focusPolicy() & Qt::TabFocus) &&
            (candidate == &panel || panel.isAncestorOf(candidate)))
            return candidate;
        candidate = candidate->nextInFocusChain();
    } while (candidate != &panel);
    return nullptr;
}

void enter(const PanelDocks& panels, QDockWidget& dock, Qt::FocusReason reason)
{
    QMainWindowHelpers::ActiveDockWidgetSupport::get(panels.window())->bringToFront(dock);
    if (dock.isFloating())
        dock.activateWindow();
    if (QWidget* widget = target(*dock.widget()))
        widget->setFocus(reason);
}

void cycle(const PanelDocks& panels, QWidget& centre, bool forward)
{
    QMainWindow& window = panels.window();
    QList<QDockWidget*> stops{nullptr}; // null for the centre
    for (QDockWidget* dock : panels.docks()) {
        if (!dock->isHidden())
            stops << dock;
    }
    const QWidget* focus = QApplication::focusWidget();
    QDockWidget* present =
        focus != nullptr ? QMainWindowHelpers::findParentDockWidget(*focus, &window) : nullptr;
    const auto at = std::max(stops.indexOf(present), qsizetype(0));
    QDockWidget* next = stops[(at + (forward ? 1 : stops.size() - 1)) % stops.size()];
    if (next == nullptr) {
        window.activateWindow(); // the focus may be in a floating dock
        centre.setFocus(Qt::TabFocusReason);
        return;
    }
    enter(panels, *next, forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

} // namespace bandmonitor::PanelFocus
