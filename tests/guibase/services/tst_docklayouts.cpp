// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <guibase/services/guibase.h>

#include <staterecord_p.h>

#include <trovappstartup/cfgcenter.h>

#include <QDockWidget>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QTest>
#include <QTextEdit>
#include <QToolBar>

#include <memory>

namespace {

const QString recordName = QStringLiteral("GuiBase_docks");

QString stored(const char* key, const QString& record = recordName)
{
    return CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(record)->GetString(QLatin1String(key));
}

void store(const char* key, const QString& value)
{
    CfgCenter::GetAppCfg(SettingsView)
        ->OpenSubCfg(recordName)
        ->SetString(QLatin1String(key), value);
}

QString storedLayout(quint32 mode)
{
    const auto layouts = StateRecord::decode(stored("State"));
    return layouts && layouts->contains(mode) ? layouts->at(mode) : QString();
}

/// A main window with docks A and B on the left, C and D tabbed on the right, and a tool bar.
class Window : public QMainWindow
{
public:
    explicit Window(const QString& docks = QStringLiteral("ABCD"))
    {
        setCentralWidget(new QTextEdit);
        setGeometry(40, 60, 700, 500);
        for (const QChar name : docks) {
            auto* dock = new QDockWidget(name, this);
            dock->setObjectName(name);
            dock->setWidget(new QTextEdit);
            addDockWidget(
                name < QLatin1Char('C') ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea, dock);
        }
        if (dock("C") && dock("D"))
            tabifyDockWidget(dock("C"), dock("D"));
        auto* bar = addToolBar(QStringLiteral("bar"));
        bar->setObjectName(QStringLiteral("bar"));
        bar->addAction(QStringLiteral("action"));
    }

    QDockWidget* dock(const char* name) const { return dock(QString::fromLatin1(name)); }
    QDockWidget* dock(const QString& name) const { return findChild<QDockWidget*>(name); }
    void enlist(const QString& name = QStringLiteral("docks"))
    {
        GuiBase::Instance().RegisterPersistentWidget(this, name);
        QVERIFY(QTest::qWaitForWindowExposed(this));
    }
};

/// Everything of the window that a user sees in place and size.
QString looks(const Window& window)
{
    QString text;
    QDebug out(&text);
    out << window.windowState() << window.geometry() << window.centralWidget()->geometry();
    for (const char* name : {"A", "B", "C", "D"}) {
        if (const QDockWidget* dock = window.dock(name))
            out << name << dock->isFloating() << dock->isVisible() << dock->geometry();
    }
    return text;
}

} // namespace

class TestDockLayouts : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void tenCycles_data();
    void tenCycles();
    void unknownDock_data();
    void unknownDock();
    void screenIsGone();
    void damagedRecord_data();
    void damagedRecord();
    void modesAndResets();
    void minimizedWindow();
    void subWindow();
    void destroyedMeanwhile_data();
    void destroyedMeanwhile();
    void writtenWhileRunning();

private:
    void prepare() override { m_services->SetLayoutWriteDelay(-1); }
    void tidy() override { m_services->setMode(0); }

    GuiBase* m_services = &GuiBase::Instance();
};

void TestDockLayouts::tenCycles_data()
{
    QTest::addColumn<Qt::WindowState>("state");
    QTest::addColumn<bool>("floating");
    QTest::newRow("normal") << Qt::WindowNoState << false;
    QTest::newRow("floating dock") << Qt::WindowNoState << true;
    QTest::newRow("maximized") << Qt::WindowMaximized << false;
    QTest::newRow("maximized, floating dock") << Qt::WindowMaximized << true;
}

void TestDockLayouts::tenCycles()
{
    QFETCH(Qt::WindowState, state);
    QFETCH(bool, floating);
    QString before;
    {
        Window window;
        window.enlist();
        window.setWindowState(state);
        const int least = window.screen()->availableSize().width() - 10;
        QTRY_VERIFY(state == Qt::WindowNoState || window.width() >= least);
        window.resizeDocks({window.dock("A"), window.dock("C")}, {233, 177}, Qt::Horizontal);
        window.resizeDocks({window.dock("A"), window.dock("B")}, {211, 99}, Qt::Vertical);
        if (floating) {
            window.dock("B")->setFloating(true);
            window.dock("B")->setGeometry(300, 260, 222, 188);
        }
        QTest::qWait(200); // Until the window manager has placed what was just shown.
        before = looks(window);
        m_services->StoreWidgetSize();
    }
    for (int cycle = 0; cycle < 10; ++cycle) {
        Window window;
        window.enlist();
        QTRY_COMPARE(looks(window), before);
        m_services->StoreWidgetSize();
    }
}

