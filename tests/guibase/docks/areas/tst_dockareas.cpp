// SPDX-License-Identifier: MIT
#include "support/dockwindow.h"
#include "support/guardedtest.h"

#include <guibase/docks/active/activedockwidgetsupport.h>
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/mainwindowhelpers.h>

#include <QAction>
#include <QPointer>
#include <QResizeEvent>
#include <QSet>
#include <QTimer>
#include <QToolBar>

using namespace QMainWindowHelpers;

namespace {

constexpr Qt::DockWidgetArea left = Qt::LeftDockWidgetArea;
constexpr Qt::DockWidgetArea right = Qt::RightDockWidgetArea;
constexpr Qt::DockWidgetAreas all = Qt::AllDockWidgetAreas;

QStringList numbered(int docks)
{
    QStringList titles;
    for (int i = 0; i < docks; ++i)
        titles << QStringLiteral("%1").arg(i, 3, 10, QLatin1Char('0'));
    return titles;
}

} // namespace

class tst_DockAreas : public GuardedTest
{
    Q_OBJECT
    using Tilings = TestRows<int, Qt::DockWidgetArea, QSize, QSize>;

private Q_SLOTS:
    void tabifiesInTitleOrder()
    {
        DockWindow window;
        const auto docks = window.addDocks({u"b"_s, u"c"_s, u"a"_s, u""_s});
        window.addDock(u"floating"_s)->setFloating(true);
        window.addDock(u"other"_s, right);
        window.show();
        settle();
        TabifySupport* support = TabifySupport::install(window, left);
        QSignalSpy inArea(support,
                          qOverload<Qt::DockWidgetArea>(&TabifySupport::dockWidgetsTabified));
        QVERIFY(!support->tabifyDockWidgets(right));
        QVERIFY(support->tabifyDockWidgetsInLeftDockWidgetArea());
        QCOMPARE(inArea, QList<QVariantList>{{QVariant::fromValue(left)}});
        settle();
        // The first in the order is the untitled one; it leads the tabs.
        QCOMPARE(window.tabifiedDockWidgets(docks[3]), QList({docks[2], docks[0], docks[1]}));
    }
    void tiles_data()
    {
        Tilings row;
        row("one row", 5, Qt::TopDockWidgetArea, {200, 50}, {5, 1});
        row("two rows", 5, Qt::TopDockWidgetArea, {245, 50}, {3, 2});
        row("three rows at the right", 5, right, {134, 50}, {2, 3});
    }
    void tiles()
    {
        const auto& [count, area, minimum, expected] = Tilings::fetch();
        DockWindow window;
        const auto docks = window.addDocks(numbered(count), area);
        window.show();
        settle();
        QVERIFY(TabifySupport::tabifyDockWidgets(window, area));
        for (QDockWidget* dock : docks)
            dock->widget()->setMinimumSize(minimum);
        window.resizeDocks({docks[0]}, {400}, Qt::Horizontal);
        window.resizeDocks({docks[0]}, {500}, Qt::Vertical);
        settle();
        const QRect before = dockWidgetAreaGeometry(window, area);
        QVERIFY(TileSupport::tileDockWidgets(window, area));
        QCOMPARE(dockWidgetAreaGeometry(window, area), before);
        const int columns = expected.width();
        QSet<int> widths;
        for (int i = 0; i < count; ++i) {
            const QRect place = docks[i]->geometry();
            widths << place.width();
            QCOMPARE(place.left(), docks[i % columns]->x());
            QCOMPARE(place.top(), docks[i / columns * columns]->y());
        }
        QCOMPARE(docks.last()->y() > docks[0]->y(), expected.height() > 1);
        const auto [narrowest, widest] = std::minmax_element(widths.begin(), widths.end());
        QVERIFY(*widest - *narrowest <= 1);
    }
    void leavesAloneWhatDoesNotFit()
    {
        DockWindow window;
        const auto docks = window.addDocks({u"a"_s, u"b"_s}, left, {100, 100});
        window.show();
        settle();
        docks[0]->setMinimumSize(2000, 2000); // larger than the area, until the layout follows
        const QRect place = docks[1]->geometry();
        QVERIFY(!TileSupport::isTileDockWidgetsPossible(window, left));
        QVERIFY(!TileSupport::tileDockWidgets(window, left));
        QCOMPARE(docks[1]->geometry(), place);
    }
    void keepsTheActiveDock()
    {
        DockWindow window;
        const auto docks = window.addDocks(numbered(4));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* active = ActiveDockWidgetSupport::install(window);
        active->bringToFront(*docks[2]);
        QSignalSpy changed(active, &ActiveDockWidgetSupport::activeDockWidgetChanged);
        QVERIFY(TileSupport::install(window, all)->tileDockWidgets(left));
        settle();
        QVERIFY(TabifySupport::install(window, all)->tabifyDockWidgets(left));
        settle();
        QCOMPARE(active->activeDockWidget(), docks[2]);
        QCOMPARE(changed.size(), 0);
        QVERIFY(docks[1]->visibleRegion().isEmpty());
        // The active dock dies in the middle: what follows it is announced.
        connect(docks[0], &QDockWidget::dockLocationChanged, docks[2],
                [dock = docks[2]] { delete dock; });
        QVERIFY(TileSupport::get(window)->tileDockWidgets(left));
        QVERIFY(changed.size() > 0);
        QCOMPARE(changed.last()[0].value<QDockWidget*>(), active->activeDockWidget());
        QVERIFY(active->activeDockWidget() != docks[2]);
    }
    void offersActions()
    {
        DockWindow window;
        window.addDock(u"a"_s);
        window.show();
        settle();
        auto* tabify = TabifySupport::install(window, all);
        auto* tile = TileSupport::install(window, left | right);
        QAction& action = tile->tileDockWidgetsAction(left);
        QVERIFY(!action.isVisible());
        QSignalSpy possible(tabify,
                            &TabifySupport::isTabifyDockWidgetsPossibleInLeftDockWidgetAreaChanged);
        QDockWidget* later = new QDockWidget(u"b"_s); // not made with the window as its parent
        window.addDockWidget(left, later);
        settle();
        QVERIFY(action.isVisible());
        QVERIFY(tabify->tabifyDockWidgetsAction(left).isVisible());
        QCOMPARE(possible.last(), QVariantList{true});
        later->setFloating(true);
        QTRY_VERIFY(!action.isVisible());
        later->setFloating(false);
        settle();
        action.trigger();
        QVERIFY(later->x() > 0); // beside the other
        delete later;
        QVERIFY(!action.isVisible());
    }
    void survivesReceiversThatDestroy_data()
    {
        TestRows<int> row;
        row("the support", 0);
        row("the window", 1);
        row("a dock", 2);
        row("a rearrangement within", 3);
    }
    void survivesReceiversThatDestroy()
    {
        const auto [what] = TestRows<int>::fetch();
        QPointer<DockWindow> window = new DockWindow;
        const QPointer<QDockWidget> dock = window->addDocks(numbered(4)).first();
        window->show();
        settle();
        const QPointer<TileSupport> tile = TileSupport::install(*window, all);
        const QPointer<TabifySupport> tabify = TabifySupport::install(*window, all);
        bool used = false;
        connect(tile, &TileSupport::isTileDockWidgetsPossibleChanged, this, [&, what = what] {
            if (what == 0)
                delete tile;
            else if (what == 1)
                delete window;
            else if (what == 2)
                delete dock;
            else if (!std::exchange(used, true))
                tabify->tabifyDockWidgets(left);
        });
        QResizeEvent event(dock->size(), dock->size());
        QCoreApplication::sendEvent(dock, &event);
        settle();
        QCOMPARE(tile.isNull(), what < 2);
        QCOMPARE(window.isNull(), what == 1);
        if (window)
            QCOMPARE(TileSupport::get(*window), tile.data());
        delete window;
    }
    void losesNoDockWhenOthersDie_data()
    {
        TestRows<bool, QByteArray> row; // while the docks are placed, or while events are processed
        row("beside others", true, "1");
        row("the first", true, "0");
        row("all but one", true, "0123");
        row("in a pause", false, "1");
        row("tool bar in a pause", false, "");
    }
    void losesNoDockWhenOthersDie()
    {
        const auto& [placing, victims] = TestRows<bool, QByteArray>::fetch();
        DockWindow window;
        auto docks = window.addDocks(numbered(5), Qt::TopDockWidgetArea, {245, 50});
        QToolBar* toolBar = window.addToolBar(u"bar"_s);
        window.show();
        window.resizeDocks({docks[0]}, {500}, Qt::Vertical);
        settle();
        QList<QDockWidget*> doomed;
        for (const char victim : victims)
            doomed << docks[victim - '0'];
        const auto destroy = [&doomed, toolBar] {
            if (doomed.isEmpty())
                delete toolBar;
            qDeleteAll(std::exchange(doomed, {}));
        };
        docks.removeIf([&](QDockWidget* dock) { return doomed.contains(dock); });
        bool done = false;
        for (QDockWidget* dock : std::as_const(docks))
            connect(dock, &QDockWidget::dockLocationChanged, this, [&, isAsked = placing] {
                if (isAsked && !std::exchange(done, true))
                    destroy();
            });
        if (!placing)
            QTimer::singleShot(0, this, destroy);
        QVERIFY(TileSupport::tileDockWidgets(window, Qt::TopDockWidgetArea));
        settle();
        for (QDockWidget* dock : std::as_const(docks)) {
            QCOMPARE(window.dockWidgetArea(dock), Qt::TopDockWidgetArea);
            for (QDockWidget* other : std::as_const(docks))
                QVERIFY(other == dock || !other->geometry().intersects(dock->geometry()));
        }
    }
};

QTEST_MAIN(tst_DockAreas)
#include "tst_dockareas.moc"
