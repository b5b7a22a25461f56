// SPDX-License-Identifier: MIT
#include "support/childprocess.h"
#include "support/files.h"
#include "support/guardedtest.h"

#include <guibase/notifications/popup/notifications.h>
#include <guibase/notifications/popup/standardnotification.h>

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QScreen>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Takes the part of the desktop that shows notifications.
class Desktop : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    QStringList told;
    QImage image; // of the last one
public Q_SLOTS:
    uint Notify(const QString&, uint, const QString&, const QString& title, const QString& text,
                const QStringList&, const QVariantMap& hints, int)
    {
        told << title << text;
        const auto data = hints.value(u"image-data"_s).value<QDBusArgument>();
        int width = 0, height = 0, lineSize = 0, bits = 0, samples = 0;
        bool hasAlpha = false;
        QByteArray pixels;
        data.beginStructure();
        data >> width >> height >> lineSize >> hasAlpha >> bits >> samples >> pixels;
        data.endStructure();
        image = QImage(reinterpret_cast<const uchar*>(pixels.constData()), width, height, lineSize,
                       QImage::Format_RGBA8888)
                    .copy();
        return 1;
    }
};

/// Stays, like something that holds what is not saved yet.
class StubbornLabel : public QLabel
{
public:
    using QLabel::QLabel;
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

StandardNotification* show(const QString& title, int timeout = 0)
{
    return Notifications::notify(title, title + u" text"_s, timeout);
}

QPoint placeOf(const QWidget& popup, int offset,
               const QScreen* screen = QGuiApplication::primaryScreen())
{
    const QRect area = screen->availableGeometry();
    return {area.right() - 7 - (popup.width() - 1), area.bottom() - offset - popup.height() - 6};
}

void quit()
{
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QCoreApplication::exec();
}

/// The pop-up that stands for those that do not fit.
QPushButton* more()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* button = qobject_cast<QPushButton*>(window))
            return button;
    }
    return nullptr;
}

} // namespace