void TestDockLayouts::unknownDock_data()
{
    QTest::addColumn<QString>("known");
    QTest::addColumn<QString>("added");
    QTest::newRow("left") << QStringLiteral("ACD") << QStringLiteral("B");
    QTest::newRow("right, tabbed") << QStringLiteral("ABC") << QStringLiteral("D");
    QTest::newRow("in an area that was empty") << QStringLiteral("AB") << QStringLiteral("C");
}

void TestDockLayouts::unknownDock()
{
    QFETCH(QString, known);
    QFETCH(QString, added);
    {
        Window window(known);
        window.enlist();
        window.dock("A")->hide();
        m_services->StoreWidgetSize();
    }
    Window window;
    window.addToolBarBreak();
    auto* bar = window.addToolBar(QStringLiteral("new"));
    bar->setObjectName(QStringLiteral("new"));
    const Qt::DockWidgetArea area = window.dockWidgetArea(window.dock(added));
    const auto tabs = window.tabifiedDockWidgets(window.dock(added));
    window.enlist();
    QCOMPARE(window.dockWidgetArea(window.dock(added)), area);
    QCOMPARE(window.tabifiedDockWidgets(window.dock(added)), tabs);
    QVERIFY(window.toolBarBreak(bar));
    QVERIFY(!window.dock(added)->isHidden());
    QVERIFY(window.dock("A")->isHidden());
}

void TestDockLayouts::screenIsGone()
{
    QWidget widget;
    widget.setGeometry(9000, 5000, 8000, 400);
    store("Geometry", QString::fromLatin1(widget.saveGeometry().toHex()));
    m_services->RegisterPersistentWidget(&widget, QStringLiteral("docks"));
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    QTRY_VERIFY2(area.contains(widget.geometry()), qPrintable(QDebug::toString(widget.geometry())));
    QVERIFY(widget.width() > area.width() - 300);
}

void TestDockLayouts::damagedRecord_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("geometry");
    const auto record = [](const char* hex) {
        return StateRecord::encode({{0, QLatin1String(hex)}, {1, QString()}});
    };
    QTest::newRow("no state") << QStringLiteral("DG906NC44LjY=garbage") << QString();
    QTest::newRow("endless docks")
        << record("000000ff00000001fd0000000100000000000000640000006403fc027fffffff") << QString();
    QTest::newRow("not hexadecimal") << record("000000ffx") << QString();
    QTest::newRow("geometry") << QString() << QStringLiteral("01d9d0cb00030000");
    Window tiny;
    tiny.setMinimumSize(1, 1);
    tiny.resize(1, 400);
    QTest::newRow("too narrow") << QString() << QString::fromLatin1(tiny.saveGeometry().toHex());
}

/// What is damaged is not applied, and not lost.
void TestDockLayouts::damagedRecord()
{
    QFETCH(QString, state);
    QFETCH(QString, geometry);
    store("State", state);
    store("Geometry", geometry);
    Window window;
    window.enlist();
    QCOMPARE(window.size(), QSize(700, 500));
    QVERIFY(window.dock("A")->isVisible() && window.dock("B")->isVisible());
    m_services->StoreWidgetSize();
    const QString aside = recordName + QStringLiteral("_damaged");
    QCOMPARE(stored("State", aside), state);
    QCOMPARE(stored("Geometry", aside), geometry);
    QCOMPARE(storedLayout(0), QString::fromLatin1(window.saveState(1).toHex()));
    QVERIFY(m_services->RestoreFactoryWidgetSize());
}

void TestDockLayouts::modesAndResets()
{
    const auto isHidden = [](const Window& window) { return window.dock("A")->isHidden(); };
    {
        Window window;
        window.enlist();
        m_services->setMode(-1);
        window.dock("A")->hide();
        m_services->setMode(0);
        QVERIFY(!isHidden(window));
        m_services->StoreWidgetSize();
        QVERIFY(!storedLayout(0xffffffff).isEmpty());
    }
    Window window;
    window.enlist();
    QVERIFY(!isHidden(window));
    m_services->setMode(-1);
    QVERIFY(isHidden(window));
    window.dock("A")->show();
    window.resize(555, 444);

    QVERIFY(m_services->RestoreWidgetSize());
    QVERIFY(isHidden(window));
    QTRY_COMPARE(window.size(), QSize(700, 500));
    m_services->setMode(0);
    window.dock("A")->hide();
    m_services->storeFactoryDefaultWidgets(5);
    QVERIFY(m_services->RestoreFactoryWidgetSize());
    QVERIFY(!isHidden(window));
    m_services->setMode(5);
    QVERIFY(m_services->RestoreFactoryWidgetSize());
    QVERIFY(isHidden(window));
}

