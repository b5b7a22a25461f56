// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QObject>

#include <memory>

class QDockWidget;
class QMainWindow;
class QWidget;

Q_MOC_INCLUDE(<QDockWidget>)

namespace QMainWindowHelpers {

struct ActiveDockWidgetSupportPrivate;

/// Keeps track of the dock of a main window that the user last worked in, so that commands can be
/// routed to it. The support belongs to its main window.
///
/// A dock becomes active when the focus goes to it while it is docked, when a mouse button is
/// released over it, and when it comes to the main window. When the active dock is hidden or
/// leaves, the next visible one in title order follows.
class GUIBASE_EXPORT ActiveDockWidgetSupport : public QObject
{
    Q_OBJECT
public:
    /// The support of this main window, or null.
    static ActiveDockWidgetSupport* get(const QMainWindow& mainWindow);
    /// The support of this main window; made when there is none yet.
    static ActiveDockWidgetSupport* install(QMainWindow& mainWindow);
    ~ActiveDockWidgetSupport() override;

    /// Null while the main window is being destroyed.
    QMainWindow* mainWindow() const;
    /// Null when no dock is active.
    QDockWidget* activeDockWidget() const;
    /// Shows and raises the dock, gives it the focus and makes it active. A dock that is not a
    /// child of the main window is only shown.
    void bringToFront(QDockWidget& dock);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Null when no dock is active any more.
    void activeDockWidgetChanged(QDockWidget* dock);
    /// A dock has come to the main window; sent once it is complete, and before it becomes active.
    void dockWidgetAdded(QDockWidget& dock);
    /// The dock has gone to another parent. A dock that is destroyed does not send this: nothing of
    /// it is left to refer to.
    void dockWidgetRemoved(QDockWidget& dock);
    /// Sent for each widget of the dock that the release reaches, before the dock becomes active.
    void mouseButtonReleasedOverDockWidget(QDockWidget& dock);

protected:
    /// Makes the dock active and announces it; null for none.
    void setActiveDockWidget(QDockWidget* dock);
    /// The first visible dock after the active one in title order, wrapping around; or null.
    QDockWidget* findNextActiveDockWidget() const;
    void handleDockWidgetAdded(QDockWidget& dock);
    void handleDockWidgetRemoved(QDockWidget& dock);

private Q_SLOTS:
    void onFocusChanged(QWidget* old, QWidget* now);
    void onMainWindowDestroyed();

private:
    explicit ActiveDockWidgetSupport(QMainWindow& mainWindow);

    friend struct ActiveDockWidgetSupportPrivate;
    friend class ActiveDockKeeper;
    std::unique_ptr<ActiveDockWidgetSupportPrivate> d;
};

} // namespace QMainWindowHelpers