class tst_Notifications : public GuardedTest
{
    Q_OBJECT
    using Creator = StandardNotification* (*)(const QString&, const QString&, int,
                                              Notifications::Buttons);
    using Kinds = TestRows<Creator, QColor>;

private Q_SLOTS:
    void initTestCase()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        Notifications::setPort(server.serverPort());
        qputenv("XDG_CONFIG_HOME", m_desktopSettings.path().toLocal8Bit());
        setDesktopSetting(u"kdeglobals"_s, "[KDE]\nAnimationDurationFactor=0\n");
    }
    void looksAsItsKind_data()
    {
        Kinds row;
        row("notify", &Notifications::notify, QColor(255, 255, 180));
        row("warning", &Notifications::warning, QColor(255, 255, 180));
        row("critical", &Notifications::critical, QColor(Qt::red));
    }
    void looksAsItsKind()
    {
        const auto& [create, color] = Kinds::fetch();
        StandardNotification* popup = create(u"Title"_s, u"Text"_s, 0, QDialogButtonBox::Ok);
        QCOMPARE(popup->styleSheet(),
                 u"StandardNotification { background: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 1, "
                 "stop:0 %1, stop:1 %2); border: 1px solid black; }"_s.arg(
                     color.name(), color.lighter(150).name()));
        QCOMPARE(popup->windowTitle(), u"Title"_s);
        QCOMPARE(popup->width(), 400);
        QVERIFY(popup->height() >= 100);
        QVERIFY(popup->windowFlags().testFlags(Qt::FramelessWindowHint | Qt::Tool |
                                               Qt::WindowStaysOnTopHint));
        QTRY_VERIFY(popup->isVisible());
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(popup);
        QCOMPARE(accessible->role(), QAccessible::AlertMessage);
        QCOMPARE(accessible->text(QAccessible::Description), u"Text"_s);
        // Readable also where the desktop's texts are white.
        for (const QLabel* label : popup->findChildren<QLabel*>())
            QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::black));
    }
    void reportsButtons()
    {
        QPointer popup = Notifications::notify(QPixmap(8, 8), u"Title"_s, u"Text"_s, 0,
                                               QDialogButtonBox::Yes | QDialogButtonBox::No);
        QTRY_VERIFY(popup->isVisible());
        QStringList heard;
        connect(popup, &StandardNotification::accepted, this, [&] { heard << u"accepted"_s; });
        connect(popup, &StandardNotification::rejected, this, [&] { heard << u"rejected"_s; });
        connect(popup, &StandardNotification::clicked, this,
                [&](QDialogButtonBox::StandardButton button) { heard << QString::number(button); });
        auto* box = popup->findChild<QDialogButtonBox*>();
        QTest::mouseClick(box->button(QDialogButtonBox::No), Qt::LeftButton);
        QTRY_VERIFY(popup == nullptr);
        heard.sort();
        QCOMPARE(heard, (QStringList{QString::number(QDialogButtonBox::No), u"rejected"_s}));
    }
    void closesItself()
    {
        const QPointer brief = show(u"brief"_s, 50);
        const QPointer lasting = show(u"lasting"_s, -1);
        QTRY_VERIFY(brief == nullptr);
        QVERIFY(lasting != nullptr);
        QTRY_COMPARE(lasting->pos(), placeOf(*lasting, 0));
    }
    void stacksWithoutFocus()
    {
        QMainWindow window;
        auto* edit = new QLineEdit;
        window.setCentralWidget(edit);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        edit->setFocus();
        StandardNotification* first = show(u"first"_s);
        StandardNotification* second = show(u"second"_s);
        QTRY_VERIFY(first->isVisible() && second->isVisible());
        QTRY_COMPARE(second->pos(), placeOf(*second, 0));
        QTRY_COMPARE(first->pos(), placeOf(*first, second->height() + 6));
        second->resize(400, 200);
        QTRY_COMPARE(first->pos(), placeOf(*first, 206));
        Notifications::notify(first); // Known, and so it is raised.
        QTRY_COMPARE(first->pos(), placeOf(*first, 0));
        QTRY_COMPARE(second->pos(), placeOf(*second, first->height() + 6));
        // The offscreen platform activates whatever is shown.
        if (QGuiApplication::platformName() != u"offscreen")
            QVERIFY(edit->hasFocus() && QApplication::activeWindow() == &window);
    }
    void takesAnyWidget()
    {
        StandardNotification* older = show(u"older"_s);
        auto widget = std::make_unique<QLabel>(u"any widget"_s);
        Notifications::notify(widget.get());
        Notifications::notify(nullptr);
        QTRY_VERIFY(widget->isVisible());
        QTRY_COMPARE(older->pos(), placeOf(*older, widget->height() + 6));
        widget.reset(); // Without having been closed.
        QTRY_COMPARE(older->pos(), placeOf(*older, 0));
        StubbornLabel stubborn(u"not saved"_s);
        Notifications::notify(&stubborn);
        QTRY_COMPARE(older->pos(), placeOf(*older, stubborn.height() + 6));
        QVERIFY(!stubborn.close());
        older->resize(400, 150);
        QTRY_COMPARE(stubborn.pos(), placeOf(stubborn, 0));
        QTRY_COMPARE(older->pos(), placeOf(*older, stubborn.height() + 6));
        QCOMPARE(Notifications::history().last().text, stubborn.accessibleDescription());
    }
    void collapsesWhatDoesNotFit()
    {
        QList<StandardNotification*> popups;
        for (int i = 0; i < 20; ++i)
            popups << show(QString::number(i));
        const auto hidden = [&popups] {
            return std::count_if(popups.begin(), popups.end(),
                                 [](const QWidget* popup) { return !popup->isVisible(); });
        };
        QTRY_VERIFY(more() != nullptr && more()->isVisible());
        QTRY_COMPARE(more()->text(), u"%1 more"_s.arg(hidden()));
        QVERIFY(popups.last()->isVisible() && !popups.first()->isVisible());
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(screen.contains(more()->geometry()));
        QTest::mouseClick(more(), Qt::LeftButton);
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeWindow());
        QTRY_VERIFY((dialog = qobject_cast<QDialog*>(QApplication::activeWindow())) != nullptr);
        QCOMPARE(dialog->findChild<QTreeWidget*>()->topLevelItem(19)->text(1), u"0"_s);
        dialog->close();
        while (popups.size() > 3)
            popups.takeLast()->close();
        QTRY_COMPARE(hidden(), 0);
        QTRY_VERIFY(more() == nullptr);
    }
    void closesNewestByEscape()
    {
        QMainWindow window;
        auto* edit = new QLineEdit;
        window.setCentralWidget(edit);
        window.show();
        const QPointer older = show(u"older"_s);
        const QPointer newer = show(u"newer"_s);
        QTRY_VERIFY(older->isVisible() && newer->isVisible());
        QTest::keyClick(edit, Qt::Key_A);
        QTest::keyClick(edit, Qt::Key_Escape);
        QTRY_VERIFY(newer == nullptr);
        QVERIFY(older != nullptr);
        QDialog dialog; // It has a use of its own for the key.
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCoreApplication::processEvents();
        QVERIFY(older != nullptr);
    }
    void keepsHistory()
    {
        for (int i = 0; i < 110; ++i)
            show(QString::number(i))->close();
        const QList<NotificationRecord> history = Notifications::history();
        QCOMPARE(history.size(), 100);
        QCOMPARE(history.last().title, u"109"_s);
        QCOMPARE(history.first().text, u"10 text"_s);
        QVERIFY(history.first().time.isValid());
    }
    void followsTheActiveWindow()
    {
        if (QGuiApplication::screens().size() < 2)
            QSKIP("There is only one screen.");
        const QScreen* second = QGuiApplication::screens().at(1);
        StandardNotification* popup = show(u"popup"_s);
        QTRY_COMPARE(popup->pos(), placeOf(*popup, 0));
        QMainWindow window;
        window.setGeometry({second->geometry().topLeft() + QPoint(50, 50), QSize(200, 100)});
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_COMPARE(popup->pos(), placeOf(*popup, 0, second));
        window.windowHandle()->setScreen(QGuiApplication::primaryScreen());
        QTRY_COMPARE(popup->pos(), placeOf(*popup, 0));
    }
    void movesUnlessTheDesktopStandsStill_data()
    {
        TestRows<QString, QByteArray, bool> row;
        row("slowly", "kdeglobals", "[KDE]\nAnimationDurationFactor=0.5\n", true);
        row("plasma", "kdeglobals", "[KDE]\nAnimationDurationFactor=0\n", false);
        row("gtk", "gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=false\n", false);
    }
    void movesUnlessTheDesktopStandsStill()
    {
        const auto& [file, text, isMoving] = TestRows<QString, QByteArray, bool>::fetch();
        const auto reset = qScopeGuard([this] {
            QFile::remove(m_desktopSettings.filePath(u"gtk-3.0/settings.ini"_s));
            setDesktopSetting(u"kdeglobals"_s, "[KDE]\nAnimationDurationFactor=0\n");
        });
        setDesktopSetting(u"kdeglobals"_s, {});
        setDesktopSetting(file, text);
        StandardNotification* popup = show(u"older"_s);
        QTRY_VERIFY(popup->isVisible());
        const QWidget* newer = show(u"newer"_s);
        const QPoint former = popup->pos();
        QTRY_VERIFY(popup->pos() != former);
        QCOMPARE(popup->findChild<QPropertyAnimation*>() != nullptr, isMoving);
        QTRY_COMPARE(popup->pos(), placeOf(*popup, newer->height() + 6));
    }
    void boundsWhatItShows_data()
    {
        TestRows<QString, QString, int, QString> row; // title, text, side of the icon, told
        row("long words", QString(5000, u'x'), QString(5000, u'y'), 1, QString(5000, u'y'));
        row("many lines", u"a\n"_s.repeated(400), u"a\n"_s.repeated(400), 1,
            u"a\n"_s.repeated(400));
        row("large icon", "Title", "Text", 4000, "Text");
        row("rich text", "Title", "<b>AT&amp;T</b> lost", 1, "AT&T lost");
        row("much rich text", "Title", u"<br>"_s.repeated(1000), 1, u"\n"_s.repeated(1000));
    }
    void boundsWhatItShows()
    {
        const auto& [title, text, side, told] = TestRows<QString, QString, int, QString>::fetch();
        StandardNotification* popup = Notifications::notify(QPixmap(side, side), title, text);
        QCOMPARE(popup->width(), 400);
        QVERIFY(popup->height() < 500);
        QTRY_VERIFY(popup->isVisible());
        QCOMPARE(Notifications::history().last().text, told);
        QCOMPARE(popup->text(), text);
    }
    void movesIntoWindows()
    {
        quit(); // The next pop-up makes a new service.
        Notifications::setPlacement(Notifications::Placement::InWindow);
        auto window = std::make_unique<QMainWindow>();
        window->resize(600, 500);
        window->show();
        StandardNotification* popup = show(u"in a window"_s);
        QTRY_COMPARE(popup->parentWidget(), window.get());
        const auto place = [&popup](const QWidget& host) {
            return QPoint(host.width() - 1 - 7 - 399, host.height() - 1 - popup->height() - 6);
        };
        QTRY_COMPARE(popup->pos(), place(*window));
        window->resize(700, 450);
        QTRY_COMPARE(popup->pos(), place(*window));
        QMainWindow other;
        other.resize(500, 300);
        other.show();
        window.reset();
        QTRY_COMPARE(popup->parentWidget(), &other);
        QTRY_COMPARE(popup->pos(), place(other));
        QVERIFY(popup->isVisible());
        other.hide();
        QTRY_VERIFY(popup->parentWidget() == nullptr);
        QVERIFY(!popup->isVisible());
        popup->close();
    }
    void goesToTheDesktop()
    {
        const QString program = QStandardPaths::findExecutable(u"dbus-daemon"_s);
        if (program.isEmpty())
            QSKIP("There is no dbus-daemon.");
        ChildProcess bus(program, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        const QRegularExpression addressLine(u"^unix:.*(?=\n)"_s,
                                             QRegularExpression::MultilineOption);
        QByteArray address;
        const auto hasAddress = [&] {
            address = addressLine.match(QString::fromLatin1(bus.readAll())).captured().toLatin1();
            return !address.isEmpty();
        };
        QTRY_VERIFY(hasAddress());
        QDBusConnection connection =
            QDBusConnection::connectToBus(QString::fromLatin1(address), u"desktop"_s);
        Desktop desktop;
        QVERIFY(connection.registerObject(u"/org/freedesktop/Notifications"_s, &desktop,
                                          QDBusConnection::ExportAllSlots));
        QVERIFY(connection.registerService(u"org.freedesktop.Notifications"_s));

        quit();
        Notifications::setPlacement(Notifications::Placement::InWindow);
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
        show(u"without a bus"_s);
        QCoreApplication::processEvents();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QPixmap icon(20, 10);
        icon.fill(Qt::darkCyan);
        StandardNotification* popup = Notifications::warning(icon, u"a <title>"_s, u"1 < 2"_s);
        const QStringList expected{u"without a bus"_s, u"without a bus text"_s, u"a <title>"_s,
                                   u"1 &lt; 2"_s};
        QTRY_COMPARE(desktop.told, expected);
        QCOMPARE(desktop.image, icon.toImage().convertToFormat(QImage::Format_RGBA8888));
        QVERIFY(!popup->isVisible());
        QMainWindow window; // A place, and it is not told again.
        window.resize(600, 500);
        window.show();
        QTRY_VERIFY(popup->isVisible());
        show(u"seen"_s);
        QTRY_COMPARE(window.findChildren<StandardNotification*>().size(), 3);
        QCOMPARE(desktop.told, expected);
        QDBusConnection::disconnectFromBus(u"desktop"_s);
    }
    void closesAtQuit()
    {
        const QPointer popup = show(u"popup"_s);
        quit();
        Notifications::setPlacement(Notifications::Placement::Automatic);
        QTRY_VERIFY(popup == nullptr);
        QVERIFY(Notifications::history().isEmpty());
        StandardNotification* next = show(u"next"_s);
        QTRY_VERIFY(next->isVisible());
    }

protected:
    void tidy() override
    {
        const QWidgetList windows = QApplication::allWidgets();
        QList<QPointer<QWidget>> popups;
        for (QWidget* window : windows) {
            if (qobject_cast<StandardNotification*>(window) != nullptr)
                popups << window;
        }
        for (const QPointer<QWidget>& popup : popups)
            popup->close();
        QTRY_VERIFY(std::all_of(popups.begin(), popups.end(), [](const auto& p) { return !p; }));
        QTRY_VERIFY(more() == nullptr);
    }

private:
    void setDesktopSetting(const QString& name, const QByteArray& text) const
    {
        QVERIFY(writeFile(m_desktopSettings.filePath(name), text));
    }

    QTemporaryDir m_desktopSettings;
};

QTEST_MAIN(tst_Notifications)
#include "tst_notifications.moc"
