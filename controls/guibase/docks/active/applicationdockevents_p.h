// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>

namespace QMainWindowHelpers {

class ActiveDockWidgetSupport;

/// The one event filter on the application object through which every ActiveDockWidgetSupport of
/// the process gets its events. It picks out the few kinds that matter, and of those for one window
/// hands them to the support of that window only.
class ApplicationDockEvents : public QObject
{
    Q_OBJECT
public:
    /// Begins to hand events to the support, which must be a child of its main window.
    static void add(ActiveDockWidgetSupport& support);
    /// Ends it; may be called while an event is handed out, and for a support that is not there.
    static void remove(ActiveDockWidgetSupport& support);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit ApplicationDockEvents(QObject* parent);

    bool handToAll(QObject* watched, QEvent* event);

    QHash<const QObject*, ActiveDockWidgetSupport*> m_supports; ///< By main window.
};

} // namespace QMainWindowHelpers
