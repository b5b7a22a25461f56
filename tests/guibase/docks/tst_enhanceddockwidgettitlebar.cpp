// SPDX-License-Identifier: MIT
#include <guibase/docks/enhanceddockwidgettitlebar.h>

#include "support/testguard.h"

#include <QAction>
#include <QDockWidget>
#include <QHelpEvent>
#include <QMainWindow>
#include <QMenu>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <memory>

class TestEnhancedDockWidgetTitleBar : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void actionsStandWhereTheyAreAdded_data();
    void actionsStandWhereTheyAreAdded();
    void buttonsFollowTheirActions();
    void actionsMayOutliveAndUnderliveTheWindow();
    void followsTheDock();
    void mouseWorksTheDock();
    void narrowBarsUseAMenu();
    void keysReachEveryButton();

private:
    /// The names of the buttons that can be seen, along the bar.
    QStringList shown() const;
    QToolButton* button(const QString& name) const;
    QAction* addAction(const QString& name, int index);

    std::unique_ptr<TestGuard> m_guard;
    std::unique_ptr<QMainWindow> m_window;
    QDockWidget* m_dock = nullptr;
    EnhancedDockWidgetTitleBar* m_bar = nullptr;
};

void TestEnhancedDockWidgetTitleBar::init()
{
    m_guard = std::make_unique<TestGuard>();
    m_window = std::make_unique<QMainWindow>();
    m_window->setCentralWidget(new QTextEdit);
    m_dock = new QDockWidget(QStringLiteral("Title"), m_window.get());
    m_dock->setWidget(new QTextEdit);
    m_bar = new EnhancedDockWidgetTitleBar(*m_dock);
    m_dock->setTitleBarWidget(m_bar);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, m_dock);
    m_window->resize(1000, 500);
    m_window->show();
    m_window->resizeDocks({m_dock}, {400}, Qt::Horizontal);
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestEnhancedDockWidgetTitleBar::cleanup()
{
    m_window.reset();
    QCOMPARE(m_guard->finish(), QString());
    m_guard.reset();
}

QStringList TestEnhancedDockWidgetTitleBar::shown() const
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

QToolButton* TestEnhancedDockWidgetTitleBar::button(const QString& name) const
{
    const QList<QToolButton*> buttons = m_bar->findChildren<QToolButton*>();
    for (QToolButton* each : buttons)
        if (each->accessibleName() == name && each->isVisible())
            return each;
    return nullptr;
}

QAction* TestEnhancedDockWidgetTitleBar::addAction(const QString& name, int index)
{
    auto* action = new QAction(name, m_dock);
    m_bar->addTitleBarAction(*action, index);
    return action;
}

void TestEnhancedDockWidgetTitleBar::actionsStandWhereTheyAreAdded_data()
{
    QTest::addColumn<QList<int>>("indices");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first each") << QList<int>{0, 0, 0} << QStringLiteral("c b a");
    QTest::newRow("negative") << QList<int>{-1, -5, 0} << QStringLiteral("c a b");
    QTest::newRow("too large") << QList<int>{7, 1, 99} << QStringLiteral("a b c");
    QTest::newRow("between") << QList<int>{0, 1, 1} << QStringLiteral("a c b");
}

void TestEnhancedDockWidgetTitleBar::actionsStandWhereTheyAreAdded()
{
    QFETCH(QList<int>, indices);
    QFETCH(QString, expected);
    QAction* first = addAction(QStringLiteral("a"), indices.at(0));
    addAction(QStringLiteral("b"), indices.at(1));
    addAction(QStringLiteral("c"), indices.at(2));
    QCOMPARE(shown().join(u' '), expected + QStringLiteral(" Float Close"));
    m_bar->addTitleBarAction(*first, -1);
    QCOMPARE(shown().at(2), QStringLiteral("a"));
    QCOMPARE(m_bar->actions().size(), 3);
}

void TestEnhancedDockWidgetTitleBar::buttonsFollowTheirActions()
{
    QAction* one = addAction(QStringLiteral("one"), -1);
    QAction* two = addAction(QStringLiteral("two"), -1);
    one->setVisible(false);
    QCOMPARE(shown().join(u' '), QStringLiteral("two Float Close"));
    one->setVisible(true);
    one->setText(QStringLiteral("uno"));
    QTRY_COMPARE(shown().first(), QStringLiteral("uno"));
    // The click on a button may be the end of its action.
    connect(two, &QAction::triggered, m_dock, [two] { delete two; });
    QTest::mouseClick(button(QStringLiteral("two")), Qt::LeftButton);
    QCOMPARE(shown().join(u' '), QStringLiteral("uno Float Close"));
}

void TestEnhancedDockWidgetTitleBar::actionsMayOutliveAndUnderliveTheWindow()
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
            bar->addTitleBarAction(*new QAction(QString::number(i), early.get()), -1);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        window.show();
        if (actionsFirst)
            early.release();
    }
}

