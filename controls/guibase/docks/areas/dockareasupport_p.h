// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/docks/attachedhelper.h>
#include <guibase/docks/dockchildren.h>
#include <guibase/docks/dockicons.h>

#include <QList>
#include <QMainWindow>
#include <QMap>
#include <QPointer>

#include <array>
#include <functional>

class QAction;
class QDockWidget;
class QTimer;

namespace QMainWindowHelpers {

/// What distinguishes one support that rearranges the docks of an area from another.
struct DockAreaOperation
{
    struct Area
    {
        Qt::DockWidgetArea area;
        DockIcon icon;
        const char* actionText; ///< In the translation context of the support's class.
    };

    const char* property;
    const char* actionName;
    /// Takes the candidates of the area.
    bool (*isPossible)(const QMainWindow&, Qt::DockWidgetArea, const QList<QDockWidget*>&);
    bool (*perform)(QMainWindow&, Qt::DockWidgetArea);
    /// In the order left, right, top, bottom.
    std::array<Area, 4> areas;
};

/// The signals of a support, as functions that send them. Each may destroy the support.
struct DockAreaSignals
{
    std::function<void(Qt::DockWidgetArea, bool)> possibleChanged;
    /// Takes the index of the area in the operation's table.
    std::function<void(std::size_t, bool)> possibleInAreaChanged;
    std::function<void(Qt::DockWidgetArea)> performedInArea;
    std::function<void()> performed;
};

/// The body of the supports that rearrange the docks of an area: each has one as a member, and adds
/// the names under which applications know it.
class DockAreaSupport
{
public:
    DockAreaSupport(QObject& support, QMainWindow& mainWindow, QFlags<Qt::DockWidgetArea> areas,
                    const DockAreaOperation& operation, DockAreaSignals announcements);
    ~DockAreaSupport();
    Q_DISABLE_COPY_MOVE(DockAreaSupport)

    /// The second half of the construction, when the support is complete.
    void start(const QMap<Qt::DockWidgetArea, QAction*>& actions);

    /// Null while the main window is being destroyed.
    QMainWindow* mainWindow() const;
    QFlags<Qt::DockWidgetArea> areas() const { return m_areas; }
    QMap<Qt::DockWidgetArea, QAction*> createActions(QFlags<Qt::DockWidgetArea> areas,
                                                     QObject* parent);
    /// For an area that is not supported, an action that is never shown.
    QAction& action(Qt::DockWidgetArea area);
    bool isPossible(Qt::DockWidgetArea area) const;
    /// False for areas that are not supported, and when it is not possible.
    bool perform(Qt::DockWidgetArea area);
    /// Sends the current answers for these areas.
    void announce(QFlags<Qt::DockWidgetArea> areas);
    bool eventFilter(QObject* watched, QEvent* event);

private:
    /// Those of the areas where the operation is possible.
    QFlags<Qt::DockWidgetArea> possibleAreas(QFlags<Qt::DockWidgetArea> areas) const;
    void handle(QObject* watched, const QEvent& event);
    void watch(QDockWidget& dock);
    void unwatch(QDockWidget* dock);
    void announceNow();
    void announceLater();

    QObject& m_support;
    const DockAreaOperation& m_operation;
    const DockAreaSignals m_signals;
    QFlags<Qt::DockWidgetArea> m_areas;
    AttachedHelpers::Attachment m_attachment;
    DockChildren m_children;
    QMap<Qt::DockWidgetArea, QAction*> m_actions;
    QAction* m_noAction = nullptr;
    QPointer<QTimer> m_announcement;
    int m_announcements = 0;
};

} // namespace QMainWindowHelpers
