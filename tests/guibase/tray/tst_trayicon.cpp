// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <guibase/notifications/popup/notifications.h>
#include <guibase/notifications/popup/standardnotification.h>
#include <guibase/tray/trayicon.h>

#include <QApplication>
#include <QDockWidget>
#include <QImage>
#include <QMainWindow>
#include <QMenu>
#include <QTcpServer>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

/// In a tray that is there or not, as the test wants.
class FakeTrayIcon : public TrayIcon
{
public:
    explicit FakeTrayIcon(bool trayIsThere = true)
        : isThere(trayIsThere)
    {
        setStayingInTray(true);
        show();
    }

    bool isThere;
    QStringList messages;

protected:
    bool isTrayThere() const override { return isThere; }
    void placeInTray(bool) override {}
    void sendMessage(const QString& title, const QString& text, const QIcon&) override
    {
        messages << title + u'|' + text;
    }
};

/// Runs the application; `next` is called unless it ends by itself before.
int runApplication(const std::function<void()>& first, const std::function<void()>& next)
{
    QObject context; // What is left of it must not reach into the next run.
    const auto later = [&context](const std::function<void()>& step) {
        QTimer::singleShot(1, &context, step);
    };
    later([&] {
        first();
        // Each step comes in a turn of the event loop of its own.
        later([&] { later([&] { later(next); }); });
    });
    return QApplication::exec();
}

} // namespace

class tst_TrayIcon : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void tellsStatesApartWithoutColors()
    {
        QIcon icon;
        QPixmap plain(64, 64);
        plain.fill(Qt::darkBlue);
        icon.addPixmap(plain);
        for (const QIcon& base : {icon, QIcon()}) {
            for (const int side : {16, 22, 48}) {
                QList<QImage> seen;
                for (const TrayState state :
                     {TrayState::Idle, TrayState::Running, TrayState::Warning, TrayState::Fault}) {
                    const QImage image = TrayIcon::stateIcon(base, state).pixmap(side).toImage();
                    QCOMPARE(image.size(), QSize(side, side));
                    QVERIFY(image.pixelColor(side / 4, side / 4).alpha() == 255); // the icon
                    const QImage shape = image.convertToFormat(QImage::Format_Grayscale8);
                    QVERIFY(!seen.contains(shape));
                    seen << shape;
                }
            }
        }
    }

    void tellsTheStateInItsToolTip()
    {
        TrayIcon icon;
        icon.setState(TrayState::Warning, u"3 signals"_s);
        QVERIFY(icon.toolTip().endsWith(u"\nWarning: 3 signals"_s));
        icon.setState(TrayState::Warning, QString(5000, u'x'));
        QVERIFY(icon.toolTip().size() < 200 && icon.toolTip().endsWith(u"x…"_s));
        icon.setState(TrayState::Fault);
        QVERIFY(icon.toolTip().endsWith(u"\nFault"_s));
    }

    void staysOrEnds_data()
    {
        TestRows<bool, bool, bool> row; // There is a tray, staying is wanted; stays.
        row("stays", true, true, true);
        row("not wanted", true, false, false);
        row("no tray", false, true, false);
    }
    void staysOrEnds()
    {
        const auto [isThere, isWanted, stays] = TestRows<bool, bool, bool>::fetch();
        FakeTrayIcon icon(isThere);
        icon.setStayingInTray(isWanted);
        QWidget window;
        icon.addWindow(&window);
        window.show();
        const int exitCode = runApplication([&] { window.close(); }, [] { QApplication::exit(7); });
        QCOMPARE(exitCode, stays ? 7 : 0);
    }
    void endsByItsMenu()
    {
        FakeTrayIcon icon;
        QWidget window;
        icon.addWindow(&window);
        window.show();
        const int exitCode = runApplication([&] { window.close(); },
                                            [&] { icon.menu()->actions().last()->trigger(); });
        QCOMPARE(exitCode, 0);
    }
    void endsWithAWindowThatCannotComeBack()
    {
        FakeTrayIcon icon;
        auto* window = new QWidget;
        window->setAttribute(Qt::WA_DeleteOnClose);
        icon.addWindow(window);
        window->show();
        QCOMPARE(runApplication([&] { window->close(); }, [] { QApplication::exit(7); }), 0);
    }

    void bringsBackWhatWasClosedLast()
    {
        FakeTrayIcon icon;
        QWidget first;
        QMainWindow second;
        QDockWidget dock(u"dock"_s, &second);
        second.addDockWidget(Qt::LeftDockWidgetArea, &dock);
        const QSignalSpy closed(&icon, &TrayIcon::windowsClosed);
        const auto closeInTurn = [&](QWidget& early, QWidget& late, bool together) {
            const auto before = closed.size();
            early.close();
            if (!together)
                QCoreApplication::processEvents();
            late.close();
            QTRY_COMPARE(closed.size(), before + 1);
            QVERIFY(!dock.isVisible());
            icon.showWindows();
            QTRY_VERIFY(dock.isVisible());
        };
        for (QWidget* window : QList<QWidget*>{&first, &second}) {
            icon.addWindow(window);
            window->showMinimized();
        }
        dock.setFloating(true);
        dock.show();
        closeInTurn(first, second, false);
        QVERIFY(!first.isVisible() && second.isVisible() && !second.isMinimized());
        first.show();
        closeInTurn(first, second, true);
        QVERIFY(first.isVisible() && second.isVisible());
        QCOMPARE(icon.messages.size(), 1); // explained once
        icon.hide();
    }

    void reopensInItsPlace()
    {
        FakeTrayIcon icon;
        QWidget window;
        QWidget other; // takes the place that the window manager prefers
        icon.addWindow(&window);
        for (QWidget* each : {&window, &other}) {
            each->resize(300, 200);
            each->show();
            QVERIFY(QTest::qWaitForWindowActive(each));
            window.close();
            QCoreApplication::processEvents();
        }
        icon.showWindows();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(window.geometry(), other.geometry());
        icon.hide();
    }

    void losesItsTray()
    {
        FakeTrayIcon icon;
        icon.setTrayCheckInterval(1);
        QWidget window;
        icon.addWindow(&window);
        icon.isThere = false; // before a window was open
        QTRY_VERIFY(window.isVisible());
        icon.isThere = true;
        const QSignalSpy closed(&icon, &TrayIcon::windowsClosed);
        window.close();
        QTRY_COMPARE(closed.size(), 1);
        icon.isThere = false;
        QTRY_VERIFY(window.isVisible());
        QVERIFY(!icon.isVisible() && !icon.showMessage(u"a"_s, u"b"_s));
    }

    void takesNotificationsWithoutAWindow()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        Notifications::setPort(server.serverPort());
        server.close();
        Notifications::setPlacement(Notifications::Placement::InWindow);
        FakeTrayIcon icon;
        StandardNotification* popup = Notifications::notify(u"Job done"_s, u"The <b>scan</b>"_s);
        QTRY_COMPARE(icon.messages, QStringList(u"Job done|The scan"_s));
        QVERIFY(!popup->isVisible());
        QWidget window;
        window.resize(600, 400);
        window.show();
        QTRY_VERIFY(popup->isVisible()); // inside the window
        Notifications::notify(u"Seen"_s, {});
        QTRY_COMPARE(window.findChildren<StandardNotification*>().size(), 2);
        QCOMPARE(icon.messages.size(), 1);
        window.hide();
    }
};

QTEST_MAIN(tst_TrayIcon)
#include "tst_trayicon.moc"
