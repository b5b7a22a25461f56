// SPDX-License-Identifier: MIT
#include "gridplacement_p.h"

#include <QChildEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QLayout>
#include <QMainWindow>

namespace GridPlacement {

namespace {

void split(QMainWindow& mainWindow, QDockWidget* after, QDockWidget* dock,
           Qt::Orientation direction)
{
    if (after != nullptr && dock != nullptr)
        mainWindow.splitDockWidget(after, dock, direction);
}

/// Keeps the window from laying its contents out anew for every dock that is shown, and before the
/// docks have their sizes.
class LayoutPause : public QObject
{
public:
    explicit LayoutPause(QMainWindow& mainWindow)
        : m_window(&mainWindow)
        , m_wasEnabled(mainWindow.layout()->isEnabled())
    {
        mainWindow.layout()->setEnabled(false);
        mainWindow.installEventFilter(this);
    }
    ~LayoutPause() override
    {
        if (m_window.isNull())
            return;
        m_window->layout()->setEnabled(m_wasEnabled);
        // The layout has let its requests pass, and believes that one is still on its way.
        QCoreApplication::postEvent(m_window, new QEvent(QEvent::LayoutRequest));
    }
    Q_DISABLE_COPY_MOVE(LayoutPause)

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // A window that is being destroyed is no main window any more.
        if (event->type() == QEvent::ChildRemoved && qobject_cast<QMainWindow*>(watched) != nullptr)
            forget(static_cast<const QChildEvent*>(event)->child());
        return false;
    }

private:
    /// A layout at rest keeps what has gone, and would use it afterwards. The child may be dead.
    void forget(const QObject* child)
    {
        QLayout* layout = m_window->layout();
        for (int i = 0; layout != nullptr && layout->itemAt(i) != nullptr; ++i) {
            if (layout->itemAt(i)->widget() != child)
                continue;
            delete layout->takeAt(i);
            layout->invalidate();
            return;
        }
    }

    QPointer<QMainWindow> m_window;
    bool m_wasEnabled;
};

} // namespace

Result place(const QPointer<QMainWindow>& window, Qt::DockWidgetArea area, GuardedDocks& docks,
             int columns)
{
    for (const QPointer<QDockWidget>& dock : docks) {
        if (window && dock)
            window->removeDockWidget(dock);
    }
    for (int i = 0; i < docks.size() && window; ++i) {
        if (i == 0 && docks[0])
            window->addDockWidget(area, docks[0]);
        else if (i > 0 && i < columns)
            split(*window, docks[i - 1], docks[i], Qt::Horizontal);
        else if (i > 0)
            split(*window, docks[i - columns], docks[i], Qt::Vertical);
    }
    if (!window)
        return Result::Done;
    const auto isGone = [&window](const QPointer<QDockWidget>& dock) {
        return dock.isNull() || dock->parentWidget() != window;
    };
    if (docks.removeIf(isGone) > 0)
        return Result::DocksLost;
    // A receiver may have taken out the dock that others were to stand beside.
    for (const QPointer<QDockWidget>& dock : std::as_const(docks)) {
        if (window && dock && window->dockWidgetArea(dock) == Qt::NoDockWidgetArea)
            window->addDockWidget(area, dock);
    }
    return Result::Done;
}

void show(const QPointer<QMainWindow>& window, const GuardedDocks& docks)
{
    if (!window)
        return;
    const LayoutPause pause(*window);
    for (const QPointer<QDockWidget>& dock : docks) {
        if (window && dock)
            dock->show();
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
}

} // namespace GridPlacement
