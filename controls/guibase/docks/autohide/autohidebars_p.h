// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QPointer>
#include <QToolBar>

#include <functional>
#include <map>

class QAction;
class QDockWidget;
class QMainWindow;

namespace QMainWindowHelpers {

/// The tool bars at the edges of a main window, with a button for each dock on each of them. A dock
/// in auto-hide mode shows one of its buttons. The bars belong to the window, the rest to `owner`.
class AutoHideBars
{
public:
    using DockFunction = std::function<void(QDockWidget&)>;

    /// The owner filters the events of the buttons.
    AutoHideBars(QObject& owner, QFlags<Qt::ToolBarArea> areas);
    ~AutoHideBars();
    Q_DISABLE_COPY_MOVE(AutoHideBars)

    QFlags<Qt::ToolBarArea> areas() const { return m_areas; }
    /// The button by which the user decides whether the mouse shows docks; on every bar.
    QAction& popupOnHover() const { return *m_popupOnHover; }
    void createIn(QMainWindow& mainWindow);
    void destroy();

    /// The functions hear of a button of this dock under the mouse, and chosen by a key.
    void addButtons(QDockWidget& dock, const DockFunction& hovered,
                    const DockFunction& chosenByKey);
    /// `key` is good for comparing only.
    void removeButtons(const QObject* key);
    QAction* createProxy(QDockWidget& dock, Qt::ToolBarArea area, const DockFunction& hovered);
    /// Texts and icons of the buttons.
    void followDock(const QDockWidget& dock);

    /// The area itself, or the other side when only that has a bar; else NoToolBarArea.
    Qt::ToolBarArea usableArea(Qt::ToolBarArea wanted) const;
    /// Where the dock's button is shown; null and NoToolBarArea when it is nowhere.
    QToolBar* barOf(const QObject* dock) const;
    Qt::ToolBarArea areaOf(const QObject* dock) const;
    /// Null when the tool bar is none of these, or the dock has no buttons.
    QAction* proxyOn(const QToolBar& toolBar, const QObject* dock) const;
    /// The one that is shown, or null.
    QWidget* buttonOf(const QObject* dock) const;
    /// Null for any other widget.
    static const QObject* dockOf(const QObject& button);
    /// Shows the dock's button on the bar of this area only; NoToolBarArea: on none.
    void showButton(const QObject* dock, Qt::ToolBarArea area);
    /// Expands the bars that have buttons to show, and collapses the others.
    void updateVisibility();
    void setExpanded(QToolBar& toolBar, bool expanded);
    /// Puts the dock against the inner edge of the bar, along its whole length and not beyond the
    /// opposite edge of the main window. Nothing where programs do not place windows.
    static void moveDock(QDockWidget& dock, const QToolBar& toolBar);

private:
    using Proxies = QMap<Qt::ToolBarArea, QAction*>;

    QToolBar* makeBar(QMainWindow& mainWindow, Qt::ToolBarArea area);
    const Proxies* proxiesOf(const QObject* dock) const;

    QObject& m_owner;
    const QFlags<Qt::ToolBarArea> m_areas;
    QAction* m_popupOnHover;
    QMap<Qt::ToolBarArea, QPointer<QToolBar>> m_bars; ///< Somebody may delete one.
    std::map<const QObject*, Proxies> m_proxies;
};

} // namespace QMainWindowHelpers
