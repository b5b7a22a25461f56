// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <dockstatecheck_p.h>
#include <splitterstatecheck_p.h>

#include <QDockWidget>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QSplitter>
#include <QTest>
#include <QTextEdit>
#include <QToolBar>

#include <memory>

namespace {

constexpr int version = 1;

/// A shown main window with docks in rows, tabs and floating, and tool bars.
class Window : public QMainWindow
{
public:
    explicit Window(int docks)
    {
        setCentralWidget(new QTextEdit);
        setDockOptions(AllowNestedDocks | AllowTabbedDocks | GroupedDragging);
        resize(700, 500);
        for (int i = 0; i < docks; ++i)
            addDock(i);
        for (const auto area : {Qt::TopToolBarArea, Qt::LeftToolBarArea, Qt::TopToolBarArea}) {
            auto* bar = new QToolBar(this);
            bar->setObjectName(QStringLiteral("bar%1").arg(area));
            bar->addAction(QStringLiteral("action"));
            addToolBar(area, bar);
        }
        if (docks > 0)
            m_docks.last()->setFloating(true);
        show();
    }

private:
    void addDock(int number)
    {
        constexpr Qt::DockWidgetArea areas[] = {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                                Qt::BottomDockWidgetArea};
        auto* dock = new QDockWidget(QString::number(number), this);
        dock->setObjectName(QStringLiteral("dock%1").arg(number));
        dock->setWidget(new QWidget);
        addDockWidget(areas[number % 3], dock);
        if (number >= 3 && number % 2 == 0)
            tabifyDockWidget(m_docks.at(number - 3), dock);
        else if (number >= 3)
            splitDockWidget(m_docks.at(number - 3), dock, Qt::Horizontal);
        m_docks.append(dock);
    }

    QList<QDockWidget*> m_docks;
};

} // namespace

class TestDockStateCheck : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void realStates_data();
    void realStates();
    void floatingGroup();
    void hostileStates_data();
    void hostileStates();
    void mutatedStates();
    void splitterStates();
};

void TestDockStateCheck::realStates_data()
{
    QTest::addColumn<int>("docks");
    for (const int docks : {0, 1, 4, 12})
        QTest::addRow("%d docks", docks) << docks;
}

/// Cut or longer ones are refused at every length.
void TestDockStateCheck::realStates()
{
    QFETCH(int, docks);
    const Window window(docks);
    const QByteArray state = window.saveState(version);
    QVERIFY(DockStateCheck::isValid(state, version));
    QVERIFY(!DockStateCheck::isValid(state, version + 1));
    QVERIFY(!DockStateCheck::isValid(state + '\0', version));
    for (qsizetype size = 0; size < state.size(); ++size)
        QVERIFY(!DockStateCheck::isValid(state.first(size), version));
}

/// What grouped dragging leaves behind: two tabs in a window of their own.
void TestDockStateCheck::floatingGroup()
{
    const QByteArray group = QByteArray::fromHex("000000ff00000001fd00000000"
                                                 "000001000000010000000004000000040000000800000008"
                                                 "f9"
                                                 "000000320000003200000100000000f0"
                                                 "fa000000000100000002"
                                                 "fb0000000a0064006f0063006b003001"
                                                 "00000000ffffffff0000005900ffffff"
                                                 "fb0000000a0064006f0063006b003101"
                                                 "00000000ffffffff0000005900ffffff"
                                                 "fc00000000");
    QVERIFY(DockStateCheck::isValid(group, version));
}

