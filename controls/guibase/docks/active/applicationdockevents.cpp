// SPDX-License-Identifier: MIT
#include "applicationdockevents_p.h"

#include "activedockwidgetsupport.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

namespace QMainWindowHelpers {

namespace {

QPointer<ApplicationDockEvents> theEvents;

} // namespace

ApplicationDockEvents::ApplicationDockEvents(QObject* parent)
    : QObject(parent)
{}

void ApplicationDockEvents::add(ActiveDockWidgetSupport& support)
{
    QCoreApplication* application = QCoreApplication::instance();
    if (theEvents.isNull())
        theEvents = new ApplicationDockEvents(application);
    if (theEvents->m_supports.isEmpty())
        application->installEventFilter(theEvents);
    theEvents->m_supports.insert(support.parent(), &support);
}

void ApplicationDockEvents::remove(ActiveDockWidgetSupport& support)
{
    if (theEvents.isNull() || !theEvents->m_supports.removeIf([&support](const auto& entry) {
            return entry.value() == &support;
        }))
        return;
    if (theEvents->m_supports.isEmpty())
        QCoreApplication::instance()->removeEventFilter(theEvents);
}

bool ApplicationDockEvents::eventFilter(QObject* watched, QEvent* event)
{
    const QObject* window = nullptr;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        return handToAll(watched, event);
    case QEvent::Hide:
        window = watched->parent();
        break;
    case QEvent::ChildAdded:
    case QEvent::ChildPolished:
    case QEvent::ChildRemoved:
        window = watched;
        break;
    default:
        return false;
    }
    ActiveDockWidgetSupport* support = m_supports.value(window);
    return support != nullptr && support->eventFilter(watched, event);
}

bool ApplicationDockEvents::handToAll(QObject* watched, QEvent* event)
{
    const QList<ActiveDockWidgetSupport*> supports = m_supports.values();
    for (ActiveDockWidgetSupport* support : supports) {
        // The supports before it may have led to its end.
        const bool isThere =
            std::find(m_supports.cbegin(), m_supports.cend(), support) != m_supports.cend();
        if (isThere && support->eventFilter(watched, event))
            return true;
    }
    return false;
}

} // namespace QMainWindowHelpers
