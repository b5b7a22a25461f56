// SPDX-License-Identifier: MIT
#include "support/dockwindow.h"
#include "support/guardedtest.h"
#include "support/windowmanager.h"

#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/enhanceddockwidgettitlebar.h>

#include <QAction>
#include <QHelpEvent>
#include <QMenu>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <memory>

class tst_EnhancedDockWidgetTitleBar : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void actionsStandWhereTheyAreAdded()
    {
        const std::pair<const char*, int> additions[] = {
            {"a", 0}, {"b", 0}, {"c", -1}, {"d", 1}, {"e", -5}};
        for (const auto& [name, index] : additions)
            addAction(QString::fromLatin1(name), index);
        QCOMPARE(shown().join(u' '), u"b d a c e Float Close"_s);
        m_bar->addTitleBarAction(*m_bar->actions().first(), 1); // one that is there
        QCOMPARE(m_bar->actions().size(), 5);
        QCOMPARE(shown().size(), 7);
    }
    void buttonsFollowTheirActions()
    {
        QAction* one = addAction(u"one"_s, -1);
        QAction* two = addAction(u"two"_s, -1);
        one->setText(u"uno"_s);
        QTRY_COMPARE(shown().first(), u"uno"_s);
        // The click on a button may be the end of its action.
        connect(two, &QAction::triggered, m_dock, [two] { delete two; });
        QTest::mouseClick(button(u"two"_s), Qt::LeftButton);
        QCOMPARE(shown().join(u' '), u"uno Float Close"_s);
        // The keys stay on the bar when their button goes.
        m_window->activateWindow();
        button(u"uno"_s)->setFocus();
        one->setVisible(false);
        QTRY_COMPARE(QApplication::focusWidget(), button(u"Float"_s));
        // There is no room for a text on a button.
        one->setIcon(QIcon());
        one->setVisible(true);
        QTRY_COMPARE(shown().join(u' '), u"More Float Close"_s);
    }
    void actionsMayOutliveAndUnderliveTheWindow()
    {
        for (const bool actionsFirst : {false, true}) {
            QMainWindow window;
            auto early = std::make_unique<QObject>();
            if (actionsFirst)
                early->setParent(&window);
            auto* dock = new QDockWidget(&window);
            auto* bar = new EnhancedDockWidgetTitleBar(*dock);
            dock->setTitleBarWidget(bar);
            for (int i = 0; i < 30; ++i) // more than there is room for
                bar->addTitleBarAction(*new QAction(m_icon, QString::number(i), early.get()), -1);
            window.addDockWidget(Qt::LeftDockWidgetArea, dock);
            window.show();
            if (actionsFirst)
                early.release();
        }
    }
    void followsTheDock()
    {
        QToolButton* floatButton = button(u"Float"_s);
        floatButton->click();
        QCOMPARE(floatButton->toolTip(), u"Dock"_s);
        floatButton->click();
        QVERIFY(!m_dock->isFloating());
        m_dock->setFeatures(QDockWidget::DockWidgetClosable |
                            QDockWidget::DockWidgetVerticalTitleBar);
        QTRY_VERIFY(m_bar->height() > m_bar->width());
        addAction(u"a"_s, -1);
        QCOMPARE(shown().join(u' '), u"a Close"_s); // from bottom to top
        m_dock->setFeatures(QDockWidget::DockWidgetClosable);
        QTRY_VERIFY(m_bar->height() < m_bar->width());

        const QImage before = m_bar->grab().toImage();
        m_bar->setProperty("active", true);
        QVERIFY(m_bar->grab().toImage() != before);
        m_dock->setWindowTitle(u"Other[*]"_s);
        const QImage renamed = m_bar->grab().toImage();
        m_dock->setWindowModified(true);
        QVERIFY(m_bar->grab().toImage() != renamed);
        button(u"Close"_s)->click();
        QVERIFY(!m_dock->isVisible());
    }
    void mouseWorksTheDock()
    {
        const QPoint title(20, m_bar->height() / 2);
        QTest::mouseDClick(m_bar, Qt::LeftButton, {}, title);
        QVERIFY(m_dock->isFloating());
        m_dock->setFloating(false);
        if (QGuiApplication::platformName() == u"offscreen"_s) {
            for (int grabs = 0; grabs < 2; ++grabs)
                QTest::ignoreMessage(QtWarningMsg,
                                     "This plugin does not support grabbing the mouse");
            QTest::mousePress(m_bar, Qt::LeftButton, {}, title);
            QTest::mouseMove(m_bar, title + QPoint(200, 200));
            QTest::mouseMove(m_bar, title + QPoint(300, 220));
            QTRY_VERIFY(m_dock->isFloating());
            QTest::mouseRelease(m_bar, Qt::LeftButton, {}, title);
        }

        // An elided title shows in full, and as plain text.
        m_dock->setWindowTitle(QString(400, u'x') + u"<b>"_s);
        QHelpEvent help(QEvent::ToolTip, title, m_bar->mapToGlobal(title));
        QCoreApplication::sendEvent(m_bar, &help);
        QVERIFY(QToolTip::text().contains(u"xxx&lt;b&gt;"_s));
        QToolTip::hideText();
    }
    void mouseWorksTheDockWithoutPlaces()
    {
        const NoPlaces noPlaces;
        const QPoint title(20, m_bar->height() / 2);
        QTest::mousePress(m_bar, Qt::LeftButton, {}, title);
        QTest::mouseMove(m_bar, title + QPoint(1, 1));
        QVERIFY(!m_dock->isFloating());
        QTest::mouseMove(m_bar, title + QPoint(50, 50));
        QVERIFY(m_dock->isFloating());
        QTest::mouseRelease(m_bar, Qt::LeftButton, {}, title);
        // The window system moves it, or nobody.
        const QPoint place = m_dock->pos();
        QVERIFY(QTest::qWaitForWindowExposed(m_dock));
        QTest::mousePress(m_bar, Qt::LeftButton, {}, title);
        QTest::mouseMove(m_bar, title + QPoint(90, 60));
        QTest::mouseRelease(m_bar, Qt::LeftButton, {}, title);
        QCOMPARE(m_dock->pos(), place);
        for (const bool floats : {false, true}) {
            QTest::mouseDClick(m_bar, Qt::LeftButton, {}, title);
            QCOMPARE(m_dock->isFloating(), floats);
        }
    }
    void narrowBarsUseAMenu()
    {
        for (int i = 0; i < 11; ++i)
            addAction(u"action %1"_s.arg(i), -1);
        QAction* action = addAction(QString(), -1);
        action->setToolTip(u"only a picture"_s);
        QSignalSpy triggered(action, &QAction::triggered);
        m_window->resizeDocks({m_dock}, {160}, Qt::Horizontal);
        QTRY_VERIFY(m_bar->width() <= 160);
        QMenu* menu = button(u"More"_s)->menu();
        Q_EMIT menu->aboutToShow();
        QCOMPARE(menu->actions().size() + shown().size(), 12 + 3);
        QCOMPARE(menu->actions().last()->text(), u"only a picture"_s);
        menu->actions().last()->trigger();
        QCOMPARE(triggered.count(), 1);
    }
    void showsTheActionsOfItsArea()
    {
        using namespace QMainWindowHelpers;
        m_window->addDock(u"beside"_s);
        m_window->addDocks({u"a"_s, u"b"_s}, Qt::RightDockWidgetArea);
        auto* tabify = TabifySupport::install(*m_window, Qt::AllDockWidgetAreas);
        for (const auto area : {Qt::RightDockWidgetArea, Qt::LeftDockWidgetArea})
            m_bar->addTitleBarAction(tabify->tabifyDockWidgetsAction(area), -1);
        QTRY_COMPARE(shown().join(u' '), u"Tabify docks on the left Float Close"_s);
        m_window->addDockWidget(Qt::RightDockWidgetArea, m_dock);
        QTRY_COMPARE(shown().join(u' '), u"Tabify docks on the right Float Close"_s);
        m_dock->setFloating(true);
        QTRY_COMPARE(shown().join(u' '), u"Dock Close"_s);
    }
    void keysReachEveryButton()
    {
        addAction(u"a"_s, -1);
        addAction(u"b"_s, -1)->setEnabled(false);
        const auto isStop = [](const QToolButton* each) {
            return each->isVisible() && each->focusPolicy() == Qt::TabFocus;
        };
        const QList<QToolButton*> buttons = m_bar->findChildren<QToolButton*>();
        QCOMPARE(std::count_if(buttons.cbegin(), buttons.cend(), isStop), 1);
        (*std::find_if(buttons.cbegin(), buttons.cend(), isStop))->setFocus();
        const std::pair<Qt::Key, const char*> walk[] = {
            {Qt::Key_Home, "a"},      {Qt::Key_Right, "Float"}, {Qt::Key_End, "Close"},
            {Qt::Key_Right, "Close"}, {Qt::Key_Left, "Float"},  {Qt::Key_Right, "Close"},
        };
        for (const auto& [key, expected] : walk) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QCOMPARE(QApplication::focusWidget()->accessibleName(), QString::fromLatin1(expected));
            QCOMPARE(std::count_if(buttons.cbegin(), buttons.cend(), isStop), 1);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(!m_dock->isVisible());
    }