void TestDockStateCheck::hostileStates_data()
{
    QTest::addColumn<QByteArray>("state");
    const QByteArray head("000000ff00000001fd");
    const QByteArray tail("0000010000000100"
                          "00000004000000040000000800000008"
                          "fc00000000");
    const QByteArray area = head + "00000001"
                                   "00000000"
                                   "0000006400000064";
    const QByteArray dock("fb0000000200410100000000"
                          "00000064"
                          "0000000000000000");
    const auto row = [](const QByteArray& name, const QByteArray& hex) {
        QTest::newRow(name.constData()) << QByteArray::fromHex(hex);
    };
    QByteArray deep = area;
    for (int depth = 0; depth < 100000; ++depth)
        deep += "fc0200000001fc00000000ffffffff0000000000000000";
    row("many areas", head + "7fffffff" + tail);
    row("area that is none", head +
                                 "00000001"
                                 "00000004"
                                 "0000006400000064"
                                 "fc0200000001" +
                                 dock + tail);
    row("negative area", head +
                             "00000001"
                             "ffffffff"
                             "0000006400000064"
                             "fc0200000001" +
                             dock + tail);
    row("endless row", area + "fc027fffffff" + dock + tail);
    row("negative row", area + "fc02ffffffff" + dock + tail);
    row("empty row", area + "fc0200000000" + tail);
    row("wrong orientation", area + "fc0000000001" + dock + tail);
    row("tab that is none", area + "fa000000050200000001" + dock + tail);
    row("very deep", deep);
    row("long name", area +
                         "fc0200000001"
                         "fb7ffffffe0041" +
                         tail);
    row("huge size", area +
                         "fc0200000001"
                         "fb0000000200410100000000"
                         "7fffffff"
                         "0000000000000000" +
                         tail);
    row("endless tool-bar lines", head + "00000000"
                                         "0000010000000100"
                                         "00000004000000040000000800000008"
                                         "fc7fffffff");
    row("no corner", head + "00000000"
                            "0000010000000100"
                            "00000000000000040000000800000008"
                            "fc00000000");
}

void TestDockStateCheck::hostileStates()
{
    QFETCH(QByteArray, state);
    QVERIFY(!DockStateCheck::isValid(state, version));
}

/// What passes the check, the toolkit must survive, quickly, and layouts must still be possible.
void TestDockStateCheck::mutatedStates()
{
    constexpr qint64 longest = 5000; // milliseconds
    RandomBytes random("dock states");
    QList<QByteArray> states;
    for (const int docks : {1, 6, 12})
        states.append(Window(docks).saveState(version));
    auto window = std::make_unique<Window>(12);
    const QByteArray good = states.last();
    int passed = 0;
    for (int round = 0; round < RandomBytes::rounds(1500); ++round) {
        QByteArray state = states.at(random.below(static_cast<int>(states.size())));
        if (round % 2 == 0)
            state = random.mutated(state);
        else
            state[random.below(static_cast<int>(state.size()))] =
                static_cast<char>(random.below(256));
        if (!DockStateCheck::isValid(state, version))
            continue;
        ++passed;
        QElapsedTimer timer;
        timer.start();
        window->restoreState(state, version);
        if (passed % 8 == 0) {
            QCoreApplication::processEvents();
            QVERIFY(DockStateCheck::isValid(window->saveState(version), version));
            QVERIFY(window->restoreState(good, version));
        }
        if (passed % 100 == 0)
            window = std::make_unique<Window>(12);
        QVERIFY2(timer.elapsed() < longest, state.toHex().constData());
    }
    qInfo("%d of %d passed", passed, RandomBytes::rounds(1500));
}

void TestDockStateCheck::splitterStates()
{
    QSplitter splitter;
    for (int i = 0; i < 3; ++i)
        splitter.addWidget(new QWidget);
    splitter.show();
    const QByteArray good = splitter.saveState();
    QCOMPARE(SplitterStateCheck::sizes(good).value_or(QList<int>()).size(), 3);
    for (qsizetype size = 0; size < good.size(); ++size)
        QVERIFY(!SplitterStateCheck::sizes(good.first(size)));
    RandomBytes random("splitter states");
    for (int round = 0; round < RandomBytes::rounds(2000); ++round) {
        const QByteArray state = random.mutated(good);
        if (SplitterStateCheck::sizes(state)) {
            splitter.restoreState(state);
            QVERIFY(splitter.handleWidth() <= 256);
        }
    }
}

QTEST_MAIN(TestDockStateCheck)
#include "tst_dockstatecheck.moc"
