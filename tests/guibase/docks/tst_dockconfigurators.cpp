// SPDX-License-Identifier: MIT
#include "support/dockwindow.h"
#include "support/guardedtest.h"

#include <guibase/docks/active/activedockwidgetsupport.h>
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/dockwidgetconfigurator.h>
#include <guibase/docks/dockwidgethelpers.h>
#include <guibase/docks/enhanceddockwidgettitlebar.h>
#include <guibase/docks/mainwindowconfigurator.h>

#include <QAction>
#include <QSet>

#include <memory>

using namespace QMainWindowHelpers;
using namespace QDockWidgetHelpers;

class tst_DockConfigurators : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void mainWindowGetsOnlyWhatIsSet()
    {
        QMainWindow window;
        window.setDocumentMode(true);
        MainWindowConfigurator()
            .withAutoHideSupport({})
            .withTileSupport({})
            .withTabPosition(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea, QTabWidget::West)
            .withTabPosition(Qt::RightDockWidgetArea, QTabWidget::East)
            .configure(window);
        QVERIFY(window.documentMode());
        QCOMPARE(window.tabPosition(Qt::LeftDockWidgetArea), QTabWidget::West);
        QCOMPARE(window.tabPosition(Qt::RightDockWidgetArea), QTabWidget::East);
        QVERIFY(!AutoHideSupport::get(window) && !ActiveDockWidgetSupport::get(window));
        QVERIFY(!TileSupport::get(window) && !TabifySupport::get(window));

        MainWindowConfigurator()
            .withActiveDockWidgetSupport(true)
            .withAutoHideSupport(MainWindowConfigurator::DefaultAutoHideSupportToolBarAreas)
            .withTileSupport(MainWindowConfigurator::DefaultTileSupportDockWidgetAreas)
            .withTabifySupport(Qt::LeftDockWidgetArea)
            .withDocumentMode(false)
            .configure(window);
        QVERIFY(AutoHideSupport::get(window) && ActiveDockWidgetSupport::get(window));
        QCOMPARE(TileSupport::get(window)->dockWidgetAreas(), Qt::AllDockWidgetAreas);
        QCOMPARE(TabifySupport::get(window)->dockWidgetAreas(), Qt::LeftDockWidgetArea);
        QVERIFY(!window.documentMode());
    }
    void dockGetsOnlyWhatIsSet()
    {
        QMainWindow window;
        QDockWidget dock(u"title"_s, &window);
        dock.setStyleSheet(u"color: red"_s);
        const auto features = dock.features();
        DockWidgetConfigurator configurator;
        window.setUpdatesEnabled(false); // for the moment, and of the window only
        configurator.configure(dock, u"name"_s);
        window.setUpdatesEnabled(true);
        QVERIFY(dock.updatesEnabled());
        QCOMPARE(dock.windowTitle(), u"title"_s);
        QCOMPARE(dock.styleSheet(), u"color: red"_s);
        QCOMPARE(dock.features(), features);
        QCOMPARE(dock.titleBarWidget(), nullptr);
        dock.setUpdatesEnabled(false);
        configurator.withStyleSheet(u""_s).configure(dock);
        QVERIFY(dock.styleSheet().isEmpty());
        QVERIFY(!dock.updatesEnabled());
    }
    void actionsComeInOrder()
    {
        QMainWindow window;
        auto* dock = new QDockWidget(&window);
        QAction extra;
        extra.setObjectName(u"extra"_s);
        const QList<QAction*> extras{&extra};
        DockWidgetConfigurator configurator;
        const auto names = [&] {
            QList<QAction*> actions;
            configurator.configure(*dock, actions);
            QStringList found;
            for (const QAction* action : std::as_const(actions))
                found << action->objectName();
            return found.join(u' ');
        };
        configurator.withMinimizeSupport(true);
        QCOMPARE(names(), u"minimizeDockWidget restoreDockWidget"_s);
        configurator.withMaximizeSupport(true)
            .withAutoHideSupport(true)
            .includeActionsFrom(&extras)
            .includeActionsFrom(TileSupport::install(window, Qt::TopDockWidgetArea))
            .includeActionsFrom(TabifySupport::install(window, Qt::LeftDockWidgetArea));
        for (int round = 0; round < 2; ++round) // the second time with what is there
            QCOMPARE(names(), u"extra autoHideButton tabifyDockWidgetArea_1 tileDockWidgetArea_4 "
                              u"maximizeDockWidget minimizeDockWidget restoreDockWidget"_s);
    }
    void titleBarTakesTheActions()
    {
        QDockWidget dock;
        dock.setTitleBarWidget(new QWidget);
        QAction one;
        QAction two;
        const QList<QAction*> extras{&one, nullptr, &two};
        DockWidgetConfigurator().includeActionsFrom(&extras).configure(dock);
        const auto* bar = qobject_cast<EnhancedDockWidgetTitleBar*>(dock.titleBarWidget());
        QCOMPARE(bar->actions(), (QList<QAction*>{&two, &one}));
        QAction three;
        addActionToTitleBar(dock, three, 1);
        QCOMPARE(dock.titleBarWidget(), bar);
        QCOMPARE(bar->actions(), (QList<QAction*>{&two, &three, &one}));
    }
    void keysPassOverCoveredDocks()
    {
        DockWindow window;
        MainWindowConfigurator().configure(window);
        const auto docks = window.addDocks({u"front"_s, u"covered"_s, u"beside"_s});
        for (QDockWidget* dock : docks)
            qobject_cast<QTextEdit*>(dock->widget())->setTabChangesFocus(true);
        window.tabifyDockWidget(docks[0], docks[1]);
        window.show();
        docks[0]->raise();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QSet<QWidget*> visited;
        docks[0]->widget()->setFocus();
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab})
            for (int times = 0; times < 5; ++times) {
                QTest::keyClick(QApplication::focusWidget(), key);
                visited << QApplication::focusWidget();
            }
        QVERIFY(visited.contains(docks[0]->widget()) && visited.contains(docks[2]->widget()));
        QVERIFY(!visited.contains(docks[1]->widget()));
        settle();
        QCOMPARE(docks[1]->widget()->focusPolicy(), docks[0]->widget()->focusPolicy());
        docks[0]->widget()->setFocus();
        docks[1]->raise();
        QCOMPARE(QApplication::focusWidget(), docks[1]->widget());
    }
    void anyWidgetBecomesADock()
    {
        QMainWindow window;
        window.setWindowIcon(QPixmap(16, 16));
        auto* viewer = new QWidget(&window);
        viewer->setObjectName(u"viewer"_s);
        viewer->setStyleSheet(u"color: red"_s);
        QDockWidget* dock = makeDockWidgetFrom(*viewer);
        QCOMPARE(dock->objectName(), u"viewer_outerDockWidget"_s);
        QVERIFY(!dock->testAttribute(Qt::WA_SetWindowIcon));
        QCOMPARE(dock->styleSheet(), u"color: red"_s);
        QCOMPARE(makeDockWidgetFrom(*dock), dock);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        window.show();
        QVERIFY(viewer->isVisible() && !dock->isFloating());

        const std::unique_ptr<QDockWidget> orphan(makeDockWidgetFrom(*new QWidget));
        QVERIFY(orphan->objectName().isNull());
    }
};

QTEST_MAIN(tst_DockConfigurators)
#include "tst_dockconfigurators.moc"
