// SPDX-License-Identifier: MIT
#include <guibase/docks/activedockwidgetsupport.h>
#include <guibase/docks/autohidesupport.h>
#include <guibase/docks/dockwidgetconfigurator.h>
#include <guibase/docks/dockwidgethelpers.h>
#include <guibase/docks/enhanceddockwidgettitlebar.h>
#include <guibase/docks/mainwindowconfigurator.h>
#include <guibase/docks/tabifysupport.h>
#include <guibase/docks/tilesupport.h>

#include "support/testguard.h"

#include <QAction>
#include <QTest>

#include <memory>

using namespace QMainWindowHelpers;
using namespace QDockWidgetHelpers;

class TestDockConfigurators : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_guard = std::make_unique<TestGuard>(); }
    void cleanup()
    {
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }

    void mainWindowGetsOnlyWhatIsSet();
    void dockGetsOnlyWhatIsSet();
    void actionsComeInOrder_data();
    void actionsComeInOrder();
    void titleBarTakesTheActions();
    void anyWidgetBecomesADock();

private:
    std::unique_ptr<TestGuard> m_guard;
};

void TestDockConfigurators::mainWindowGetsOnlyWhatIsSet()
{
    QMainWindow window;
    window.setObjectName(QStringLiteral("name"));
    window.setWindowTitle(QStringLiteral("title"));
    window.setDocumentMode(true);
    MainWindowConfigurator()
        .withAutoHideSupport({})
        .withTileSupport({})
        .withTabPosition(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea, QTabWidget::West)
        .withTabPosition(Qt::RightDockWidgetArea, QTabWidget::East)
        .configure(window, QString(), QStringLiteral(""));
    QCOMPARE(window.objectName(), QStringLiteral("name"));
    QVERIFY(window.windowTitle().isEmpty());
    QVERIFY(window.documentMode());
    QCOMPARE(window.tabPosition(Qt::LeftDockWidgetArea), QTabWidget::West);
    QCOMPARE(window.tabPosition(Qt::RightDockWidgetArea), QTabWidget::East);
    QCOMPARE(AutoHideSupport::get(window), nullptr);
    QCOMPARE(TileSupport::get(window), nullptr);
    QCOMPARE(TabifySupport::get(window), nullptr);
    QCOMPARE(ActiveDockWidgetSupport::get(window), nullptr);

    MainWindowConfigurator all;
    all.withActiveDockWidgetSupport(true)
        .withAutoHideSupport(MainWindowConfigurator::DefaultAutoHideSupportToolBarAreas)
        .withTileSupport(MainWindowConfigurator::DefaultTileSupportDockWidgetAreas)
        .withTabifySupport(Qt::LeftDockWidgetArea)
        .withDocumentMode(false)
        .withTabShape(QTabWidget::Triangular)
        .withDockOptions(QMainWindow::AllowTabbedDocks);
    const MainWindowConfigurator copy = all;
    QCOMPARE(&copy.configure(window), &copy);
    QVERIFY(AutoHideSupport::get(window) && ActiveDockWidgetSupport::get(window));
    QCOMPARE(TileSupport::get(window)->dockWidgetAreas(), Qt::AllDockWidgetAreas);
    QCOMPARE(TabifySupport::get(window)->dockWidgetAreas(), Qt::LeftDockWidgetArea);
    QVERIFY(!window.documentMode());
    QCOMPARE(window.tabShape(), QTabWidget::Triangular);
    QCOMPARE(window.dockOptions(), QMainWindow::AllowTabbedDocks);
}

void TestDockConfigurators::dockGetsOnlyWhatIsSet()
{
    QDockWidget dock(QStringLiteral("title"));
    dock.setStyleSheet(QStringLiteral("color: red"));
    const auto features = dock.features();
    DockWidgetConfigurator configurator;
    configurator.configure(dock, QStringLiteral("name"));
    QCOMPARE(dock.objectName(), QStringLiteral("name"));
    QCOMPARE(dock.windowTitle(), QStringLiteral("title"));
    QCOMPARE(dock.styleSheet(), QStringLiteral("color: red"));
    QCOMPARE(dock.features(), features);
    QCOMPARE(dock.titleBarWidget(), nullptr);
    dock.setUpdatesEnabled(false);
    configurator.withAllowedAreas(Qt::TopDockWidgetArea)
        .withFeatures(QDockWidget::DockWidgetClosable)
        .withFocusPolicy(Qt::StrongFocus)
        .withStyleSheet(QStringLiteral(""))
        .configure(dock);
    QCOMPARE(dock.allowedAreas(), Qt::TopDockWidgetArea);
    QCOMPARE(dock.features(), QDockWidget::DockWidgetClosable);
    QCOMPARE(dock.focusPolicy(), Qt::StrongFocus);
    QVERIFY(dock.styleSheet().isEmpty());
    QVERIFY(!dock.updatesEnabled());
}

