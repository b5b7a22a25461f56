// SPDX-License-Identifier: MIT
#include "dockfocus.h"

#include <QDockWidget>

namespace DockFocus {

QWidget* target(QDockWidget& dock)
{
    if (dock.widget() == nullptr)
        return &dock;
    // A floating dock that becomes the active window gives the focus to its title bar first.
    if (QWidget* last = dock.focusWidget(); isInside(last, *dock.widget()))
        return last;
    QWidget* candidate = dock.widget();
    do {
        if (candidate->isEnabled() && candidate->isVisibleTo(&dock) &&
            (candidate->focusPolicy() & Qt::TabFocus) && isInside(candidate, *dock.widget()))
            return candidate;
        candidate = candidate->nextInFocusChain();
    } while (candidate != dock.widget());
    return &dock;
}

bool isInside(const QWidget* widget, const QWidget& ancestor)
{
    while (widget != nullptr && widget != &ancestor)
        widget = widget->parentWidget();
    return widget != nullptr;
}

bool isCovered(const QDockWidget& dock)
{
    return dock.isVisible() && !dock.isWindow() &&
           (dock.geometry().right() < 0 || dock.geometry().bottom() < 0);
}

} // namespace DockFocus
