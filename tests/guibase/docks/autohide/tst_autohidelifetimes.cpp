// SPDX-License-Identifier: MIT
#include "autohidewindow.h"

#include "support/checked.h"
#include "support/duetimers.h"
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <trovappstartup/cfgcenter.h>

#include <QPointer>

#include <functional>

/// Docks, windows and records that come and go while docks hide by themselves.
class tst_AutoHideLifetimes : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void nothingIsLeftOfClosedDocks()
    {
        AutoHideWindow w;
        const auto hides = [&w](QDockWidget* dock) {
            w.support->enableAutoHide(*dock);
            dock->hide();
            settle();
            QVERIFY(w.isOn(dock) && !w.buttons(dock).isEmpty());
        };
        CHECKED(hides(w.left));
        w.left->show();
        QCloseEvent refused;
        QCoreApplication::sendEvent(w.left, &refused);
        settle();
        CHECKED(hides(w.left));
        w.left->show();
        w.left->close();
        CHECKED(hides(w.right));
        w.right->setFloating(false);
        settle();
        for (QDockWidget* dock : {w.left, w.right})
            QVERIFY(!w.isOn(dock) && w.buttons(dock).isEmpty());
        CHECKED(hides(w.right));
        w.window->removeDockWidget(w.right);
        settle();
        QVERIFY(!w.isOn(w.right) && w.buttons(w.right).isEmpty());
    }
    void docksThatComeAndGo()
    {
        AutoHideWindow w;
        QDockWidget* late = w.addDock(QString(), Qt::RightDockWidgetArea); // without any title
        settle();
        w.support->enableAutoHide(*w.right);
        w.support->enableAutoHide(*late);
        QVERIFY(late->isVisible() && !w.right->isVisible()); // it would be covered
        w.support->disableAutoHide(*w.right);
        QDockWidget* twin = w.addDock(u"left"_s, Qt::LeftDockWidgetArea);
        w.support->enableAutoHide(*twin);
        QVERIFY(w.buttons(w.left).isEmpty());

        QMainWindow other;
        AutoHideSupport::install(other, bothSides);
        leave(twin);
        other.addDockWidget(Qt::LeftDockWidgetArea, twin);
        other.show();
        QVERIFY(!w.isOn(twin) && w.buttons(twin).isEmpty());
        AutoHideSupport::autoHideAction(*twin)->setChecked(true);
        QVERIFY(w.buttons(twin).isEmpty());
        QVERIFY(twin->isFloating());

        leave(late);
        delete late;
        QTRY_COMPARE(w.bar(Qt::RightToolBarArea)->width(), 0);
        // Dies before the main window has told that it came.
        QDockWidget* brief = w.addDock(u"brief"_s, Qt::RightDockWidgetArea);
        w.support->enableAutoHide(*brief);
        delete brief;
        QTRY_COMPARE(w.bar(Qt::RightToolBarArea)->width(), 0);
    }
    void dockLeavesBeforeItsCheckedActionCounts()
    {
        AutoHideWindow w;
        DockWindow other;
        auto* dock = new QDockWidget;
        AutoHideSupport::createAutoHideAction(*dock)->setChecked(true);
        w.window->addDockWidget(Qt::LeftDockWidgetArea, dock);
        other.addDockWidget(Qt::LeftDockWidgetArea, dock);
        w.window.reset();
        settle();
        QVERIFY(!dock->isFloating());
    }
    void windowDiesWithPendingDock()
    {
        auto w = std::make_unique<AutoHideWindow>();
        w->support->setAutoHideDelay(0);
        w->support->enableAutoHide(*w->left);
        leave(w->left);
        const QPointer<AutoHideSupport> support(w->support);
        // It dies in the middle of an operation, too.
        QDockWidget* right = w->right;
        connect(AutoHideSupport::autoHideAction(*right), &QAction::toggled, support,
                [&w] { w.reset(); });
        support->enableAutoHide(*right);
        QVERIFY(support.isNull());
        letTimersFire();
    }
    void supportLeavesItsWindow()
    {
        AutoHideWindow w;
        w.support->enableAutoHide(*w.left);
        w.support->setParent(nullptr);
        QVERIFY(!w.isOn(w.left) && !w.left->isFloating());
        QVERIFY(AutoHideSupport::get(*w.window) == nullptr);
        w.window.reset();
        DockWindow other;
        w.support->enableAutoHide(*other.addDock(u"dock"_s));
        delete w.support;
    }
    void stateSurvivesRestart()
    {
        {
            AutoHideWindow w;
            w.support->setStorageName(u"main"_s);
            w.support->enableAutoHide(*w.right);
            w.support->setPopupOnHoverEnabled(false);
            delete w.left;
            delete w.right; // as an application may do at its end
            QTRY_COMPARE(w.bar(Qt::RightToolBarArea)->width(), 0);
        }
        AutoHideWindow w;
        w.support->setStorageName(u"main"_s);
        QVERIFY(w.isOn(w.right));
        QVERIFY(!w.isOn(w.left));
        QVERIFY(w.right->isFloating() && !w.right->isVisible());

        const QByteArray state = w.support->saveState();
        w.support->disableAutoHide(*w.right);
        QVERIFY(w.right->isVisible()); // not lost without its button
        w.support->enableAutoHide(*w.left);
        QVERIFY(w.support->restoreState(state));
        QCOMPARE(w.support->saveState(), state);
        w.right->hide();
        enter(w.buttons(w.right).first());
        QVERIFY(!w.right->isVisible());
        w.support->setPopupOnHoverEnabled(true);
        enter(w.buttons(w.right).first());
        QVERIFY(w.right->isVisible());
    }
    void damagedStateChangesNothing()
    {
        AutoHideWindow w;
        w.support->enableAutoHide(*w.right);
        const QByteArray state = w.support->saveState();
        w.support->disableAutoHide(*w.right);
        const QByteArray before = w.support->saveState();
        RandomBytes random("auto-hide state");
        for (int round = RandomBytes::rounds(300); round > 0; --round) {
            const QByteArray mutant = random.mutated(state);
            if (mutant == state)
                continue;
            // A checksum of 16 bits lets one in 65,536 through.
            if (w.support->restoreState(mutant))
                QVERIFY(w.support->restoreState(before));
            QCOMPARE(w.support->saveState(), before);
        }
        const auto section = CfgCenter::GetAppCfg(LayoutView)->OpenSubCfg(u"Auto hide"_s);
        section->SetString(u"main"_s, u"4741zz"_s);
        w.support->setStorageName(u"main"_s);
        w.support->enableAutoHide(*w.right);
        QCOMPARE(section->GetString(u"main_damaged"_s), u"4741zz"_s);
    }
    void randomWalk()
    {
        RandomBytes random("auto-hide walk");
        AutoHideWindow w;
        w.support->setAutoHideDelay(0);
        QList<QPointer<QDockWidget>> docks{w.left, w.right};
        int made = 0;
        for (int step = RandomBytes::rounds(400); step > 0; --step) {
            docks.removeAll(nullptr);
            if (docks.size() < 3) {
                ++made;
                docks << w.addDock(u"dock %1"_s.arg(made),
                                   made % 2 ? Qt::LeftDockWidgetArea : Qt::BottomDockWidgetArea);
            }
            QDockWidget* dock = docks.at(random.below(static_cast<int>(docks.size())));
            QDockWidget* other = docks.at(random.below(static_cast<int>(docks.size())));
            const std::function<void()> steps[] = {
                [&] { w.support->setAutoHideEnabled(*dock, random.below(2) != 0); },
                [&] { dock->setFloating(!dock->isFloating()); },
                [&] { dock->setVisible(!dock->isVisible()); },
                [&] { enter(dock); },
                [&] { leave(dock); },
                [&] { dock->close(); },
                [&] { delete dock; },
                [&] { w.window->removeDockWidget(dock); },
                [&] { w.window->addDockWidget(Qt::RightDockWidgetArea, dock); },
                [&] { w.window->tabifyDockWidget(dock, other); },
                [&] { w.support->restoreState(w.support->saveState()); },
                [&] {
                    for (QToolButton* button : w.buttons(dock)) {
                        enter(button);
                        button->click();
                        leave(button);
                    }
                },
                [] { QCoreApplication::processEvents(); },
            };
            steps[random.below(std::size(steps))]();
            bool anyOn = false;
            for (const QPointer<QDockWidget>& each : std::as_const(docks)) {
                if (!each)
                    continue;
                const bool on = w.isOn(each);
                anyOn = anyOn || on;
                QCOMPARE(w.buttons(each).size(), on ? 1 : 0);
                QVERIFY(!on || each->isFloating() || !each->isVisible());
            }
            const auto width = [&w](auto area) { return w.bar(area)->maximumWidth(); };
            QCOMPARE(width(Qt::LeftToolBarArea) + width(Qt::RightToolBarArea) > 0, anyOn);
        }
    }
};

QTEST_MAIN(tst_AutoHideLifetimes)
#include "tst_autohidelifetimes.moc"
