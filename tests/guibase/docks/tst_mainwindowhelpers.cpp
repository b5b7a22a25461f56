// SPDX-License-Identifier: MIT
#include "support/dockwindow.h"
#include "support/guardedtest.h"

#include <guibase/docks/mainwindowhelpers.h>

#include <QPointer>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>

using namespace QMainWindowHelpers;

class tst_MainWindowHelpers : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void listsDocksAndToolBars()
    {
        DockWindow window;
        const auto docks = window.addDocks({u"a"_s, u"b"_s, u"c"_s});
        window.addDock(u"top"_s, Qt::TopDockWidgetArea);
        docks[1]->setFloating(true);
        QDockWidget nested(u"nested"_s, window.centralWidget());
        const auto all = [](const auto&) { return true; };
        QCOMPARE(dockWidgets(window, all, 2), docks.mid(0, 2));
        QCOMPARE(dockWidgets(window, Qt::LeftDockWidgetArea, false), QList({docks[0], docks[2]}));
        QCOMPARE(dockWidgets(window, Qt::LeftDockWidgetArea, true), docks);
        QCOMPARE(findDockWidgetByWindowTitle(window, u"b"_s), docks[1]);
        QVERIFY(!findDockWidgetByWindowTitle(window, u"nested"_s));

        QToolBar* right = new QToolBar(&window);
        window.addToolBar(Qt::RightToolBarArea, right);
        window.addToolBar(u"top"_s);
        QCOMPARE(toolBars(window, Qt::RightToolBarArea, true), QList{right});
        QCOMPARE(toolBars(window, all, -1).size(), 2);
    }
    void findsTheDockOfATab()
    {
        DockWindow window, other;
        const auto docks = window.addDocks({u"same"_s, u"same"_s, u"new [*] title"_s});
        QDockWidget* alone = window.addDock(u"alone"_s, Qt::RightDockWidgetArea);
        window.tabifyDockWidget(docks[0], docks[1]);
        window.tabifyDockWidget(docks[0], docks[2]);
        window.show();
        settle();
        const auto tabBars = tabBarsInDockWidgetArea(window, Qt::LeftDockWidgetArea);
        QCOMPARE(tabBars.size(), 1);
        for (int i = 0; i < docks.size(); ++i) {
            tabBars[0]->setCurrentIndex(i);
            QCOMPARE(findParentDockWidget(*tabBars[0], &window), docks[i]);
        }
        QRect expected = docks[2]->geometry();
        expected |= tabBars[0]->geometry();
        QCOMPARE(dockWidgetAreaGeometry(window, Qt::LeftDockWidgetArea), expected);
        QCOMPARE(dockWidgetAreaGeometry(window, Qt::RightDockWidgetArea), alone->geometry());
        QVERIFY(findParentDockWidget(*alone->widget(), nullptr) == alone);
        QVERIFY(!findParentDockWidget(*alone->widget(), &other));
        QDockWidget outer(u"outer"_s, window.centralWidget());
        QVERIFY(!findParentDockWidget(outer, nullptr));
        // A tab bar that somebody else has filled.
        QTabBar tabs(&window);
        QVERIFY(!findParentDockWidget(tabs, nullptr));
        tabs.addTab(u"alone"_s);
        QCOMPARE(findParentDockWidget(tabs, nullptr), alone);
    }
    void sizesDocks()
    {
        DockWindow window;
        const auto docks = window.addDocks({u"a"_s, u"b"_s}, Qt::LeftDockWidgetArea, {50, 40});
        window.show();
        settle();
        const QSize minimum = docks[0]->minimumSize();
        const QSize maximum = docks[0]->maximumSize();
        const QRect geometry = window.geometry();
        setDockWidgetSize(window, *docks[0], 300, 250);
        setDockWidgetSizes(window, {{nullptr, {1, 1}}, {docks[0], {-1, 200}}});
        QCOMPARE(docks[0]->size(), QSize(300, 200));
        setDockWidgetSize(window, *docks[1], QSize(50'000'000, 50'000'000));
        QVERIFY(docks[1]->width() > 1000);
        QCOMPARE(docks[0]->minimumSize(), minimum);
        QCOMPARE(docks[0]->maximumSize(), maximum);
        QCOMPARE(window.geometry(), geometry);
        docks[0]->widget()->setMinimumWidth(400); // the layout still sees to the window's own
        settle();
        QVERIFY(window.minimumWidth() > 400);
        QCOMPARE(window.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        window.setUpdatesEnabled(false);
        setDockWidgetSize(window, *docks[0], 0, 0);
        QVERIFY(!window.updatesEnabled());
    }
    void leavesAMaximizedWindowMaximized()
    {
        DockWindow window;
        QDockWidget* dock = window.addDock(u"a"_s);
        window.showMaximized();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        settle();
        const QRect geometry = window.geometry();
        setDockWidgetSize(window, *dock, 300, 0);
        settle();
        QVERIFY(window.isMaximized());
        QCOMPARE(window.geometry(), geometry);
        QCOMPARE(dock->width(), 300);
    }
    void tellsDocksOfOneTitleApart()
    {
        DockWindow window;
        const auto left = window.addDocks({u"a[*]"_s, u"b"_s});
        const auto right = window.addDocks({u"a[*]"_s, u"c"_s}, Qt::RightDockWidgetArea);
        for (const auto& docks : {left, right})
            window.tabifyDockWidget(docks[0], docks[1]);
        window.show();
        settle();
        for (const auto area : {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea}) {
            QCOMPARE(tabBarsInDockWidgetArea(window, area).size(), 1);
            QVERIFY(dockWidgetAreaGeometry(window, area).width() < window.width() / 2);
        }
    }
    void survivesDeathsWhileSizing()
    {
        QPointer<DockWindow> window = new DockWindow;
        const auto docks = window->addDocks({u"a"_s, u"b"_s});
        window->show();
        settle();
        QTimer::singleShot(0, docks[0], [dock = docks[0]] { delete dock; });
        setDockWidgetSizes(*window, {{docks[0], {200, 200}}, {docks[1], {200, 300}}});
        QTimer::singleShot(0, window, [&window] { delete window; });
        setDockWidgetSize(*window, *docks[1], 100, 100);
        QVERIFY(window.isNull());
    }
};

QTEST_MAIN(tst_MainWindowHelpers)
#include "tst_mainwindowhelpers.moc"
