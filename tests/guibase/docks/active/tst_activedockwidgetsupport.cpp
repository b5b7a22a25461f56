// SPDX-License-Identifier: MIT
#include "support/dockwindow.h"
#include "support/guardedtest.h"

#include <guibase/docks/active/activedockwidgetsupport.h>

#include <QPointer>
#include <QTabBar>

using QMainWindowHelpers::ActiveDockWidgetSupport;

class tst_ActiveDockWidgetSupport : public GuardedTest
{
    Q_OBJECT
private:
    /// A shown window with the docks "c", "a", "b", of which the last is active, and a support that
    /// writes its signals down.
    struct Fixture
    {
        Fixture()
            : docks(window->addDocks({u"c"_s, u"a"_s, u"b"_s}))
        {
            window->show();
            window->activateWindow();
            settle();
            support = ActiveDockWidgetSupport::install(*window);
            support->bringToFront(*docks[2]);
            using Support = ActiveDockWidgetSupport;
            const auto note = [this](auto signal, const QString& what) {
                connect(support, signal, window, [this, what](const QDockWidget& dock) {
                    log << what + dock.windowTitle();
                });
            };
            note(&Support::dockWidgetAdded, u"added "_s);
            note(&Support::dockWidgetRemoved, u"removed "_s);
            note(&Support::mouseButtonReleasedOverDockWidget, u"released "_s);
            connect(support, &Support::activeDockWidgetChanged, window, [this](QDockWidget* dock) {
                log << u"active "_s + (dock ? dock->windowTitle() : u"none"_s);
            });
        }
        ~Fixture() { delete window; }
        QStringList takeLog() { return std::exchange(log, {}); }

        QPointer<DockWindow> window = new DockWindow;
        QList<QDockWidget*> docks;
        ActiveDockWidgetSupport* support = nullptr;
        QStringList log;
    };

private Q_SLOTS:
    void followsMouseAndFocus()
    {
        Fixture f;
        QTest::mouseClick(f.docks[0]->widget(), Qt::LeftButton);
        QVERIFY(f.log.contains(u"active c"_s) && f.log.contains(u"released c"_s));
        f.takeLog();
        f.docks[1]->widget()->setFocus();
        QCOMPARE(f.takeLog(), QStringList(u"active a"_s));
        f.docks[2]->setFloating(true);
        f.window->activateWindow();
        settle();
        f.takeLog();
        QTest::mouseRelease(f.window->centralWidget(), Qt::LeftButton);
        QCOMPARE(f.takeLog(), QStringList());
        f.window->tabifyDockWidget(f.docks[0], f.docks[1]);
        settle();
        auto* tabs = f.window->findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
        f.takeLog();
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
        QCOMPARE(f.takeLog(), QStringList({u"released c"_s, u"active c"_s}));
    }
    void hiddenDocksHandOn()
    {
        Fixture f;
        f.docks[2]->close();
        QCOMPARE(f.takeLog(), QStringList()); // not before the toolkit has settled
        settle();
        QCOMPARE(f.takeLog(), QStringList(u"active c"_s));
        f.docks[0]->hide(); // wraps around
        settle();
        QCOMPARE(f.takeLog(), QStringList(u"active a"_s));
        f.docks[1]->hide();
        f.docks[1]->show(); // visible again before the check
        settle();
        QTest::mousePress(f.docks[1]->widget(), Qt::LeftButton);
        f.docks[1]->hide(); // a drag is in progress
        settle();
        QCOMPARE(f.support->activeDockWidget(), f.docks[1]);
        QTest::mouseRelease(f.window->centralWidget(), Qt::LeftButton);
        f.docks[1]->show();
        f.docks[1]->hide();
        QTRY_VERIFY(f.support->activeDockWidget() == nullptr);
    }
    void docksComeAndGo()
    {
        Fixture f;
        QDockWidget* made = f.window->addDock(u"made"_s);
        QCOMPARE(f.takeLog(), QStringList());
        settle();
        QCOMPARE(f.takeLog(), QStringList({u"added made"_s, u"active made"_s}));
        auto* added = new QDockWidget(u"added"_s);
        f.window->addDockWidget(Qt::LeftDockWidgetArea, added);
        settle();
        QCOMPARE(f.takeLog(), QStringList({u"added added"_s, u"active added"_s}));
        delete new QDockWidget(f.window); // gone before it is complete to us
        DockWindow other;
        QSignalSpy changed(ActiveDockWidgetSupport::install(other),
                           &ActiveDockWidgetSupport::activeDockWidgetChanged);
        other.addDockWidget(Qt::LeftDockWidgetArea, added);
        settle();
        QCOMPARE(f.takeLog(), QStringList({u"removed added"_s, u"active a"_s}));
        QCOMPARE(changed.size(), 1);
        delete added;
        QCOMPARE(changed.last()[0].value<QDockWidget*>(), nullptr);
        delete made;
        QCOMPARE(f.takeLog(), QStringList());
        delete f.docks[1]; // the active one
        QCOMPARE(f.takeLog(), QStringList(u"active b"_s));
    }
    void docksLeaveBeforeTheyAreAnnounced()
    {
        Fixture f;
        QDockWidget* brief = f.window->addDock(u"brief"_s);
        QTest::mouseClick(brief->widget(), Qt::LeftButton);
        QVERIFY(f.takeLog().contains(u"active brief"_s));
        DockWindow other;
        other.addDockWidget(Qt::LeftDockWidgetArea, brief);
        QCOMPARE(f.takeLog(), QStringList({u"removed brief"_s, u"active a"_s}));
    }
    void survivesReceiversThatDestroy_data()
    {
        TestRows<int, int> row; // signal, victim
        for (int victim = 0; victim < 3; ++victim) {
            row.add(0, victim);
            row.add(1, victim);
        }
        row.add(2, 1); // the toolkit itself needs the others
    }
    void survivesReceiversThatDestroy()
    {
        const auto [signal, victim] = TestRows<int, int>::fetch();
        Fixture f;
        f.support->disconnect();
        f.window->addDock(u"pending"_s);
        const QPointer<QDockWidget> dock = f.docks[0];
        const QPointer<ActiveDockWidgetSupport> support = f.support;
        const auto destroy = [&, victim = victim] {
            if (victim == 0)
                delete dock;
            else if (victim == 1)
                delete support;
            else
                delete f.window;
        };
        using Support = ActiveDockWidgetSupport;
        if (signal == 0)
            connect(support, &Support::mouseButtonReleasedOverDockWidget, this, destroy);
        else if (signal == 1)
            connect(support, &Support::activeDockWidgetChanged, this, destroy);
        else
            connect(support, &Support::dockWidgetRemoved, this, destroy);
        if (signal == 2)
            dock->setParent(nullptr);
        else
            QTest::mouseRelease(dock->widget(), Qt::LeftButton);
        settle();
        QCOMPARE(support.isNull(), victim > 0);
        QCOMPARE(f.window.isNull(), victim == 2);
        if (f.window)
            QCOMPARE(ActiveDockWidgetSupport::get(*f.window), support.data());
        if (signal == 2)
            delete dock;
    }
};

QTEST_MAIN(tst_ActiveDockWidgetSupport)
#include "tst_activedockwidgetsupport.moc"
