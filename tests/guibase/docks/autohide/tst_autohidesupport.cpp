// SPDX-License-Identifier: MIT
#include "support/dockwindow.h"
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/dockwidgetconfigurator.h>
#include <guibase/docks/maximizeminimizesupport.h>

#include <trovappstartup/cfgcenter.h>

#include <QAction>
#include <QDialog>
#include <QEnterEvent>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

#include <functional>
#include <memory>

using QMainWindowHelpers::AutoHideSupport;

namespace {

const QFlags<Qt::ToolBarArea> bothSides = Qt::LeftToolBarArea | Qt::RightToolBarArea;
/// Outside all windows, and not in the corner where a window manager lets new ones appear.
constexpr QPoint outside(5, 790);

/// A shown main window with support, and two docks: "left" and "right".
struct Window
{
    Window()
    {
        window->resize(800, 500);
        window->move(300, 100);
        left = addDock(u"left"_s, Qt::LeftDockWidgetArea);
        right = addDock(u"right"_s, Qt::RightDockWidgetArea);
        support = AutoHideSupport::install(*window, bothSides);
        support->setAutoHideDelay(20);
        window->show();
        QCursor::setPos(outside);
        QCoreApplication::processEvents();
    }

    QDockWidget* addDock(const QString& name, Qt::DockWidgetArea area)
    {
        QDockWidget* dock = window->addDock(name, area);
        dock->setObjectName(name);
        QDockWidgetHelpers::DockWidgetConfigurator().withAutoHideSupport(true).configure(*dock);
        return dock;
    }
    QToolBar* bar(Qt::ToolBarArea area) const
    {
        return window->findChild<QToolBar*>(u"ToolBar: %1"_s.arg(int(area)));
    }
    /// The buttons that stand for the dock and can be seen.
    QList<QToolButton*> buttons(const QObject* dock) const
    {
        QList<QToolButton*> found;
        for (const QToolBar* toolBar : {bar(Qt::LeftToolBarArea), bar(Qt::RightToolBarArea)}) {
            const QList<QAction*> actions = toolBar->actions();
            for (QAction* action : actions) {
                const QVariant stands =
                    action->property("QMainWindowHelpers_AutoHideSupport_dockWidget");
                if (action->isVisible() && stands.value<QObject*>() == dock)
                    found << qobject_cast<QToolButton*>(toolBar->widgetForAction(action));
            }
        }
        return found;
    }
    bool isOn(QDockWidget* dock) const
    {
        return AutoHideSupport::autoHideAction(*dock)->isChecked();
    }

    std::unique_ptr<DockWindow> window = std::make_unique<DockWindow>();
    QDockWidget* left = nullptr;
    QDockWidget* right = nullptr;
    AutoHideSupport* support = nullptr;
};

void enter(QWidget* widget)
{
    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), widget->mapToGlobal(QPointF(1, 1)));
    QCoreApplication::sendEvent(widget, &event);
}
void leave(QWidget* widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

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
        Window w;
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
        Window w;
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
        Window w;
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
        Window w;
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
        Window w;
        QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
        w.support->setAutoHideDelay(300); // for a pointer that comes late on a busy machine
        w.support->enableAutoHide(*w.left);
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
        QTest::qWait(400);
        QVERIFY(w.left->isVisible());
        QCursor::setPos(w.window->geometry().center());
        QTRY_VERIFY(!w.left->isVisible());
    }
    void ownWindowsKeepItOpen()
    {
        Window w;
        w.support->setAutoHideDelay(1);
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
            leave(w.left);
            QTest::qWait(30); // several delays
            QVERIFY(w.left->isVisible());
            own->close();
            QTRY_VERIFY(!w.left->isVisible());
        }
    }
    void keysShowAndDismiss()
    {
        Window w;
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
            press(button, key);
            QTRY_COMPARE(focusIn(w.left), w.left->widget());
            press(w.left->widget(), Qt::Key_Escape);
            QVERIFY(!w.left->isVisible());
            QTRY_COMPARE(focusIn(w.window.get()), button);
        }
    }
    void dockingLeavesTheMode()
    {
        Window w;
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
    void nothingIsLeftOfClosedDocks()
    {
        Window w;
        const auto hides = [&w](QDockWidget* dock) {
            w.support->enableAutoHide(*dock);
            dock->hide();
            settle();
            QVERIFY(w.isOn(dock) && !w.buttons(dock).isEmpty());
        };
        hides(w.left);
        w.left->show();
        QCloseEvent refused;
        QCoreApplication::sendEvent(w.left, &refused);
        settle();
        hides(w.left);
        w.left->show();
        w.left->close();
        hides(w.right);
        w.right->setFloating(false);
        settle();
        for (QDockWidget* dock : {w.left, w.right})
            QVERIFY(!w.isOn(dock) && w.buttons(dock).isEmpty());
        hides(w.right);
        w.window->removeDockWidget(w.right);
        settle();
        QVERIFY(!w.isOn(w.right) && w.buttons(w.right).isEmpty());
    }
    void docksThatComeAndGo()
    {
        Window w;
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
        Window w;
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
        auto w = std::make_unique<Window>();
        w->support->enableAutoHide(*w->left);
        leave(w->left);
        const QPointer<AutoHideSupport> support(w->support);
        // It dies in the middle of an operation, too.
        QDockWidget* right = w->right;
        connect(AutoHideSupport::autoHideAction(*right), &QAction::toggled, support,
                [&w] { w.reset(); });
        support->enableAutoHide(*right);
        QVERIFY(support.isNull());
        QTest::qWait(40); // the delay has passed
    }
    void supportLeavesItsWindow()
    {
        Window w;
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
            Window w;
            w.support->setStorageName(u"main"_s);
            w.support->enableAutoHide(*w.right);
            w.support->setPopupOnHoverEnabled(false);
            delete w.left;
            delete w.right; // as an application may do at its end
            QTRY_COMPARE(w.bar(Qt::RightToolBarArea)->width(), 0);
        }
        Window w;
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
        Window w;
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
        Window w;
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

QTEST_MAIN(tst_AutoHideSupport)
#include "tst_autohidesupport.moc"
