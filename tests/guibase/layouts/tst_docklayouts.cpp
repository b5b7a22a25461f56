// SPDX-License-Identifier: MIT
#include "layoutwindow.h"
#include "support/files.h"
#include "support/guardedtest.h"
#include "support/windowmanager.h"

#include <guibase/docks/maximizeminimizesupport.h>
#include <guibase/records/geometryrecord.h>

#include <jtbase/errorhandler.h>

#include <QAction>
#include <QCloseEvent>
#include <QScreen>
#include <QWindow>

#include <array>

namespace {

/// Everything of the window that a user sees in place and size. Without the places where programs
/// do not give them.
QString looks(const Window& window)
{
    QString text;
    QDebug out(&text);
    const auto geometry = [](const QWidget& widget) {
        const bool isPlaced = !widget.isWindow() || WindowSystem::placesWindows();
        return isPlaced ? widget.geometry() : QRect(QPoint(0, 0), widget.size());
    };
    out << window.windowState() << geometry(window) << window.centralWidget()->geometry();
    for (const char* name : {"A", "B", "C", "D"}) {
        if (const QDockWidget* dock = window.dock(name))
            out << name << dock->isFloating() << dock->isVisible() << geometry(*dock);
    }
    return text;
}

} // namespace

using QDockWidgetHelpers::MaximizeMinimizeSupport;

