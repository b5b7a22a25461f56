// SPDX-License-Identifier: MIT
#include "contextmenuhandler.h"

#include "contextmenuplace_p.h"

#include <guibase/services/guibase.h>

#include <QAction>
#include <QApplication>
#include <QChildEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QPointer>

namespace {

bool isMenuKey(const QObject* watched, const QEvent* event)
{
    if (event->type() != QEvent::KeyPress || watched != QApplication::focusWidget())
        return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    return key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier;
}

/// Moves the entries into the menu, which deletes them with itself.
void append(QMenu& menu, std::unique_ptr<QMenu> own)
{
    if (own == nullptr)
        return;
    if (!menu.isEmpty())
        menu.addSeparator();
    menu.addActions(own->actions());
    own.release()->setParent(&menu, Qt::Popup); // The entries belong to it.
}

} // namespace

ContextMenuHandler::ContextMenuHandler(QWidget* served, Fill fill)
    : QObject(served)
    , m_served(*served)
    , m_fill(std::move(fill))
{
    watch(*served);
}

ContextMenuHandler::~ContextMenuHandler() = default;

void ContextMenuHandler::watch(QWidget& widget)
{
    widget.removeEventFilter(this); // A child can come twice, and must not be asked twice.
    widget.installEventFilter(this);
    const QList<QWidget*> children = widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        if (!child->isWindow())
            watch(*child);
    }
}

bool ContextMenuHandler::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = static_cast<QWidget*>(watched);
    if (event->type() == QEvent::ChildPolished || event->type() == QEvent::ChildAdded) {
        QObject* child = static_cast<QChildEvent*>(event)->child();
        if (child->isWidgetType() && !static_cast<QWidget*>(child)->isWindow())
            watch(static_cast<QWidget&>(*child));
        return false;
    }
    const bool isKey = isMenuKey(watched, event);
    if ((!isKey && event->type() != QEvent::ContextMenu) || !isResponsible(*widget))
        return false;
    const bool isByKeyboard = isKey || static_cast<const QContextMenuEvent*>(event)->reason() ==
                                           QContextMenuEvent::Keyboard;
    const bool isOpen = open(
        isByKeyboard
            ? ContextMenuPlace::byKeyboard(*widget)
            : ContextMenuPlace::at(*widget, static_cast<const QContextMenuEvent*>(event)->pos()));
    if (isOpen)
        event->accept();
    return isOpen;
}

bool ContextMenuHandler::isResponsible(const QWidget& widget) const
{
    const Qt::ContextMenuPolicy policy = widget.contextMenuPolicy();
    const bool hasOwnMenu = policy == Qt::CustomContextMenu || policy == Qt::ActionsContextMenu ||
                            policy == Qt::PreventContextMenu;
    if (&widget != &m_served && hasOwnMenu)
        return false;
    for (const QWidget* each = &widget; each != &m_served; each = each->parentWidget()) {
        // One that has left the served widget, or that a handler of its own serves.
        if (each == nullptr || each->isWindow() ||
            each->findChild<ContextMenuHandler*>({}, Qt::FindDirectChildrenOnly) != nullptr)
            return false;
    }
    return true;
}

bool ContextMenuHandler::open(const ContextMenuRequest& request)
{
    const QPointer<QWidget> widget(request.widget);
    const QPoint place = ContextMenuPlace::surface(*widget).mapToGlobal(request.position);
    auto menu = std::make_unique<QMenu>(&m_served);
    const QPointer<QMenu> guard(menu.get()); // Filling it may take the served widget away.
    const Fill fill = m_fill;
    fill(*menu, request);
    if (guard == nullptr || widget == nullptr) {
        if (guard == nullptr)
            static_cast<void>(menu.release()); // its owner has deleted it
        return true;
    }
    if (menu->isEmpty())
        return false;
    const QList<QAction*> entries = menu->actions();
    for (QAction* entry : entries)
        entry->setShortcutVisibleInContextMenu(true);
    append(*menu, ContextMenuPlace::ownMenu(*widget));
    if (request.isByKeyboard)
        menu->setActiveAction(entries.first());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu.release()->popup(place);
    return true;
}

QAction* ContextMenuHandler::addHotKey(QMenu& menu, int id, const QString& text)
{
    GuiBase& services = GuiBase::Instance();
    QString comment = services.GetHotKeyComment(id);
    if (comment.isEmpty())
        return nullptr;
    QString name = text.isEmpty() ? comment.replace(QLatin1Char('&'), QLatin1String("&&")) : text;
    const QKeyCombination key = services.GetHotKey(id);
    // As text, so that the key does not become a second shortcut beside the hot key.
    if (key.key() != Qt::Key(0) && key.key() != Qt::Key_unknown)
        name += QLatin1Char('\t') + QKeySequence(key).toString(QKeySequence::NativeText);
    return menu.addAction(name, &services, [id] { Q_EMIT GuiBase::Instance().signalHotKey(id); });
}
