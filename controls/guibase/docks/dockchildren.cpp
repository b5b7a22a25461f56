// SPDX-License-Identifier: MIT
#include "dockchildren.h"

#include "mainwindowhelpers.h"

#include <jtbase/qtimerhelpers.h>

#include <QChildEvent>
#include <QDockWidget>
#include <QMainWindow>

#include <utility>

DockChildren::DockChildren(QMainWindow& mainWindow, Added added, Removed removed, QObject* parent)
    : QObject(parent)
    , m_mainWindow(&mainWindow)
    , m_added(std::move(added))
    , m_removed(std::move(removed))
{
    const QList<QDockWidget*> docks = QMainWindowHelpers::dockWidgets(mainWindow);
    m_known = QSet<const QObject*>(docks.begin(), docks.end());
}

DockChildren::~DockChildren() = default;

void DockChildren::handle(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildPolished:
        announce(static_cast<const QChildEvent&>(event).child());
        break;
    case QEvent::ChildRemoved:
        remove(static_cast<const QChildEvent&>(event).child());
        break;
    default:
        break;
    }
}

void DockChildren::announce(QObject* child)
{
    if (child == nullptr || !child->isWidgetType() || m_known.contains(child))
        return;
    if (auto* dock = qobject_cast<QDockWidget*>(child)) {
        m_waiting.removeOne(child);
        m_known.insert(child);
        const Added added = m_added;
        added(*dock);
        return;
    }
    // Perhaps a dock under construction.
    if (child->metaObject() != &QWidget::staticMetaObject || m_waiting.contains(child))
        return;
    if (m_waiting.isEmpty())
        QTimerHelpers::singleShot(0, this, [this] { announceWaiting(); });
    m_waiting << child;
}

void DockChildren::announceWaiting()
{
    const QPointer<DockChildren> alive(this);
    const QList<QPointer<QObject>> waiting = std::exchange(m_waiting, {});
    for (const QPointer<QObject>& child : waiting) {
        if (alive && child && qobject_cast<QDockWidget*>(child) != nullptr &&
            child->parent() == m_mainWindow)
            announce(child);
    }
}

void DockChildren::remove(QObject* child)
{
    m_waiting.removeOne(child);
    if (!m_known.remove(child))
        return;
    const Removed removed = m_removed;
    removed(child, qobject_cast<QDockWidget*>(child));
}
