// SPDX-License-Identifier: MIT
#include "centre/bandview.h"
#include "mainwindow.h"
#include "support/checked.h"
#include "support/guardedtest.h"

#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/services/guibase.h>
#include <guibase/splitters/splitter.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>

using namespace bandmonitor;

class tst_PanelDocks : public GuardedTest
{
    Q_OBJECT
    std::unique_ptr<MainWindow> m_window;

    /// At first of a size that fits on any screen with its frame.
    void makeWindow(QSize size = {700, 600}, const QString& name = QStringLiteral("main"))
    {
        m_window = std::make_unique<MainWindow>();
        m_window->resize(size);
        GuiBase::Instance().RegisterPersistentWidget(m_window.get(), name);
        m_window->announceModes();
        m_window->complete();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void closeWindow()
    {
        GuiBase::Instance().UnregisterPersistentWidget(m_window.get());
        m_window.reset();
    }

    QDockWidget& dock(const char* name) const
    {
        return *m_window->panelDocks().dock(QString::fromLatin1(name));
    }

    /// Everything that the user sees of the layout.
    QString layout() const
    {
        QCoreApplication::processEvents();
        QString text = QStringLiteral("%1x%2").arg(m_window->width()).arg(m_window->height());
        for (const QDockWidget* panel : m_window->panelDocks().docks()) {
            const QAction* hides = QMainWindowHelpers::AutoHideSupport::autoHideAction(*panel);
            text += QLatin1Char('\n') + panel->windowTitle();
            if (hides->isChecked())
                text += QLatin1String(" hides itself");
            else if (panel->isHidden())
                text += QLatin1String(" hidden");
            else if (panel->visibleRegion().isEmpty())
                QDebug(&text) << "behind a tab"
                              << m_window->dockWidgetArea(const_cast<QDockWidget*>(panel));
            else
                QDebug(&text) << panel->geometry()
                              << m_window->dockWidgetArea(const_cast<QDockWidget*>(panel));
        }
        QDebug(&text) << m_window->bandView().splitter()->sizes();
        return text;
    }

    void prepare() override { makeWindow(); }
    void tidy() override { closeWindow(); }

private Q_SLOTS:
    void layoutComesToRest()
    {
        QSignalSpy laidOut(QMainWindowHelpers::TabifySupport::get(*m_window),
                           &QMainWindowHelpers::TabifySupport::isTabifyDockWidgetsPossibleChanged);
        const auto isAtRest = [&laidOut] {
            laidOut.clear();
            for (int round = 0; round < 10; ++round)
                QCoreApplication::processEvents();
            return laidOut.isEmpty();
        };
        QVERIFY(QTest::qWaitFor(isAtRest));
    }

    void modesKeepTheirLayouts()
    {
        Modes& modes = m_window->modes();
        PerMode<QString> factory;
        for (const Mode mode : allModes) {
            modes.setMode(mode);
            factory[static_cast<std::size_t>(mode)] = layout();
        }
        modes.setMode(Mode::Plan);
        dock("levels").close();
        modes.setMode(Mode::Search);
        QCOMPARE(layout(), forMode(factory, Mode::Search));
        m_window->resizeDocks({&dock("signals")}, {300}, Qt::Vertical);
        m_window->bandView().splitter()->shiftHandle(1, -40);
        const QString search = layout();
        QVERIFY(search != forMode(factory, Mode::Search));
        modes.setMode(Mode::Measure);
        QMainWindowHelpers::AutoHideSupport::get(*m_window)->enableAutoHide(dock("levels"));
        const QString measure = layout();
        QVERIFY(measure.contains(QLatin1String("levels hides itself")));
        modes.setMode(Mode::Search);
        QCOMPARE(layout(), search);
        modes.setMode(Mode::Plan);
        const QString plan = layout();
        QVERIFY(plan.contains(QLatin1String("levels hidden")));

        closeWindow();
        CHECKED(makeWindow());
        Modes& later = m_window->modes();
        QCOMPARE(later.mode(), Mode::Plan);
        QCOMPARE(layout(), plan);
        dock("levels").show();
        later.setMode(Mode::Measure);
        QCOMPARE(layout(), measure);
        QMainWindowHelpers::AutoHideSupport::get(*m_window)->disableAutoHide(dock("levels"));
        m_window->resize(640, 500);
        GuiBase::Instance().RestoreWidgetSize(); // as it was at this start
        QCOMPARE(layout(), measure);
        later.setMode(Mode::Plan);
        QCOMPARE(layout(), plan);
        later.setMode(Mode::Search);
        QCOMPARE(layout(), search);
        m_window->resize(640, 500);
        GuiBase::Instance().RestoreFactoryWidgetSize();
        for (const Mode mode : allModes) {
            later.setMode(mode);
            QCOMPARE(layout(), forMode(factory, mode));
        }
    }

    void smallWindowHasRoomForAll()
    {
        closeWindow();
        CHECKED(makeWindow({620, 420}, QStringLiteral("small")));
        for (const Mode mode : allModes) {
            m_window->modes().setMode(mode);
            const QSize room(632, 452); // of a screen of 640 x 480, with its frame
            QTRY_COMPARE(m_window->size().boundedTo(room), m_window->size());
            for (QDockWidget* panel : m_window->panelDocks().docks()) {
                panel->raise();
                QTRY_COMPARE(panel->visibleRegion().isEmpty(), panel->isHidden());
                QVERIFY(panel->isHidden() || m_window->rect().contains(panel->geometry()));
            }
        }
    }

    void activeDockIsInFront()
    {
        m_window->modes().setMode(Mode::Measure);
        m_window->activateWindow();
        m_window->bandView().setFocus();
        const QWidget* focus = QApplication::focusWidget();
        QTest::mouseClick(dock("bearings").widget(), Qt::LeftButton);
        QCOMPARE(m_window->panelDocks().activeDock(), &dock("bearings"));
        m_window->modes().setMode(Mode::Plan); // where it is behind the jobs
        QTRY_COMPARE(m_window->panelDocks().activeDock(), &dock("jobs"));
        QVERIFY(dock("jobs").titleBarWidget()->property("active").toBool());
        QCOMPARE(QApplication::focusWidget(), focus);
    }

    void keyboardReachesAll()
    {
        m_window->modes().setMode(Mode::Plan);
        m_window->activateWindow();
        QTRY_VERIFY(m_window->isActiveWindow());
        m_window->bandView().setFocus();
        const auto here = [] {
            return QMainWindowHelpers::findParentDockWidget(*QApplication::focusWidget(), nullptr);
        };
        QList<QDockWidget*> way;
        do {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
            way << here();
            QVERIFY(way.size() <= m_window->panelDocks().docks().size() + 1);
        } while (way.last() != nullptr);
        QVERIFY(way.size() > 2);
        for (const QDockWidget* panel : m_window->panelDocks().docks())
            QCOMPARE(way.contains(panel), !panel->isHidden());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
        QDockWidget* last = here();
        QCOMPARE(last, way[way.size() - 2]);
        QCOMPARE(m_window->panelDocks().activeDock(), last);
        QVERIFY(last->titleBarWidget()->property("active").toBool());

        const auto press = [](Qt::Key key) {
            QTest::keyClick(QApplication::focusWidget(), key,
                            Qt::ControlModifier | Qt::AltModifier);
        };
        const QString docked = layout();
        press(Qt::Key_M);
        QTRY_VERIFY(last->isFloating() && last->isMaximized());
        m_window->activateWindow();
        QTRY_VERIFY(m_window->isActiveWindow());
        press(Qt::Key_M);
        QTRY_VERIFY(!last->isFloating());
        QTRY_COMPARE(layout(), docked);
        const QDockWidget* active = m_window->panelDocks().activeDock();
        press(Qt::Key_A);
        QVERIFY(layout().contains(QLatin1String("hides itself")));
        QVERIFY(active->isHidden());
        QTRY_VERIFY(m_window->bandView().isAncestorOf(QApplication::focusWidget()));
    }

    void keyShowsWhatIsNotSeen()
    {
        m_window->modes().setMode(Mode::Plan);
        m_window->activateWindow();
        QTRY_VERIFY(m_window->isActiveWindow());
        m_window->bandView().setFocus();
        const QDockWidget& bearings = dock("bearings"); // behind the jobs
        for (const bool isSeen : {true, false, true}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_6, Qt::AltModifier);
            QTRY_COMPARE(bearings.isVisible() && !bearings.visibleRegion().isEmpty(), isSeen);
            QCOMPARE(bearings.isAncestorOf(QApplication::focusWidget()), isSeen);
        }
        QCOMPARE(m_window->panelDocks().activeDock(), &bearings);
    }
};

QTEST_MAIN(tst_PanelDocks)
#include "tst_paneldocks.moc"
