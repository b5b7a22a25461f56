// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QModelIndex>
#include <QObject>
#include <QPoint>
#include <QString>

#include <functional>
#include <memory>

class QAction;
class QMenu;
class QWidget;

/// What a context menu is wanted for.
struct ContextMenuRequest
{
    /// The served widget, or the one in it that was clicked or has the focus.
    QWidget* widget = nullptr;
    /// Where the menu appears, in coordinates of the widget, or of its viewport when it scrolls.
    QPoint position;
    /// Of a view: the item that was clicked, or the current one by keyboard; else invalid.
    QModelIndex index;
    bool isByKeyboard = false;
};

/// One context menu for a widget and the widgets in it, filled each time it opens: by the mouse, by
/// the Menu key and by Shift+F10. By keyboard it opens at the current item of a view or tab bar, at
/// the cursor of a text, and in the middle of other widgets.
///
/// Texts that can be edited keep their own entries below. Widgets in the served one keep a menu
/// that their contextMenuPolicy() gives them, and those that a handler of their own serves.
class GUIBASE_EXPORT ContextMenuHandler : public QObject
{
    Q_OBJECT
public:
    /// Adds entries to the empty menu, which is deleted when it closes. When it adds none, the
    /// widget's own menu opens, or that of a widget around it.
    using Fill = std::function<void(QMenu& menu, const ContextMenuRequest& request)>;

    /// A child of the widget, which must not be null. The shortcuts of the entries are shown on all
    /// desktops.
    ContextMenuHandler(QWidget* served, Fill fill);
    ~ContextMenuHandler() override;

    /// Adds a hot key of the services, with the key that it has now: the entry does what the key
    /// does. Without a text it is called as in the overview of the hot keys. Null, with nothing
    /// added, for an id that was never given.
    static QAction* addHotKey(QMenu& menu, int id, const QString& text = {});

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watch(QWidget& widget);
    bool isResponsible(const QWidget& widget) const;
    bool open(const ContextMenuRequest& request);

    QWidget& m_served;
    Fill m_fill;
};
