// SPDX-License-Identifier: MIT
#include "support/dockwindow.h"
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/docks/active/activedockwidgetsupport.h>
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/maximizeminimizesupport.h>

#include <QAction>
#include <QLayout>
#include <QPointer>

#include <array>
#include <functional>
#include <memory>

using namespace QMainWindowHelpers;
using QDockWidgetHelpers::MaximizeMinimizeSupport;

namespace {

/// Two windows with every support between which docks wander at random.
class Walk
{
public:
    Walk()
    {
        for (auto& window : m_windows)
            open(window);
    }

    void step()
    {
        static constexpr std::array<void (Walk::*)(), 16> steps{
            &Walk::add,
            &Walk::add,
            &Walk::remove,
            &Walk::toggleFloating,
            &Walk::tabify,
            &Walk::tile,
            &Walk::call<&QWidget::hide>,
            &Walk::call<&QWidget::show>,
            &Walk::save,
            &Walk::restore,
            &Walk::call<&QWidget::close>,
            &Walk::move,
            &Walk::click,
            &Walk::change<&MaximizeMinimizeSupport::maximizeDockWidget>,
            &Walk::change<&MaximizeMinimizeSupport::minimizeDockWidget>,
            &Walk::bringToFront};
        m_window = m_windows[size_t(m_random.below(2))].get();
        m_area = Qt::DockWidgetArea(1 << m_random.below(4));
        if (m_window->findChildren<QDockWidget*>().isEmpty())
            add();
        const auto docks = m_window->findChildren<QDockWidget*>();
        m_dock = docks[m_random.below(int(docks.size()))];
        (this->*steps[size_t(m_random.below(int(steps.size())))])();
        if (m_random.below(500) == 0)
            open(m_windows[size_t(m_random.below(2))]);
        if (m_random.below(3) > 0)
            return; // the next step comes before the event loop runs
        settle();
        for (const auto& window : m_windows)
            check(*window);
    }

private:
    void open(std::unique_ptr<DockWindow>& window)
    {
        window = std::make_unique<DockWindow>();
        window->setDockOptions(QMainWindow::AllowTabbedDocks | QMainWindow::AllowNestedDocks |
                               QMainWindow::GroupedDragging);
        ActiveDockWidgetSupport::install(*window);
        TabifySupport::install(*window, Qt::AllDockWidgetAreas);
        TileSupport::install(*window, Qt::AllDockWidgetAreas);
        window->show();
    }
    void add()
    {
        if (m_window->findChildren<QDockWidget*>().size() > 12)
            return;
        static const QStringList titles{u"same"_s, u""_s, u"other"_s, u"[*]"_s};
        const bool withParent = m_random.below(2) == 0;
        auto* dock = new QDockWidget(titles[m_random.below(4)], withParent ? m_window : nullptr);
        dock->setWidget(new QTextEdit);
        dock->setMinimumSize(m_random.below(300), m_random.below(200));
        dock->setObjectName(u"dock %1"_s.arg(m_random.below(6)));
        MaximizeMinimizeSupport::install(*dock);
        m_window->addDockWidget(m_area, dock);
    }
    void remove() { delete m_dock; }
    void toggleFloating() { m_dock->setFloating(!m_dock->isFloating()); }
    void tabify() { TabifySupport::get(*m_window)->tabifyDockWidgets(m_area); }
    void tile() { TileSupport::get(*m_window)->tileDockWidgets(m_area); }
    template <auto function>
    void call()
    {
        std::invoke(function, *m_dock);
    }
    void save() { m_state = m_window->saveState(); }
    void restore() { m_window->restoreState(m_state); }
    void move() { m_windows[size_t(m_random.below(2))]->addDockWidget(m_area, m_dock); }
    void click() { QTest::mouseClick(m_dock->widget(), Qt::LeftButton); }
    /// Or back, when that is not possible.
    template <bool (MaximizeMinimizeSupport::*operation)()>
    void change()
    {
        auto* support = MaximizeMinimizeSupport::get(*m_dock);
        if (!(support->*operation)())
            support->restoreDockWidget();
    }
    void bringToFront() { ActiveDockWidgetSupport::get(*m_window)->bringToFront(*m_dock); }

    static void check(DockWindow& window)
    {
        const QDockWidget* active = ActiveDockWidgetSupport::get(window)->activeDockWidget();
        QVERIFY(active == nullptr || active->parent() == &window);
        QVERIFY(window.updatesEnabled());
        QCOMPARE(window.minimumSize(), window.layout()->totalMinimumSize());
        QCOMPARE(window.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        auto* tabify = TabifySupport::get(window);
        auto* tile = TileSupport::get(window);
        for (const Qt::DockWidgetArea area : listDockWidgetAreas(Qt::AllDockWidgetAreas)) {
            QCOMPARE(tabify->tabifyDockWidgetsAction(area).isVisible(),
                     tabify->isTabifyDockWidgetsPossible(area));
            QCOMPARE(tile->tileDockWidgetsAction(area).isVisible(),
                     tile->isTileDockWidgetsPossible(area));
        }
        for (const QDockWidget* dock : window.findChildren<QDockWidget*>()) {
            auto* support = MaximizeMinimizeSupport::get(*dock);
            QVERIFY(support != nullptr && support->dockWidget() == dock);
            QVERIFY(dock->updatesEnabled());
            QVERIFY(dock->maximumWidth() >= QLAYOUTSIZE_MAX);
            if (dock->isVisible())
                QCOMPARE(support->restoreDockWidgetAction().isVisible(),
                         support->isRestoreDockWidgetPossible());
        }
    }

    RandomBytes m_random{"walk of the docks"};
    std::array<std::unique_ptr<DockWindow>, 2> m_windows;
    DockWindow* m_window = nullptr;
    QPointer<QDockWidget> m_dock;
    Qt::DockWidgetArea m_area = Qt::LeftDockWidgetArea;
    QByteArray m_state;
};

} // namespace

class tst_DockWalk : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void walks()
    {
        Walk walk;
        for (int step = RandomBytes::rounds(400); step > 0; --step) {
            walk.step();
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(u"%1 steps before the end"_s.arg(step - 1)));
        }
    }
};

QTEST_MAIN(tst_DockWalk)
#include "tst_dockwalk.moc"