void TestDockConfigurators::actionsComeInOrder_data()
{
    QTest::addColumn<bool>("maximize");
    QTest::addColumn<bool>("minimize");
    QTest::addColumn<bool>("others");
    QTest::addColumn<QString>("expected");
    const QString both = QStringLiteral("maximizeDockWidget minimizeDockWidget restoreDockWidget");
    QTest::newRow("none") << false << false << false << QString();
    QTest::newRow("both") << true << true << false << both;
    QTest::newRow("minimize") << false << true << false
                              << QStringLiteral("minimizeDockWidget restoreDockWidget");
    QTest::newRow("maximize") << true << false << false
                              << QStringLiteral("maximizeDockWidget restoreDockWidget");
    QTest::newRow("all") << true << true << true
                         << QStringLiteral("extra autoHideButton tabifyDockWidgetArea_1 "
                                           "tabifyDockWidgetArea_2 tileDockWidgetArea_4 ") +
                                both;
}

void TestDockConfigurators::actionsComeInOrder()
{
    QFETCH(bool, maximize);
    QFETCH(bool, minimize);
    QFETCH(bool, others);
    QFETCH(QString, expected);
    QMainWindow window;
    auto* dock = new QDockWidget(&window);
    QAction extra;
    extra.setObjectName(QStringLiteral("extra"));
    const QList<QAction*> extras{&extra};
    DockWidgetConfigurator configurator;
    configurator.withMaximizeSupport(maximize).withMinimizeSupport(minimize);
    if (others)
        configurator.withAutoHideSupport(true)
            .includeActionsFrom(&extras)
            .includeActionsFrom(TileSupport::install(window, Qt::TopDockWidgetArea))
            .includeActionsFrom(
                TabifySupport::install(window, Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea));
    for (int round = 0; round < 2; ++round) { // the second time with what is there
        QList<QAction*> actions;
        configurator.configure(*dock, actions);
        QStringList names;
        for (const QAction* action : std::as_const(actions))
            names << action->objectName();
        QCOMPARE(names.join(u' '), expected);
    }
}

void TestDockConfigurators::titleBarTakesTheActions()
{
    QDockWidget dock;
    dock.setTitleBarWidget(new QWidget);
    QAction one;
    QAction two;
    const QList<QAction*> extras{&one, nullptr, &two};
    DockWidgetConfigurator().includeActionsFrom(&extras).configure(dock);
    const auto* bar = qobject_cast<EnhancedDockWidgetTitleBar*>(dock.titleBarWidget());
    QVERIFY(bar != nullptr);
    QCOMPARE(bar->actions(), (QList<QAction*>{&two, &one}));
    QAction three;
    addActionToTitleBar(dock, three, 1);
    QCOMPARE(dock.titleBarWidget(), bar);
    QCOMPARE(bar->actions(), (QList<QAction*>{&two, &three, &one}));
}

void TestDockConfigurators::anyWidgetBecomesADock()
{
    QMainWindow window;
    auto* viewer = new QWidget(&window);
    viewer->setObjectName(QStringLiteral("viewer"));
    viewer->setWindowTitle(QStringLiteral("Viewer"));
    viewer->setFocusPolicy(Qt::ClickFocus);
    viewer->setStyleSheet(QStringLiteral("color: red"));
    QDockWidget* dock = makeDockWidgetFrom(*viewer);
    QCOMPARE(dock->objectName(), QStringLiteral("viewer_outerDockWidget"));
    QCOMPARE(dock->parentWidget(), &window);
    QCOMPARE(dock->widget(), viewer);
    QCOMPARE(dock->windowTitle(), QStringLiteral("Viewer"));
    QCOMPARE(dock->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(dock->styleSheet(), QStringLiteral("color: red"));
    QCOMPARE(makeDockWidgetFrom(*dock), dock);
    QVERIFY(viewer->updatesEnabled());
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    window.show();
    QVERIFY(viewer->isVisible() && !dock->isFloating());

    auto* nameless = new QWidget;
    const std::unique_ptr<QDockWidget> orphan(makeDockWidgetFrom(*nameless));
    QVERIFY(orphan->objectName().isNull());
    QCOMPARE(orphan->parentWidget(), nullptr);
}

QTEST_MAIN(TestDockConfigurators)
#include "tst_dockconfigurators.moc"