void TestEnhancedDockWidgetTitleBar::followsTheDock()
{
    QToolButton* floatButton = button(QStringLiteral("Float"));
    floatButton->click();
    QVERIFY(m_dock->isFloating());
    QCOMPARE(floatButton->toolTip(), QStringLiteral("Dock"));
    floatButton->click();
    QVERIFY(!m_dock->isFloating());
    m_dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetVerticalTitleBar);
    QTRY_VERIFY(m_bar->height() > m_bar->width());
    addAction(QStringLiteral("a"), -1);
    QCOMPARE(shown().join(u' '), QStringLiteral("a Close")); // from bottom to top
    m_dock->setFeatures(QDockWidget::DockWidgetClosable);
    QTRY_VERIFY(m_bar->height() < m_bar->width());

    const QImage before = m_bar->grab().toImage();
    m_dock->setWindowTitle(QStringLiteral("Other[*]"));
    const QImage renamed = m_bar->grab().toImage();
    QVERIFY(renamed != before);
    m_dock->setWindowModified(true);
    const QImage modified = m_bar->grab().toImage();
    QVERIFY(modified != renamed);
    m_bar->setProperty("active", true);
    QVERIFY(m_bar->grab().toImage() != modified);
    button(QStringLiteral("Close"))->click();
    QVERIFY(!m_dock->isVisible());
}

void TestEnhancedDockWidgetTitleBar::mouseWorksTheDock()
{
    const QPoint title(20, m_bar->height() / 2);
    QTest::mouseDClick(m_bar, Qt::LeftButton, {}, title);
    QVERIFY(m_dock->isFloating());
    QTest::mouseDClick(m_bar, Qt::LeftButton, {}, title);
    QVERIFY(!m_dock->isFloating());
    if (QGuiApplication::platformName() == QStringLiteral("offscreen")) {
        for (int grabs = 0; grabs < 2; ++grabs)
            QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the mouse");
        QTest::mousePress(m_bar, Qt::LeftButton, {}, title);
        QTest::mouseMove(m_bar, title + QPoint(200, 200));
        QTest::mouseMove(m_bar, title + QPoint(300, 220));
        QTRY_VERIFY(m_dock->isFloating());
        QTest::mouseRelease(m_bar, Qt::LeftButton, {}, title);
    }

    // An elided title shows in full, and as plain text.
    m_dock->setWindowTitle(QString(400, u'x') + QStringLiteral("<b>"));
    QHelpEvent help(QEvent::ToolTip, title, m_bar->mapToGlobal(title));
    QCoreApplication::sendEvent(m_bar, &help);
    QVERIFY(QToolTip::text().contains(QStringLiteral("xxx&lt;b&gt;")));
    QToolTip::hideText();
}

void TestEnhancedDockWidgetTitleBar::narrowBarsUseAMenu()
{
    int triggered = 0;
    for (int i = 0; i < 12; ++i) {
        QAction* action = addAction(QStringLiteral("action %1").arg(i), -1);
        connect(action, &QAction::triggered, this, [&triggered] { ++triggered; });
    }
    m_bar->actions().last()->setText(QString());
    m_bar->actions().last()->setToolTip(QStringLiteral("only a picture"));
    QCOMPARE(shown().size(), 14);
    m_window->resizeDocks({m_dock}, {160}, Qt::Horizontal);
    QTRY_VERIFY(m_bar->width() <= 160);
    QVERIFY(shown().size() < 10);
    QMenu* menu = button(QStringLiteral("More"))->menu();
    Q_EMIT menu->aboutToShow();
    QCOMPARE(menu->actions().size() + shown().size(), 12 + 3);
    QCOMPARE(menu->actions().last()->text(), QStringLiteral("only a picture"));
    menu->actions().last()->trigger();
    QCOMPARE(triggered, 1);
}

void TestEnhancedDockWidgetTitleBar::keysReachEveryButton()
{
    addAction(QStringLiteral("a"), -1);
    addAction(QStringLiteral("b"), -1)->setEnabled(false);
    const auto isStop = [](const QToolButton* each) {
        return each->isVisible() && each->focusPolicy() == Qt::TabFocus;
    };
    const QList<QToolButton*> buttons = m_bar->findChildren<QToolButton*>();
    QCOMPARE(std::count_if(buttons.cbegin(), buttons.cend(), isStop), 1);
    (*std::find_if(buttons.cbegin(), buttons.cend(), isStop))->setFocus();
    const std::pair<Qt::Key, const char*> walk[] = {
        {Qt::Key_Home, "a"},      {Qt::Key_Right, "Float"}, {Qt::Key_Right, "Close"},
        {Qt::Key_Right, "Close"}, {Qt::Key_Left, "Float"},  {Qt::Key_Home, "a"},
        {Qt::Key_End, "Close"},
    };
    for (const auto& [key, expected] : walk) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(QApplication::focusWidget()->accessibleName(), QString::fromLatin1(expected));
        QCOMPARE(std::count_if(buttons.cbegin(), buttons.cend(), isStop), 1);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(!m_dock->isVisible());
}

QTEST_MAIN(TestEnhancedDockWidgetTitleBar)
#include "tst_enhanceddockwidgettitlebar.moc"
