// SPDX-License-Identifier: MIT
#include "pages.h"
#include "specimens.h"

#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/dockwidgetconfigurator.h>
#include <guibase/docks/enhanceddockwidgettitlebar.h>
#include <guibase/docks/mainwindowconfigurator.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/splitters/splitter.h>

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QStyle>
#include <QTextEdit>
#include <QTimer>

using namespace QMainWindowHelpers;

namespace gallery {

namespace {

QMainWindow* makeDockWindow()
{
    auto* window = new QMainWindow(nullptr, Qt::Widget);
    MainWindowConfigurator()
        .withAutoHideSupport(MainWindowConfigurator::DefaultAutoHideSupportToolBarAreas)
        .withTabifySupport(MainWindowConfigurator::DefaultTabifySupportDockWidgetAreas)
        .withTileSupport(MainWindowConfigurator::DefaultTileSupportDockWidgetAreas)
        .withActiveDockWidgetSupport(true)
        .configure(*window, QStringLiteral("docks"));
    window->setCentralWidget(new QTextEdit);
    return window;
}

QDockWidget* addDock(QMainWindow& window, const QString& name, Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(name, &window);
    dock->setWidget(filler(name));
    window.addDockWidget(area, dock);
    QDockWidgetHelpers::DockWidgetConfigurator()
        .includeActionsFrom(TabifySupport::get(window))
        .includeActionsFrom(TileSupport::get(window))
        .withAutoHideSupport(true)
        .withMaximizeSupport(true)
        .withMinimizeSupport(true)
        .configure(*dock, name, name);
    return dock;
}

EnhancedDockWidgetTitleBar* addBar(QMainWindow& window, const QString& title)
{
    auto* dock = new QDockWidget(title, &window);
    auto* bar = new EnhancedDockWidgetTitleBar(*dock);
    dock->setTitleBarWidget(bar);
    dock->setWidget(filler(title));
    window.addDockWidget(Qt::TopDockWidgetArea, dock);
    return bar;
}

void addActions(EnhancedDockWidgetTitleBar& bar, int count)
{
    for (int i = 0; i < count; ++i) {
        const auto picture = static_cast<QStyle::StandardPixmap>(QStyle::SP_DesktopIcon + i);
        auto* action = new QAction(bar.style()->standardIcon(picture),
                                   QStringLiteral("Action %1").arg(i + 1), &bar);
        bar.addTitleBarAction(*action, -1);
    }
}

} // namespace

QWidget* makeDocks()
{
    QMainWindow* const window = makeDockWindow();
    for (int i = 1; i <= 4; ++i)
        addDock(*window, QStringLiteral("Tile %1").arg(i), Qt::LeftDockWidgetArea);
    for (int i = 1; i <= 3; ++i)
        addDock(*window, QStringLiteral("Tab %1").arg(i), Qt::RightDockWidgetArea);
    QDockWidget* const vertical =
        addDock(*window, QStringLiteral("Vertical"), Qt::BottomDockWidgetArea);
    vertical->setFeatures(vertical->features() | QDockWidget::DockWidgetVerticalTitleBar);
    QDockWidget* const hidden =
        addDock(*window, QStringLiteral("At the edge"), Qt::RightDockWidgetArea);
    // Only docks that are shown are arranged.
    QTimer::singleShot(0, window, [window, hidden] {
        AutoHideSupport::get(*window)->enableAutoHide(*hidden);
        TabifySupport::get(*window)->tabifyDockWidgets(Qt::RightDockWidgetArea);
        TileSupport::get(*window)->tileDockWidgets(Qt::LeftDockWidgetArea);
        for (QDockWidget* dock : dockWidgets(*window))
            setDockWidgetSize(*window, *dock, 260, 0);
        hidden->hide(); // as it does when the mouse has left it
    });
    return window;
}

QWidget* makeTitleBars()
{
    auto* window = new QMainWindow(nullptr, Qt::Widget);
    window->setDockOptions(QMainWindow::AllowNestedDocks);
    addBar(*window, QStringLiteral("Plain"));
    addBar(*window, QStringLiteral("Active"))->setActive(true);
    EnhancedDockWidgetTitleBar* const withIcon = addBar(*window, QStringLiteral("Icon"));
    withIcon->dockWidget()->setWindowIcon(window->style()->standardIcon(QStyle::SP_DriveNetIcon));
    addActions(*addBar(*window, QStringLiteral("With actions")), 3);
    addActions(*addBar(*window, QStringLiteral("More actions and a longer title than fit")), 9);
    EnhancedDockWidgetTitleBar* const fixed = addBar(*window, QStringLiteral("Cannot move"));
    fixed->dockWidget()->setFeatures(QDockWidget::NoDockWidgetFeatures);
    EnhancedDockWidgetTitleBar* const disabled = addBar(*window, QStringLiteral("Disabled"));
    addActions(*disabled, 3);
    disabled->dockWidget()->setEnabled(false);
    const auto docks = window->findChildren<QDockWidget*>();
    for (int i = 2; i < docks.size(); ++i) // two columns
        window->splitDockWidget(docks.at(i - 2), docks.at(i), Qt::Vertical);
    return window;
}

QWidget* makeSplitters()
{
    auto* outer = new Splitter(Qt::Horizontal);
    auto* inner = new Splitter(Qt::Vertical);
    outer->addWidget(filler(QStringLiteral("Left")));
    outer->addWidget(inner);
    for (const char* text : {"Top", "Middle", "Bottom"})
        inner->addWidget(filler(QString::fromLatin1(text)));
    outer->setSizes({200, 600});
    return outer;
}

} // namespace gallery
