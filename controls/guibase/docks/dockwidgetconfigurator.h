// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QDockWidget>
#include <QIcon>
#include <QList>
#include <QSharedDataPointer>
#include <QString>

class QAction;

namespace QMainWindowHelpers {
class TabifySupport;
class TileSupport;
} // namespace QMainWindowHelpers

namespace QDockWidgetHelpers {

/// Collects the settings of a dock and the actions for its title bar, and applies them in one call,
/// to one dock or several. What was not set is left as the dock has it.
///
/// The list and the supports that actions are included from are not owned; they must live until
/// the last configure().
class GUIBASE_EXPORT DockWidgetConfigurator
{
public:
    DockWidgetConfigurator();
    DockWidgetConfigurator(const DockWidgetConfigurator& other);
    DockWidgetConfigurator& operator=(const DockWidgetConfigurator& other);
    ~DockWidgetConfigurator();

    /// Null, the default of all three, includes nothing; so does a null action in the list. Of a
    /// support's actions, the title bar shows those of the area where its dock lies.
    DockWidgetConfigurator& includeActionsFrom(const QList<QAction*>* actions);
    DockWidgetConfigurator& includeActionsFrom(const QMainWindowHelpers::TabifySupport* support);
    DockWidgetConfigurator& includeActionsFrom(const QMainWindowHelpers::TileSupport* support);
    DockWidgetConfigurator& withAllowedAreas(QFlags<Qt::DockWidgetArea> areas);
    DockWidgetConfigurator& withFeatures(QFlags<QDockWidget::DockWidgetFeature> features);
    DockWidgetConfigurator& withFocusPolicy(Qt::FocusPolicy policy);
    /// As QWidget::setWindowFlags(): hides the dock.
    DockWidgetConfigurator& withWindowFlags(QFlags<Qt::WindowType> flags);
    /// Applied when not null.
    DockWidgetConfigurator& withStyleSheet(const QString& styleSheet);
    DockWidgetConfigurator& withAutoHideSupport(bool enabled);
    DockWidgetConfigurator& withMinimizeSupport(bool enabled);
    DockWidgetConfigurator& withMaximizeSupport(bool enabled);

    /// Appends the actions that belong in the dock's title bar, in this order: included actions,
    /// auto-hide, tabify and tile by area, maximize, minimize, restore. Null texts and a null icon
    /// leave the dock's own; an empty text is applied.
    const DockWidgetConfigurator& configure(QDockWidget& dockWidget, QList<QAction*>& actions,
                                            const QString& objectName = {},
                                            const QString& windowTitle = {},
                                            const QIcon& windowIcon = {},
                                            const QString& windowIconText = {}) const;
    /// Puts each of these actions, one after the other, first into the dock's title bar.
    const DockWidgetConfigurator& configure(QDockWidget& dockWidget, const QString& objectName = {},
                                            const QString& windowTitle = {},
                                            const QIcon& windowIcon = {},
                                            const QString& windowIconText = {}) const;

private:
    void applySettings(QDockWidget& dockWidget) const;
    void appendStateActions(QDockWidget& dockWidget, QList<QAction*>& actions) const;

    struct Private;
    QSharedDataPointer<Private> d;
};

} // namespace QDockWidgetHelpers
