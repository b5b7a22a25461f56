// SPDX-License-Identifier: MIT
#include "support/checked.h"
#include "support/dockwindow.h"
#include "support/guardedtest.h"
#include "support/windowmanager.h"

#include <guibase/docks/enhanceddockwidgettitlebar.h>
#include <guibase/docks/maximizeminimizesupport.h>

#include <QAction>
#include <QPointer>
#include <QProcess>
#include <QToolButton>
#include <QWindow>

using QDockWidgetHelpers::MaximizeMinimizeSupport;
using State = QDockWidgetHelpers::MaximizeMinimizeSupport_DockWidgetState;

class tst_MaximizeMinimizeSupport : public GuardedTest
{
    Q_OBJECT
    struct Fixture
    {
        Fixture()
            : support(MaximizeMinimizeSupport::install(*dock))
        {
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            settle();
        }
        void floatDock()
        {
            dock->setFloating(true);
            dock->setGeometry(geometry);
            QVERIFY(QTest::qWaitForWindowExposed(dock));
            QTRY_COMPARE(visibleActions(), u"110"_s);
            QTRY_COMPARE(dock->geometry(), geometry);
        }
        /// A digit for each of maximize, minimize, restore.
        QString visibleActions() const
        {
            QString shown;
            for (const QAction* action :
                 {&support->maximizeDockWidgetAction(), &support->minimizeDockWidgetAction(),
                  &support->restoreDockWidgetAction()})
                shown += action->isVisible() && action->isEnabled() ? u'1' : u'0';
            return shown;
        }

