// SPDX-License-Identifier: MIT
#pragma once

#include "support/menuvisitor.h"

#include <QContextMenuEvent>

/// Asks for a context menu as the mouse, or the Menu key, does; the texts of the menu that opens.
inline QStringList menuTexts(QWidget& widget, const QPoint& position, bool byKeyboard = false)
{
    QStringList texts;
    MenuVisitor visitor([&](QMenu& menu) {
        for (const QAction* action : menu.actions())
            texts << action->text();
    });
    QContextMenuEvent event(byKeyboard ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse,
                            position, widget.mapToGlobal(position));
    QCoreApplication::sendEvent(&widget, &event);
    [&] { QTRY_VERIFY(visitor.hasSeenMenu()); }();
    return texts;
}
