// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QIcon>
#include <QMainWindow>
#include <QSharedDataPointer>
#include <QString>
#include <QTabWidget>

namespace QMainWindowHelpers {

/// Collects the settings of a main window and applies them in one call, to one window or several.
/// What was not set is left as the window has it. In every window that it has configured, the keys
/// pass over docks that lie behind another tab.
class GUIBASE_EXPORT MainWindowConfigurator
{
public:
    /// What most windows ask the three supports for.
    static constexpr QFlags<Qt::ToolBarArea> DefaultAutoHideSupportToolBarAreas{
        Qt::LeftToolBarArea, Qt::RightToolBarArea};
    static constexpr QFlags<Qt::DockWidgetArea> DefaultTileSupportDockWidgetAreas{
        Qt::AllDockWidgetAreas};
    static constexpr QFlags<Qt::DockWidgetArea> DefaultTabifySupportDockWidgetAreas{
        Qt::AllDockWidgetAreas};

    MainWindowConfigurator();
    MainWindowConfigurator(const MainWindowConfigurator& other);
    MainWindowConfigurator& operator=(const MainWindowConfigurator& other);
    ~MainWindowConfigurator();

    /// Supports that a window has already stay, also when they are not asked for. Empty areas
    /// install nothing.
    MainWindowConfigurator& withActiveDockWidgetSupport(bool enabled);
    MainWindowConfigurator& withAutoHideSupport(QFlags<Qt::ToolBarArea> areas);
    MainWindowConfigurator& withDockOptions(QFlags<QMainWindow::DockOption> options);
    MainWindowConfigurator& withDocumentMode(bool enabled);
    MainWindowConfigurator& withTabifySupport(QFlags<Qt::DockWidgetArea> areas);
    /// Sets the position for each of the areas; the last call for an area counts.
    MainWindowConfigurator& withTabPosition(QFlags<Qt::DockWidgetArea> areas,
                                            QTabWidget::TabPosition position);
    MainWindowConfigurator& withTabShape(QTabWidget::TabShape shape);
    MainWindowConfigurator& withTileSupport(QFlags<Qt::DockWidgetArea> areas);

    /// Null texts and a null icon leave the window's own; an empty text is applied.
    const MainWindowConfigurator& configure(QMainWindow& mainWindow, const QString& objectName = {},
                                            const QString& windowTitle = {},
                                            const QIcon& windowIcon = {},
                                            const QString& windowIconText = {}) const;

private:
    struct Private;
    QSharedDataPointer<Private> d;
};

} // namespace QMainWindowHelpers
