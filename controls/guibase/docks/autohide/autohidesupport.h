// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QAbstractButton;
class QAction;
class QDockWidget;
class QMainWindow;
class QToolBar;

namespace QMainWindowHelpers {

struct AutoHideSupportPrivate;

/// Lets the docks of a main window hide themselves. A dock in auto-hide mode floats and has a
/// button on a narrow tool bar at the left or right edge. A click on it, or the mouse over it if
/// the user wants that, shows the dock against the tool bar; it hides again a while after the mouse
/// has left it. Where programs do not place windows (see WindowSystem::placesWindows()), the docks
/// do not float: they show and hide in their places inside the main window. The support belongs to
/// its main window and sees docks come and go by itself. More:
/// docs/decisions/0041-title-bars-and-docks-at-the-edge.md.
class GUIBASE_EXPORT AutoHideSupport : public QObject
{
    Q_OBJECT
public:
    /// Chooses the tool bar for a dock; the flags are the support's areas.
    using SelectToolBarAreaFn = std::function<Qt::ToolBarArea(
        const QMainWindow&, const QDockWidget&, QFlags<Qt::ToolBarArea>)>;

    /// Only left and right areas count. The existing support is returned if it has exactly the
    /// areas that are passed, otherwise null; so asking again with a top or bottom area gives null.
    static AutoHideSupport* install(QMainWindow& mainWindow, QFlags<Qt::ToolBarArea> areas);
    /// The support of this main window, or null.
    static AutoHideSupport* get(const QMainWindow& mainWindow);
    ~AutoHideSupport() override;

    /// The checkable action that switches the mode of this dock; it belongs to the dock. A dock
    /// that has one keeps it.
    static QAction* createAutoHideAction(QDockWidget& dock);
    /// Null when the dock has none.
    static QAction* autoHideAction(const QDockWidget& dock);

    /// Where tool bars hold the buttons of hidden docks.
    QFlags<Qt::ToolBarArea> toolBarAreas() const;
    /// Whether the mouse over a button shows the dock; true at start. The user can change it.
    void setPopupOnHoverEnabled(bool enabled);
    bool isPopupOnHoverEnabled() const;
    /// Whether a dock floats when it enters the mode and is docked when it leaves it; default true.
    /// Without effect where programs do not place windows.
    void setSyncAutoHideWithFloatingEnabled(bool enabled);
    bool isSyncAutoHideWithFloatingEnabled() const;
    /// Whether a docked dock may be in the mode when it is shown; default false: it leaves it.
    void setAllowAutoHideOfNonFloatingEnabled(bool enabled);
    bool isAllowAutoHideOfNonFloatingEnabled() const;
    /// Milliseconds from the mouse leaving to the hiding; default 500, negative counts as 0.
    void setAutoHideDelay(int milliseconds);
    int autoHideDelay() const;

    /// Calls enableAutoHide() or disableAutoHide().
    void setAutoHideEnabled(QDockWidget& dock, bool enabled);
    /// Nothing happens when the chosen area is neither left nor right, when there is no tool bar
    /// at all, and for docks of other windows. If only the other tool bar exists, that is taken.
    void enableAutoHide(QDockWidget& dock);
    /// A dock that was hidden by the mode is shown.
    void disableAutoHide(QDockWidget& dock);

    /// An empty function installs the default, selectToolBarAreaByDockWidgetScreenPosition.
    void setSelectToolBarAreaFn(SelectToolBarAreaFn function);
    /// The side of the dock's area; NoToolBarArea for a dock in none. The flags are ignored.
    static Qt::ToolBarArea selectToolBarAreaByDockWidgetArea(const QMainWindow& mainWindow,
                                                             const QDockWidget& dock,
                                                             QFlags<Qt::ToolBarArea> areas);
    /// Right when the dock's centre lies right of the main window's, else left. The flags are
    /// ignored.
    static Qt::ToolBarArea selectToolBarAreaByDockWidgetScreenPosition(
        const QMainWindow& mainWindow, const QDockWidget& dock, QFlags<Qt::ToolBarArea> areas);

    /// Which docks are in the mode and on which side, by object name (docks without a name are left
    /// out), and whether the mouse shows docks. A big-endian record: "GAH1", flags (8 bits, 1 =
    /// popup on hover), number of docks (16 bits), per dock its side (8 bits, 1 left, 2 right) and
    /// name (16 bits length, UTF-8), and qChecksum() of all that (16 bits).
    QByteArray saveState() const;
    /// Brings every dock into the saved mode, hidden; docks that are not there yet when they come.
    /// False, with nothing changed, for anything but a whole record.
    bool restoreState(const QByteArray& state);
    /// Keeps the state under this name in the application configuration's layout section ("Auto
    /// hide", hexadecimal): restores what is stored there now, and stores every change from now on.
    /// An empty name (the default) ends that.
    void setStorageName(const QString& name);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// See install().
    AutoHideSupport(QMainWindow& mainWindow, QFlags<Qt::ToolBarArea> areas);

    void timerEvent(QTimerEvent* event) override;
    /// Calls the function given to setSelectToolBarAreaFn().
    virtual Qt::ToolBarArea selectToolBarArea(const QMainWindow& mainWindow,
                                              const QDockWidget& dock,
                                              QFlags<Qt::ToolBarArea> areas);

    /// All docks of the main window in its four areas.
    QList<QDockWidget*> dockWidgets(bool includeFloating) const;
    bool isAutoHideDisabled(const QDockWidget& dock) const;
    void onAutoHideActionToggled(QDockWidget& dock, bool checked);
    void popupDockWidgetOnHovered(QDockWidget& dock);

    /// Take notice of what the event filter has seen at the window, a dock and a button.
    void mainWindowEvent(const QEvent& event);
    void dockWidgetEvent(QDockWidget& dock, const QEvent& event);
    void actionWidgetEvent(QAbstractButton& button, const QEvent& event);

    /// Hides the pending dock at once and lets this one be hidden after the delay.
    void activateAutoHideTimer(QDockWidget& dock);
    /// The dock that was pending, or null.
    QDockWidget* deactivateAutoHideTimer();
    /// Puts the dock against the inner edge of the tool bar, along its whole length and not beyond
    /// the opposite edge of the main window.
    void moveDockWidget(QDockWidget& dock, const QToolBar& toolBar);

    /// Makes the tool bars for the areas; to be called once.
    void createDockWidgetTabToolBars();
    /// Stands for the dock on a tool bar of this area; belongs to the support.
    QAction* createToggleViewProxyAction(QDockWidget& dock, Qt::ToolBarArea area);
    /// Null when the tool bar is not the support's, or the dock not registered.
    QAction* toolBarActionFor(const QToolBar& toolBar, const QDockWidget& dock) const;
    /// The tool bar that shows the dock's button, or null.
    QToolBar* toolBarResponsibleFor(const QDockWidget& dock) const;
    /// Shows the dock's button on the tool bar of this area only; NoToolBarArea: on none.
    void setDockWidgetActionVisibility(const QDockWidget& dock, Qt::ToolBarArea area);
    /// Expands the tool bars that have buttons to show, and collapses the others.
    void updateToolBarVisibility();
    void setToolBarVisible(QToolBar& toolBar, bool visible);

private:
    friend struct AutoHideSupportPrivate;
    std::unique_ptr<AutoHideSupportPrivate> d;
};

} // namespace QMainWindowHelpers