        const QRect geometry{250, 160, 410, 330};
        DockWindow window;
        QDockWidget* dock = window.addDock(u"dock"_s);
        MaximizeMinimizeSupport* support;
    };

private Q_SLOTS:
    void readsStates()
    {
        const std::pair<const char*, int> texts[] = {
            {" MIN\t", State::Minimized}, {"m", State::Maximized}, {"Minimized!", -1}, {"", -1}};
        for (const auto& [text, expected] : texts) {
            bool ok = false;
            const int state = State::fromString(QString::fromLatin1(text), &ok);
            QCOMPARE(ok ? state : -1, expected);
        }
    }
    void dockedDocksCanDoNothing()
    {
        Fixture f;
        QCOMPARE(f.visibleActions(), u"000"_s);
        QVERIFY(!f.support->maximizeDockWidget() && !f.support->minimizeDockWidget() &&
                !f.support->restoreDockWidget());
        QVERIFY(MaximizeMinimizeSupport::install(*f.dock) == f.support);
    }
    void maximizesAndRestores()
    {
        Fixture f;
        CHECKED(f.floatDock());
        QStringList log;
        using Support = MaximizeMinimizeSupport;
        const auto note = [&log](const QString& what) {
            return [&log, what](int value) { log << what + QString::number(value); };
        };
        connect(f.support, &Support::isMaximizeDockWidgetPossibleChanged, this, note(u"max"_s));
        connect(f.support, &Support::isMinimizeDockWidgetPossibleChanged, this, note(u"min"_s));
        connect(f.support, &Support::isRestoreDockWidgetPossibleChanged, this, note(u"restore"_s));
        connect(f.support, &Support::dockWidgetStateChanged, this, note(u"state"_s));
        f.support->maximizeDockWidgetAction().trigger();
        QTRY_VERIFY(f.dock->width() > 700);
        QVERIFY(!f.support->maximizeDockWidget());
        QCOMPARE(log, QStringList({u"max0"_s, u"restore1"_s, u"state1"_s}));
        QCOMPARE(f.visibleActions(), u"011"_s);
        log.clear();
        f.support->restoreDockWidgetAction().trigger();
        QTRY_COMPARE(f.dock->geometry(), f.geometry);
        settle();
        QCOMPARE(f.dock->geometry(), f.geometry);
        QCOMPARE(log, QStringList({u"max1"_s, u"restore0"_s, u"state0"_s}));
    }
    void comesBackMaximized()
    {
        Fixture f;
        CHECKED(f.floatDock());
        QVERIFY(f.support->maximizeDockWidget());
        QTRY_VERIFY(f.dock->width() > 700);
        f.dock->setFloating(false);
        QTRY_COMPARE(f.visibleActions(), u"000"_s);
        settle();
        QVERIFY(!f.dock->isMaximized());
        f.dock->setFloating(true);
        QTRY_VERIFY(f.dock->isMaximized());
        QTRY_COMPARE(f.visibleActions(), u"011"_s);
        QTRY_VERIFY(f.dock->width() > 700);
        f.dock->hide(); // and the pending step must not show it again
        settle();
        QVERIFY(!f.dock->isVisible());
        f.dock->show();
        QTRY_COMPARE(f.visibleActions(), u"011"_s);
        QVERIFY(f.support->restoreDockWidget());
        QTRY_COMPARE(f.dock->geometry(), f.geometry);
    }
    void leavesTheUsersDoingAlone()
    {
        Fixture f;
        CHECKED(f.floatDock());
        f.dock->setWindowState(Qt::WindowMaximized);
        QTRY_COMPARE(f.visibleActions(), u"011"_s);
        QTRY_VERIFY(f.dock->width() > 700);
        QCOMPARE(f.support->dockWidgetState(), State::Normal);
        f.dock->setWindowState(Qt::WindowNoState);
        QTRY_COMPARE(f.visibleActions(), u"110"_s);
        QVERIFY(f.support->minimizeDockWidget());
        // A compositor does not tell which windows it has minimized.
        if (WindowSystem::placesWindows()) {
            if (QGuiApplication::platformName() != u"offscreen"_s)
                QTRY_VERIFY(!f.dock->windowHandle()->isExposed());
            settle();
            // It may still pass for maximized, too.
            QTRY_VERIFY(f.visibleActions().endsWith(u"01"_s));
        }
        QCOMPARE(f.support->dockWidgetState(), State::Minimized);
        f.dock->setWindowState(Qt::WindowNoState); // as from a task bar
        QTRY_COMPARE(f.visibleActions(), u"110"_s);
        settle();
        QVERIFY(!f.dock->isMinimized());
        QTRY_COMPARE(f.dock->geometry(), f.geometry);
        f.dock->setWindowState(Qt::WindowMaximized);
        QTRY_VERIFY(f.dock->width() > 700);
        // Nor does it bring them back for the program.
        if (WindowSystem::placesWindows())
            QVERIFY(f.support->minimizeDockWidget());
        QVERIFY(f.support->restoreDockWidget());
        QTRY_COMPARE(f.dock->geometry(), f.geometry);
    }
    /// Where nobody tells that a window is minimized, it does not count as such for ever.
    void forgetsWhatNobodyTells()
    {
        Fixture f;
        CHECKED(f.floatDock());
        const NoPlaces noPlaces;
        QVERIFY(f.support->minimizeDockWidget());
        f.dock->setWindowState(Qt::WindowNoState); // what the toolkit does there
        QTRY_COMPARE_WITH_TIMEOUT(f.support->dockWidgetState(), State::Normal, 60'000);
        f.dock->hide();
        f.dock->show();
        QTRY_COMPARE(f.visibleActions(), u"110"_s);
        QVERIFY(!f.dock->isMinimized());
    }
    void isAWindowThatManagersMaximize()
    {
        if (QGuiApplication::platformName() != u"xcb"_s)
            QSKIP("Other window systems have no types of windows.");
        Fixture f;
        for (int round = 0; round < 2; ++round) {
            CHECKED(f.floatDock());
            QProcess xprop;
            xprop.start(u"xprop"_s, {u"-id"_s, QString::number(f.dock->winId()),
                                     u"_NET_WM_WINDOW_TYPE"_s, u"WM_TRANSIENT_FOR"_s});
            QVERIFY(xprop.waitForFinished());
            const QByteArray properties = xprop.readAll();
            QVERIFY2(properties.contains("= _NET_WM_WINDOW_TYPE_NORMAL,"), properties);
            QVERIFY2(properties.contains("window id #"), properties); // above its main window
            f.dock->setFloating(false);
            QTRY_COMPARE(f.visibleActions(), u"000"_s);
        }
    }
    /// Late messages of the window manager give the toolkit a wrong place, every third time or so.
    void floatsWhereItWas()
    {
        for (const bool byButton : {true, true, true, false, false, false}) {
            Fixture f;
            auto* bar = new EnhancedDockWidgetTitleBar(*f.dock);
            f.dock->setTitleBarWidget(bar);
            settle();
            const QPoint place = f.dock->mapToGlobal(QPoint(0, 0));
            if (byButton)
                bar->findChild<QToolButton*>(u"floatButton"_s)->click();
            else
                QTest::mouseDClick(bar, Qt::LeftButton, {}, bar->rect().center());
            QVERIFY(f.dock->isFloating());
            QVERIFY(QTest::qWaitForWindowExposed(f.dock));
            QVERIFY(windowManagerIsReady());
            QCOMPARE(f.dock->geometry().topLeft(), place);
        }
    }
    void survivesReceiversThatDestroy()
    {
        for (const bool dockItself : {true, false}) {
            Fixture f;
            CHECKED(f.floatDock());
            const QPointer<QDockWidget> dock = f.dock;
            connect(f.support, &MaximizeMinimizeSupport::isMaximizeDockWidgetPossibleChanged, this,
                    [&] { delete (dockItself ? f.dock : static_cast<QObject*>(f.support)); });
            f.support->maximizeDockWidget();
            QCOMPARE(dock.isNull(), dockItself);
            settle();
        }
    }
};

QTEST_MAIN(tst_MaximizeMinimizeSupport)
#include "tst_maximizeminimizesupport.moc"