class tst_DockLayouts : public GuardedTest
{
    Q_OBJECT
    using Cycles = TestRows<Qt::WindowState, bool>;
    using Docks = TestRows<QString, QString>;
    using Records = TestRows<QString, QString, bool>;

private Q_SLOTS:
    void tenCycles_data()
    {
        Cycles row;
        row("normal", Qt::WindowNoState, false);
        row("floating dock", Qt::WindowNoState, true);
        row("maximized", Qt::WindowMaximized, false);
        row("maximized, floating dock", Qt::WindowMaximized, true);
    }
    void tenCycles()
    {
        const auto [state, floating] = Cycles::fetch();
        QString before;
        {
            Window window;
            window.enlist();
            window.setWindowState(state);
            const int least = window.screen()->availableSize().width() - 10;
            QTRY_VERIFY(window.windowState() == Qt::WindowNoState || window.width() >= least);
            window.resizeDocks({window.dock("A"), window.dock("C")}, {233, 177}, Qt::Horizontal);
            window.resizeDocks({window.dock("A"), window.dock("B")}, {211, 99}, Qt::Vertical);
            if (floating) {
                window.dock("B")->setFloating(true);
                window.dock("B")->setGeometry(300, 260, 222, 188);
            }
            QVERIFY(windowManagerIsReady());
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
    void hiddenDockIsStillMaximized()
    {
        const QRect place(300, 260, 222, 188);
        for (const bool isSupported : {false, true}) {
            const auto largeDock = [isSupported](Window& window) {
                QDockWidget& dock = *window.dock("B");
                if (isSupported)
                    MaximizeMinimizeSupport::install(dock);
                window.enlist();
                return &dock;
            };
            {
                Window window;
                QDockWidget* dock = largeDock(window);
                dock->setFloating(true);
                dock->setGeometry(place);
                dock->hide();
                MaximizeMinimizeSupport* support = MaximizeMinimizeSupport::get(*dock);
                QVERIFY(isSupported ? support->maximizeWhenShown()
                                    : MaximizeMinimizeSupport::maximizeWhenShown(*dock));
                m_services->StoreWidgetSize();
            }
            Window window;
            QDockWidget* dock = largeDock(window);
            QVERIFY(dock->isHidden());
            dock->show();
            QTRY_VERIFY(dock->width() > 2 * place.width());
            QVERIFY(windowManagerIsReady() && dock->isMaximized());
            // Where the dock goes back to; the offscreen platform itself does not know it.
            QCOMPARE(dock->normalGeometry().size(), place.size());
            QVERIFY(MaximizeMinimizeSupport::restoreDockWidget(*dock));
            QTRY_VERIFY(QGuiApplication::platformName() != u"xcb" || dock->size() == place.size());
        }
    }
    /// A session in which nobody places windows takes over sizes and states only.
    void placesStay()
    {
        const QRect places[] = {{60, 50, 600, 400}, {300, 260, 222, 188}, {310, 240, 210, 170}};
        const QSize growth(30, 20);
        using Widgets = std::array<QWidget*, 3>;
        const auto session = [this](auto&& change) {
            Window window;
            window.enlist();
            change(Widgets{&window, window.dock("A"), window.dock("B")});
            QVERIFY(windowManagerIsReady());
            m_services->StoreWidgetSize();
        };
        session([&places](const Widgets& widgets) {
            for (int i = 0; i < 3; ++i) {
                if (auto* dock = qobject_cast<QDockWidget*>(widgets[i]))
                    dock->setFloating(true);
                widgets[i]->setGeometry(places[i]);
            }
        });
        {
            const NoPlaces noPlaces;
            session([&](const Widgets& widgets) {
                for (int i = 0; i < 3; ++i)
                    widgets[i]->setGeometry({QPoint(0, 0), places[i].size() + growth});
                widgets[2]->showMaximized();
                QTRY_VERIFY(widgets[2]->isMaximized());
            });
        }
        QVERIFY(stored("MaximizedDocks").startsWith(QStringLiteral("0,310,240,")));
        session([&](const Widgets& widgets) {
            for (int i = 0; i < 2; ++i)
                QTRY_COMPARE(widgets[i]->geometry(),
                             QRect(places[i].topLeft(), places[i].size() + growth));
        });
    }
    void plainDockIsMaximizedInItsMode()
    {
        Window window;
        window.enlist();
        QDockWidget* dock = window.dock("B");
        for (const int mode : {1, 0})
            m_services->setMode(mode);
        dock->setFloating(true);
        QVERIFY(windowManagerIsReady());
        dock->showMaximized();
        const int large = dock->screen()->availableSize().width() / 2;
        const auto isLarge = [dock, large] { return dock->isMaximized() && dock->width() > large; };
        QTRY_VERIFY(isLarge());
        for (int round = 0; round < 10; ++round) { // a late window manager undoes it now and then
            m_services->setMode(1);
            QTRY_VERIFY(!dock->isFloating());
            m_services->setMode(0);
            QTRY_VERIFY(isLarge());
            QVERIFY(windowManagerIsReady() && isLarge());
        }
    }
    void unknownDock_data()
    {
        Docks row;
        row("left", "ACD", "B");
        row("right, tabbed", "ABC", "D");
        row("in an area that was empty", "AB", "C");
    }
    void unknownDock()
    {
        const auto& [known, added] = Docks::fetch();
        {
            Window window(known);
            window.enlist();
            window.dock("A")->hide();
            m_services->StoreWidgetSize();
        }
        Window window;
        window.addToolBarBreak();
        const QToolBar* bar = window.addBar(QStringLiteral("new"));
        QDockWidget* dock = window.dock(added);
        const Qt::DockWidgetArea area = window.dockWidgetArea(dock);
        const auto tabs = window.tabifiedDockWidgets(dock);
        window.enlist();
        QCOMPARE(window.dockWidgetArea(dock), area);
        QCOMPARE(window.tabifiedDockWidgets(dock), tabs);
        QVERIFY(window.toolBarBreak(const_cast<QToolBar*>(bar)));
        QVERIFY(!dock->isHidden());
        QVERIFY(window.dock("A")->isHidden());
    }
    void screenIsGone()
    {
        Window far;
        far.dock("B")->setFloating(true);
        far.dock("B")->setGeometry(9000, 5000, 3000, 2000);
        far.setGeometry(9000, 5000, 8000, 400);
        record()->SetString(QStringLiteral("Geometry"), hexadecimal(far.saveGeometry()));
        record()->SetString(QStringLiteral("State"), StateRecord::encode({{0, far.saveState(1)}}));
        Window window;
        window.enlist();
        const QRect area = window.screen()->availableGeometry();
        const auto text = [](const QRect& place) { return QDebug::toString(place).toLatin1(); };
        QTRY_VERIFY2(area.contains(window.geometry()), text(window.geometry()));
        const QDockWidget& dock = *window.dock("B");
        QTRY_VERIFY2(area.contains(dock.frameGeometry()), text(dock.frameGeometry()));
        for (const QWidget* widget :
             {static_cast<const QWidget*>(&window), static_cast<const QWidget*>(&dock)})
            QVERIFY(widget->width() > area.width() - 300);
    }
    void damagedRecord_data()
    {
        const auto state = [](const char* hex) {
            return StateRecord::encode({{0, QByteArray::fromHex(hex)}, {1, {}}});
        };
        QWidget narrow;
        narrow.resize(1, 400);
        const QString geometry = hexadecimal(narrow.saveGeometry());
        Records row;
        row("no state", "DG906NC44LjY=garbage", "", true);
        row("without tag", "garbage", "", true);
        row("nothing", "", "", false);
        row("endless docks",
            state("000000ff00000001fd0000000100000000000000640000006403fc027fffffff"), "", true);
        row("not hexadecimal", "DG906NC44LjY=AAAAHnicY2BgYGSAACEGAySYBoQVABK3Ang=", "", true);
        row("cut geometry", "", geometry.chopped(8), true);
        row("no hexadecimal geometry", "", QStringLiteral("zz") + geometry, true);
        row("too narrow", "", geometry, true);
    }
    /// What is damaged is not applied, and not lost.
    void damagedRecord()
    {
        const auto& [state, geometry, isDamaged] = Records::fetch();
        record()->SetString(QStringLiteral("State"), state);
        record()->SetString(QStringLiteral("Geometry"), geometry);
        const QString traces = filePath(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(ErrorHandler::SetTraceFile(traces));
        ErrorHandler::SetTraceFlags(ErrorHandler::TraceGuiBase);
        Window window;
        window.enlist();
        QCOMPARE(window.size(), QSize(700, 500));
        QVERIFY(window.dock("A")->isVisible() && window.dock("B")->isVisible());
        m_services->StoreWidgetSize();
        const QString aside = recordName + QStringLiteral("_damaged");
        QCOMPARE(stored("State", aside), isDamaged ? state : QString());
        QCOMPARE(stored("Geometry", aside), isDamaged ? geometry : QString());
        QCOMPARE(readFile(traces).count("Record \"GuiBase_docks\""), isDamaged ? 1 : 0);
        QCOMPARE(storedLayout(0), window.saveState(1));
    }
    void recordNames_data()
    {
        Docks row;
        row("blanks and colon", "Main View: 1", "Main_View_1");
        row("forbidden references", "a#xFFFEb#x7Fc", "a#xFFFEbc");
        row("forbidden plane", "a#x2FFFFb", "ab");
    }
    void recordNames()
    {
        const auto& [name, cleaned] = Docks::fetch();
        auto widget = std::make_unique<QWidget>();
        for (const QString& each : {name, QStringLiteral("again")})
            m_services->RegisterPersistentWidget(widget.get(), each);
        m_services->RegisterPersistentWidget(nullptr, name);
        widget->resize(456, 300);
        const QString geometry = hexadecimal(widget->saveGeometry());
        widget.reset();
        QCOMPARE(stored("Geometry", QStringLiteral("GuiBase_") + cleaned), geometry);
        m_services->StoreWidgetSize();
        QVERIFY(stored("Geometry", QStringLiteral("GuiBase_again")).isEmpty());
    }
    void modesAndResets()
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
        window.hide();
        m_services->setMode(-1);
        QVERIFY(window.isVisible());
        window.close();
        m_services->setMode(-1);
        QVERIFY(!window.isVisible());

        QSignalSpy starts(m_services, &GuiBase::signalResetToProgramStart);
        QSignalSpy factories(m_services, &GuiBase::signalResetToFactoryDefault);
        m_services->CreateResetWidgetViewAction(&window)->trigger();
        QVERIFY(isHidden(window) && window.isVisible());
        QTRY_COMPARE(window.size(), QSize(700, 500));
        m_services->setMode(0);
        window.dock("A")->hide();
        m_services->storeFactoryDefaultWidgets(5);
        m_services->CreateResetFactoryViewAction(&window)->trigger();
        QVERIFY(!isHidden(window));
        m_services->setMode(5);
        QVERIFY(m_services->RestoreFactoryWidgetSize());
        QVERIFY(isHidden(window));
        QCOMPARE(starts.count(), 1);
        QCOMPARE(factories.count(), 2);
    }
    void resetFromMaximized()
    {
        const QSize dockSize(222, 188);
        Window window;
        window.dock("B")->setFloating(true);
        window.dock("B")->resize(dockSize);
        window.enlist();
        const auto isLarge = [](const QWidget* each) {
            return each->isMaximized() &&
                   each->width() > each->screen()->availableSize().width() - 20;
        };
        for (int round = 0; round < 4; ++round) {
            QTRY_COMPARE(window.size(), QSize(700, 500));
            QTRY_COMPARE(window.dock("B")->size(), dockSize);
            if (round % 2 == 0) // at other times it is maximized before a lost request is noticed
                QTRY_COMPARE(window.dock("B")->windowHandle()->size(), dockSize);
            QVERIFY(QTest::qWaitForWindowExposed(window.dock("B")));
            QVERIFY(windowManagerIsReady());
            // The toolkit's own way is undone by a window manager that is late.
            QVERIFY(MaximizeMinimizeSupport::install(*window.dock("B"))->maximizeDockWidget());
            window.showMaximized();
            QTRY_VERIFY(isLarge(&window) && isLarge(window.dock("B")));
            QVERIFY(m_services->RestoreWidgetSize());
            QTRY_VERIFY(!window.isMaximized());
        }
    }
    /// The toolkit closes floating docks on its way out, also when a window then stops the end.
    void refusedEndKeepsFloatingDocks()
    {
        class Stubborn : public QWidget
        {
            void closeEvent(QCloseEvent* event) override { event->ignore(); }
        };
        {
            Window window;
            window.enlist();
            window.dock("A")->setFloating(true);
            QTRY_VERIFY(window.dock("A")->isVisible());
            Stubborn other;
            other.show();
            QEvent quit(QEvent::Quit);
            QCoreApplication::sendEvent(QCoreApplication::instance(), &quit);
            QCoreApplication::processEvents();
            if (window.isVisible())
                QTRY_VERIFY(window.dock("A")->isVisible());
            m_services->StoreWidgetSize();
        }
        Window window;
        window.enlist();
        QVERIFY(window.dock("A")->isFloating() && window.dock("A")->isVisible());
    }
    void lastChangeOfDeletedWindow()
    {
        {
            Window window;
            window.enlist();
            m_services->StoreWidgetSize();
            window.dock("A")->hide();
            QCoreApplication::processEvents();
        }
        const QPointer<Window> window = new Window;
        window->enlist();
        QVERIFY(window->dock("A")->isHidden());
        window->dock("B")->hide();
        window->deleteLater();
        QTRY_VERIFY(window.isNull());
        Window last;
        last.enlist();
        QVERIFY(last.dock("B")->isHidden());
    }
    /// A maximized window from a larger screen never gets its stored size.
    void changesBeforeTheSizeIsThere()
    {
        {
            Window window;
            window.enlist();
            m_services->StoreWidgetSize();
            auto geometry = GeometryRecord::fromBytes(window.saveGeometry());
            geometry->maximized = 1;
            geometry->geometry.setSize(QSize(5000, 4000));
            m_services->UnregisterPersistentWidget(&window);
            record()->SetString(QStringLiteral("Geometry"), hexadecimal(geometry->toBytes()));
        }
        Window window;
        window.enlist();
        QTRY_VERIFY(window.isMaximized());
        m_services->setMode(3);
        QVERIFY(!window.dock("A")->isHidden());
        window.dock("A")->hide();
        window.showNormal();
        // Nobody may size a window before the compositor has answered.
        if (!WindowSystem::placesWindows())
            QTRY_VERIFY(window.width() < 1000);
        window.resize(610, 410);
        QVERIFY(windowManagerIsReady());
        QVERIFY(window.dock("A")->isHidden());
        m_services->StoreWidgetSize();
        QCOMPARE(storedLayout(3), window.saveState(1));
    }

private:
    void prepare() override { m_services->SetLayoutWriteDelay(-1); }
    void tidy() override
    {
        m_services->setMode(0);
        ErrorHandler::SetTraceFlags(ErrorHandler::defaultTraceFlags);
        ErrorHandler::SetTraceFile(QString());
    }

    GuiBase* m_services = &GuiBase::Instance();
};

QTEST_MAIN(tst_DockLayouts)
#include "tst_docklayouts.moc"
