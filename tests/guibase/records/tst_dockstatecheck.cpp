// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/records/dockstatecheck.h>

#include <QDockWidget>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QTextEdit>
#include <QToolBar>

#include <memory>

namespace {

constexpr int version = 1;

bool isValid(const QByteArray& state, int stateVersion)
{
    return DockStateCheck::names(state, stateVersion).has_value();
}

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

class tst_DockStateCheck : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Cut or longer ones, and those of another version, are refused.
    void realStates()
    {
        for (const int docks : {0, 1, 4, 12}) {
            const Window window(docks);
            const QByteArray state = window.saveState(version);
            const auto names = DockStateCheck::names(state, version);
            QVERIFY(names && names->docks.size() == docks && names->toolBars.size() == 2);
            QVERIFY(names->toolBars.contains(QStringLiteral("bar1")));
            QVERIFY(!isValid(state, version + 1));
            QVERIFY(!isValid(state + '\0', version));
            for (qsizetype size = 0; size < state.size(); ++size)
                QVERIFY(!isValid(state.first(size), version));
        }
    }
    /// What passes the check, the toolkit must survive, quickly, and layouts must still be
    /// possible.
    void mutatedStates()
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
            if (!isValid(state, version))
                continue;
            ++passed;
            QElapsedTimer timer;
            timer.start();
            window->restoreState(state, version);
            if (passed % 8 == 0) {
                QCoreApplication::processEvents();
                QVERIFY(isValid(window->saveState(version), version));
                QVERIFY(window->restoreState(good, version));
            }
            if (passed % 100 == 0)
                window = std::make_unique<Window>(12);
            QVERIFY2(timer.elapsed() < longest, state.toHex().constData());
        }
        qInfo("%d of %d passed", passed, RandomBytes::rounds(1500));
    }
};

QTEST_MAIN(tst_DockStateCheck)
#include "tst_dockstatecheck.moc"
