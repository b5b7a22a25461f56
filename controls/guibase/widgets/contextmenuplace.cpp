// SPDX-License-Identifier: MIT
#include "contextmenuplace_p.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextEdit>

namespace {

/// The widget, or the scroll area whose viewport it is.
QWidget& askedWidget(QWidget& widget)
{
    auto* area = qobject_cast<QAbstractScrollArea*>(widget.parentWidget());
    return area != nullptr && area->viewport() == &widget ? *area : widget;
}

QRect currentItem(QAbstractItemView& view)
{
    view.scrollTo(view.currentIndex());
    return view.visualRect(view.currentIndex()).intersected(view.viewport()->rect());
}

/// What the keyboard is at, in coordinates of the surface; null without such a place.
QRect currentPlace(QWidget& widget)
{
    if (auto* view = qobject_cast<QAbstractItemView*>(&widget))
        return currentItem(*view);
    if (const auto* bar = qobject_cast<QTabBar*>(&widget))
        return bar->tabRect(bar->currentIndex());
    if (const auto* edit = qobject_cast<QTextEdit*>(&widget))
        return edit->cursorRect();
    if (const auto* edit = qobject_cast<QPlainTextEdit*>(&widget))
        return edit->cursorRect();
    if (const auto* edit = qobject_cast<QLineEdit*>(&widget))
        return edit->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    return {};
}

QLineEdit* lineEditOf(QWidget& widget)
{
    if (auto* box = qobject_cast<QAbstractSpinBox*>(&widget))
        return box->findChild<QLineEdit*>({}, Qt::FindDirectChildrenOnly);
    return qobject_cast<QLineEdit*>(&widget);
}

} // namespace

QWidget& ContextMenuPlace::surface(QWidget& widget)
{
    auto* area = qobject_cast<QAbstractScrollArea*>(&widget);
    return area != nullptr ? *area->viewport() : widget;
}

ContextMenuRequest ContextMenuPlace::at(QWidget& widget, const QPoint& position)
{
    QWidget& asked = askedWidget(widget);
    ContextMenuRequest request{&asked, surface(asked).mapFrom(&widget, position), {}, false};
    if (const auto* view = qobject_cast<QAbstractItemView*>(&asked))
        request.index = view->indexAt(request.position);
    return request;
}

ContextMenuRequest ContextMenuPlace::byKeyboard(QWidget& widget)
{
    QWidget& asked = askedWidget(widget);
    ContextMenuRequest request{&asked, {}, {}, true};
    const QRect place = currentPlace(asked);
    request.position = place.isNull() ? surface(asked).rect().center() : place.center();
    if (const auto* view = qobject_cast<QAbstractItemView*>(&asked))
        request.index = view->currentIndex();
    return request;
}

std::unique_ptr<QMenu> ContextMenuPlace::ownMenu(QWidget& widget)
{
    QMenu* menu = nullptr;
    if (auto* edit = qobject_cast<QTextEdit*>(&widget))
        menu = edit->createStandardContextMenu();
    else if (auto* plain = qobject_cast<QPlainTextEdit*>(&widget))
        menu = plain->createStandardContextMenu();
    else if (QLineEdit* line = lineEditOf(widget))
        menu = line->createStandardContextMenu();
    return std::unique_ptr<QMenu>(menu);
}