void TestDockLayouts::minimizedWindow()
{
    QString geometry;
    {
        Window window;
        window.enlist();
        window.resize(640, 480);
        QTest::qWait(100); // Until the window manager has done it.
        m_services->StoreWidgetSize();
        geometry = stored("Geometry");
        window.showMinimized();
        QTRY_VERIFY(window.isMinimized());
        window.close();
    }
    QCOMPARE(stored("Geometry"), geometry);
    Window window;
    window.enlist();
    QVERIFY(!window.isMinimized());
    QTRY_COMPARE(window.size(), QSize(640, 480));
    QTRY_VERIFY(window.isMinimized());
    window.showNormal();
    QVERIFY(m_services->RestoreWidgetSize());
    QTRY_VERIFY(window.isMinimized());
}

void TestDockLayouts::subWindow()
{
    const auto makeSubWindow = [](QMdiArea& area) {
        auto* window = new Window;
        QMdiSubWindow* subWindow = area.addSubWindow(window);
        area.show();
        GuiBase::Instance().RegisterPersistentWidget(subWindow, QStringLiteral("docks"));
        return std::pair(subWindow, window);
    };
    const QRect place(11, 7, 510, 430);
    {
        QMdiArea area;
        const auto [subWindow, window] = makeSubWindow(area);
        subWindow->setGeometry(place);
        window->dock("B")->hide();
        m_services->StoreWidgetSize();
        delete window;
        m_services->StoreWidgetSize();
    }
    QMdiArea area;
    const auto [subWindow, window] = makeSubWindow(area);
    QCOMPARE(subWindow->geometry(), place);
    QVERIFY(window->dock("B")->isHidden());
}

void TestDockLayouts::destroyedMeanwhile_data()
{
    QTest::addColumn<bool>("byRegistration");
    QTest::newRow("by registration") << true;
    QTest::newRow("by reset") << false;
}

/// The application deletes, unregisters and registers windows while they come back.
void TestDockLayouts::destroyedMeanwhile()
{
    QFETCH(bool, byRegistration);
    {
        Window window;
        window.enlist();
        m_services->StoreWidgetSize();
    }
    auto doomed = std::make_unique<Window>();
    Window other;
    class Handler : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() != QEvent::Show || !action)
                return false;
            const auto once = std::exchange(action, nullptr);
            isRefused = !GuiBase::Instance().RestoreWidgetSize();
            once();
            return false;
        }
        std::function<void()> action;
        bool isRefused = false;
    } handler;
    if (!byRegistration) {
        doomed->enlist();
        other.enlist(QStringLiteral("other"));
        doomed->hide();
        other.hide();
    }
    doomed->dock("A")->installEventFilter(&handler);
    doomed->dock("A")->hide();
    handler.action = [&] {
        m_services->UnregisterPersistentWidget(doomed.get());
        doomed->dock("B")->deleteLater();
        m_services->RegisterPersistentWidget(&other, QStringLiteral("other"));
    };
    if (byRegistration)
        m_services->RegisterPersistentWidget(doomed.get(), QStringLiteral("docks"));
    else
        QVERIFY(m_services->RestoreWidgetSize());
    QVERIFY(!handler.action);
    QCOMPARE(handler.isRefused, !byRegistration);
    doomed.reset();
    m_services->StoreWidgetSize();
    QVERIFY(!stored("State", QStringLiteral("GuiBase_other")).isEmpty());
}

void TestDockLayouts::writtenWhileRunning()
{
    Window window;
    window.enlist();
    QTest::qWait(50); // Until showing has come to its end.
    m_services->StoreWidgetSize();
    m_services->SetLayoutWriteDelay(10);
    const auto written = [&] {
        return storedLayout(0) == QString::fromLatin1(window.saveState(1).toHex()) &&
               stored("Geometry") == QString::fromLatin1(window.saveGeometry().toHex());
    };
    for (const auto& change : std::initializer_list<std::function<void()>>{
             [&] { window.resize(610, 410); }, [&] { window.dock("A")->hide(); },
             [&] { window.dock("C")->setFloating(true); },
             [&] { window.dock("C")->move(333, 222); }}) {
        change();
        QVERIFY(!written());
        QTRY_VERIFY(written());
    }
}

QTEST_MAIN(TestDockLayouts)
#include "tst_docklayouts.moc"
