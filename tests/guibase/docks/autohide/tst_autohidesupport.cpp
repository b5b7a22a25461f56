// SPDX-License-Identifier: MIT
#include "autohidewindow.h"

#include "support/checked.h"
#include "support/duetimers.h"
#include "support/guardedtest.h"
#include "support/windowmanager.h"

#include <guibase/docks/maximizeminimizesupport.h>

#include <jtbase/qobjecthelpers.h>

#include <QDialog>
#include <QMenu>
#include <QWindow>

class tst_AutoHideSupport : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void installKeepsToItsAreas()
    {
        DockWindow window;
        AutoHideSupport* support = AutoHideSupport::install(window, Qt::AllToolBarAreas);
        QCOMPARE(support->toolBarAreas(), bothSides);
        QCOMPARE(AutoHideSupport::install(window, Qt::AllToolBarAreas), nullptr);
        DockWindow other;
        QVERIFY(AutoHideSupport::install(other, Qt::TopToolBarArea) != nullptr);
        QVERIFY(other.findChildren<QToolBar*>().isEmpty());
        QDockWidget* dock = other.addDock(u"dock"_s);
        QAction* action = AutoHideSupport::createAutoHideAction(*dock);
        action->setChecked(true);
        QVERIFY(!action->isChecked() && !dock->isFloating());
    }
    void enablingFloatsAndShowsOneButton()
    {
        AutoHideWindow w;
        AutoHideSupport::autoHideAction(*w.right)->setChecked(true);
        QVERIFY(w.right->isFloating());
        QCOMPARE(w.buttons(w.right).size(), 1);
        QToolBar* bar = w.bar(Qt::RightToolBarArea);
        QCOMPARE(w.buttons(w.right).first()->arrowType(), Qt::LeftArrow);
        QTRY_COMPARE(bar->width(), 24);
        QCOMPARE(w.bar(Qt::LeftToolBarArea)->width(), 0);
        const auto expected = [&] {
            const QRect beside(-w.right->width(), 0, w.right->width(), bar->height());
            return beside.translated(bar->mapToGlobal(QPoint(0, 0)));
        };
        QTRY_COMPARE(w.right->geometry(), expected());
        w.right->resize(2000, 100);
        w.window->resize(700, 400);
        QTRY_COMPARE(w.right->geometry(), expected());
        QCOMPARE(w.right->width(), 700 - 24); // not beyond the window
        AutoHideSupport::autoHideAction(*w.right)->setChecked(false);
        QVERIFY(!w.right->isFloating());
        QTRY_COMPARE(bar->width(), 0);
    }
    void popsUpInItsNormalState()
    {
        AutoHideWindow w;
        w.support->setAutoHideDelay(100'000); // the pointer leaves when the dock shrinks
        auto* states = QDockWidgetHelpers::MaximizeMinimizeSupport::install(*w.left);
        const auto canChange = [states] {
            return states->maximizeDockWidgetAction().isVisible() ||
                   states->minimizeDockWidgetAction().isVisible();
        };
        w.support->setSyncAutoHideWithFloatingEnabled(false);
        w.left->setFloating(true);
        QTRY_VERIFY(canChange());
        QVERIFY(states->maximizeDockWidget());
        w.support->enableAutoHide(*w.left);
        QVERIFY(!canChange());
        QCOMPARE(states->dockWidgetState(),
                 QDockWidgetHelpers::MaximizeMinimizeSupport::State::Normal);
        w.left->hide();
        w.buttons(w.left).first()->click();
        settle();
        QTRY_VERIFY(w.left->isVisible() && !w.left->isMaximized() && !canChange());
        w.support->disableAutoHide(*w.left);
        QVERIFY(canChange());
    }
    void sideFollowsChoice()
    {
        AutoHideWindow w;
        for (const auto side : {Qt::TopToolBarArea, Qt::RightToolBarArea}) {
            w.support->setSelectToolBarAreaFn([side](const QMainWindow&, const QDockWidget&,
                                                     QFlags<Qt::ToolBarArea>) { return side; });
            w.support->enableAutoHide(*w.left);
            QCOMPARE(w.isOn(w.left), side == Qt::RightToolBarArea);
            QCOMPARE(w.left->isFloating(), side == Qt::RightToolBarArea);
        }
        QCOMPARE(w.buttons(w.left).first()->parentWidget(), w.bar(Qt::RightToolBarArea));

        const auto byPosition = &AutoHideSupport::selectToolBarAreaByDockWidgetScreenPosition;
        QCOMPARE(byPosition(*w.window, *w.right, {}), Qt::RightToolBarArea);
        w.right->setFloating(true);
        w.right->move(w.window->pos());
        QCOMPARE(byPosition(*w.window, *w.right, {}), Qt::LeftToolBarArea);
    }
    void hidesAfterTheMouseHasLeft()
    {
        if (QGuiApplication::platformName() != u"offscreen"_s)
            QSKIP("The real pointer would join in.");
        AutoHideWindow w;
        w.support->enableAutoHide(*w.left);
        w.support->enableAutoHide(*w.right);
        w.support->setAutoHideDelay(100'000);
        leave(w.left);
        enter(w.left); // back in time
        leave(w.left);
        enter(w.right); // another dock: at once
        QVERIFY(!w.left->isVisible());
        QVERIFY(w.right->isVisible());
        w.support->setAutoHideDelay(20);
        QCursor::setPos(w.right->mapToGlobal(QPoint(10, 10)));
        leave(w.right); // into a child
        w.buttons(w.left).first()->click();
        leave(w.buttons(w.left).first());
        QTRY_VERIFY(!w.left->isVisible());
        QVERIFY(w.right->isVisible());
        QCursor::setPos(outside);
        leave(w.right);
        QTRY_VERIFY(!w.right->isVisible());
    }
    void pointerOpensAndCloses()
    {
        if (QGuiApplication::platformName() == u"offscreen"_s)
            QSKIP("Needs a real pointer.");
        AutoHideWindow w;
        QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
        w.support->setAutoHideDelay(300); // for a pointer that comes late on a busy machine
        w.support->enableAutoHide(*w.left);
        // When it is hidden before the window manager has shown it, it may never count as exposed.
        QVERIFY(QTest::qWaitForWindowExposed(w.left));
        w.left->hide();
        const QToolButton* button = w.buttons(w.left).first();
        QTRY_COMPARE(button->parentWidget()->width(), 24);
        const auto edge = [&] { return button->parentWidget()->mapToGlobal(QPoint(24, 0)); };
        // The window manager may still be moving the window, and with it the button.
        const auto isOpenAtTheEdge = [&] {
            QCursor::setPos(button->mapToGlobal(button->rect().center()));
            const QWindow* handle = w.left->windowHandle();
            return w.left->isVisible() && handle != nullptr && handle->isExposed() &&
                   w.left->geometry().topLeft() == edge();
        };
        QTRY_VERIFY(isOpenAtTheEdge());
        QCursor::setPos(w.left->geometry().center());
        QTRY_VERIFY(w.left->underMouse());
        letTimersFire(300); // the delay since the mouse has left the button
        QVERIFY(w.left->isVisible());
        QCursor::setPos(w.window->geometry().center());
        QTRY_VERIFY(!w.left->isVisible());
    }
    void staysInTheWindowWithoutPlaces()
    {
        const NoPlaces noPlaces;
        AutoHideWindow w;
        w.right->setFloating(true);
        for (QDockWidget* dock : {w.left, w.right}) {
            w.support->enableAutoHide(*dock);
            QVERIFY(!dock->isFloating() && w.isOn(dock));
        }
        QCOMPARE(w.buttons(w.right).first()->parentWidget(), w.bar(Qt::RightToolBarArea));
        leave(w.left);
        leave(w.right);
        QTRY_VERIFY(!w.left->isVisible() && !w.right->isVisible());
        settle();
        QVERIFY(w.isOn(w.left) && w.isOn(w.right));

        // The pointer goes over the button into the dock, and leaves the window.
        QToolButton* button = w.buttons(w.left).first();
        enter(button);
        QVERIFY(w.left->isVisible());
        QCOMPARE(w.window->dockWidgetArea(w.left), Qt::LeftDockWidgetArea);
        leave(button);
        enter(w.left);
        letTimersFire(60); // the delay since the mouse has left the button
        QVERIFY(w.left->isVisible());
        leave(w.left);
        QTRY_VERIFY(!w.left->isVisible());

        w.support->disableAutoHide(*w.left);
        QVERIFY(w.left->isVisible() && !w.left->isFloating());
        // The user has found another place for it.
        w.right->show();
        w.right->setFloating(true);
        QTRY_VERIFY(!w.isOn(w.right));
        QVERIFY(w.right->isFloating());
    }
    void ownWindowsKeepItOpen()
    {
        AutoHideWindow w;
        w.support->setAutoHideDelay(1);
        int delays = 0;
        const QObjectHelpers::EventFilter counter(
            w.support, [&delays](const QObject*, const QEvent* event) {
                delays += event->type() == QEvent::Timer ? 1 : 0;
                return false;
            });
        w.support->enableAutoHide(*w.left);
        QDialog dialog(w.left);
        QMenu menu(w.left->widget());
        QMenu shared(w.window.get());
        for (QMenu* each : {&menu, &shared})
            each->addAction(u"entry"_s);
        for (QWidget* own : std::initializer_list<QWidget*>{&menu, &shared, &dialog}) {
            w.left->show();
            if (own != &dialog && QGuiApplication::platformName() == u"offscreen"_s)
                QTest::ignoreMessage(QtWarningMsg,
                                     "This plugin does not support grabbing the keyboard");
            own->show();
            delays = 0;
            leave(w.left);
            QTRY_VERIFY(delays >= 2);
            QVERIFY(w.left->isVisible());
            own->close();
            QTRY_VERIFY(!w.left->isVisible());
        }
    }
    void keysShowAndDismiss()
    {
        AutoHideWindow w;
        w.support->setAutoHideDelay(100'000);
        w.support->enableAutoHide(*w.left);
        w.left->hide();
        QToolButton* button = w.buttons(w.left).first();
        w.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
        // A real key brings the X server's time with it, as the pointer does: the requests of a
        // client that is behind the time count for outdated.
        const auto press = [&w](QWidget* widget, Qt::Key key) {
            const QWidget* central = w.window->centralWidget();
            const bool inside = !central->underMouse();
            QCursor::setPos(inside ? central->mapToGlobal(central->rect().center()) : outside);
            QTRY_COMPARE(central->underMouse(), inside);
            QTest::keyClick(widget, key);
        };
        // Which window is active is for the window manager to say.
        const bool isManaged = QGuiApplication::platformName() != u"offscreen"_s;
        const auto focusIn = [isManaged](const QWidget* window) {
            return isManaged ? window->focusWidget() : QApplication::focusWidget();
        };
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            button->setFocus();
            CHECKED(press(button, key));
            QTRY_COMPARE(focusIn(w.left), w.left->widget());
            CHECKED(press(w.left->widget(), Qt::Key_Escape));
            QVERIFY(!w.left->isVisible());
            QTRY_COMPARE(focusIn(w.window.get()), button);
        }
    }
    void dockingLeavesTheMode()
    {
        AutoHideWindow w;
        w.support->enableAutoHide(*w.left);
        w.support->enableAutoHide(*w.right);
        const QByteArray layout = w.window->saveState();
        leave(w.right);
        w.left->setFloating(false);
        QVERIFY(!w.isOn(w.left));
        QVERIFY(!w.right->isVisible()); // it was pending
        QVERIFY(w.isOn(w.right));
        // A layout that has the docks floating does not end the mode.
        QVERIFY(w.window->restoreState(layout));
        QCoreApplication::processEvents();
        QVERIFY(w.isOn(w.right));

        w.support->setAllowAutoHideOfNonFloatingEnabled(true);
        w.support->setSyncAutoHideWithFloatingEnabled(false);
        w.left->setFloating(false);
        w.support->enableAutoHide(*w.left);
        QVERIFY(!w.left->isFloating());
        QVERIFY(w.isOn(w.left));
    }
};

QTEST_MAIN(tst_AutoHideSupport)
#include "tst_autohidesupport.moc"