protected:
    void prepare() override
    {
        m_window = std::make_unique<DockWindow>();
        m_dock = m_window->addDock(u"Title"_s);
        m_bar = new EnhancedDockWidgetTitleBar(*m_dock);
        m_dock->setTitleBarWidget(m_bar);
        m_window->show();
        m_window->resizeDocks({m_dock}, {400}, Qt::Horizontal);
        QVERIFY(windowIsReady(*m_window));
    }
    void tidy() override { m_window.reset(); }

private:
    /// The names of the buttons that can be seen, along the bar.
    QStringList shown() const
    {
        QList<QToolButton*> buttons = m_bar->findChildren<QToolButton*>();
        buttons.removeIf([](const QToolButton* each) { return !each->isVisible(); });
        const bool vertical = m_bar->height() > m_bar->width();
        std::sort(buttons.begin(), buttons.end(), [vertical](QToolButton* one, QToolButton* two) {
            return vertical ? one->y() > two->y() : one->x() < two->x();
        });
        QStringList names;
        for (const QToolButton* each : std::as_const(buttons))
            names << each->accessibleName();
        return names;
    }
    QToolButton* button(const QString& name) const
    {
        for (QToolButton* each : m_bar->findChildren<QToolButton*>())
            if (each->accessibleName() == name && each->isVisible())
                return each;
        return nullptr;
    }
    QAction* addAction(const QString& name, int index)
    {
        auto* action = new QAction(m_icon, name, m_dock);
        m_bar->addTitleBarAction(*action, index);
        return action;
    }

    std::unique_ptr<DockWindow> m_window;
    QDockWidget* m_dock = nullptr;
    const QIcon m_icon{QPixmap(16, 16)}; // of any content
    EnhancedDockWidgetTitleBar* m_bar = nullptr;
};

QTEST_MAIN(tst_EnhancedDockWidgetTitleBar)
#include "tst_enhanceddockwidgettitlebar.moc"
