// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>

#include <functional>

class QDockWidget;
class QEvent;
class QMainWindow;

/// Tells which docks come to a main window and leave it. Its owner hands it the main window's
/// events (it installs no filter itself); the docks that are there already are not announced.
///
/// A dock that is made with the main window as its parent sends its ChildAdded event while it is
/// still under construction. Such a child is announced once it is complete: by its ChildPolished
/// event, or as soon as the event loop runs.
class DockChildren : public QObject
{
    Q_OBJECT
public:
    using Added = std::function<void(QDockWidget&)>;
    /// `gone` may be dead already and is good only for comparing; `dock` is the same dock while it
    /// lives, else null.
    using Removed = std::function<void(const QObject* gone, QDockWidget* dock)>;

    DockChildren(QMainWindow& mainWindow, Added added, Removed removed, QObject* parent);
    ~DockChildren() override;

    /// Events other than those of children are ignored. The functions may delete this object.
    void handle(const QEvent& event);
    /// Announces a dock of the main window now, if that is still to come.
    void announce(QObject* child);

private:
    void announceWaiting();
    void remove(QObject* child);

    QPointer<QMainWindow> m_mainWindow;
    Added m_added;
    Removed m_removed;
    QSet<const QObject*> m_known;
    QList<QPointer<QObject>> m_waiting;
};
