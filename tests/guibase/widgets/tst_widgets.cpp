// SPDX-License-Identifier: MIT
#include "support/duetimers.h"
#include "support/guardedtest.h"
#include "support/menuvisitor.h"

#include <guibase/widgets/animationwidget.h>
#include <guibase/widgets/circlelayout.h>
#include <guibase/widgets/toolbarcontainer.h>
#include <guibase/widgets/widgetflasher.h>

#include <QLabel>
#include <QMainWindow>
#include <QProxyStyle>
#include <QSpinBox>
#include <QSplitter>
#include <QToolBar>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Counts what a kind of event does to objects of the application.
class EventCounter : public QObject
{
public:
    EventCounter(QEvent::Type type, std::function<bool(const QObject*)> counts)
        : m_type(type)
        , m_counts(std::move(counts))
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == m_type && m_counts(watched))
            ++count;
        return false;
    }
    int count = 0;

private:
    QEvent::Type m_type;
    std::function<bool(const QObject*)> m_counts;
};

class MotionlessStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        return hint == SH_Widget_Animation_Duration
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

} // namespace

class tst_Widgets : public GuardedTest
{
    Q_OBJECT
    using Circle = TestRows<double, CircleLayout::Direction, Qt::LayoutDirection, QPoint>;

private Q_SLOTS:
    void flashes_data()
    {
        TestRows<bool, int> row; // Motion is wanted; how often the overlay appears.
        row("blinking", true, 2);
        row("standing", false, 1);
    }
    void flashes()
    {
        const auto [moves, times] = TestRows<bool, int>::fetch();
        MotionlessStyle style;
        QWidget window;
        auto* splitter = new QSplitter(&window); // It takes children for panes.
        splitter->addWidget(new QLabel(u"pane"_s));
        splitter->setStyleSheet(u"* { background: #204060; color: white; }"_s);
        if (!moves)
            splitter->setStyle(&style);
        splitter->setGeometry(20, 30, 100, 60);
        window.resize(200, 200);
        window.show();
        const QImage before = window.grab().toImage();
        const QPalette palette = splitter->palette();
        EventCounter appearances(QEvent::Show, [&](const QObject* object) {
            return object->parent() == &window && object != splitter;
        });
        QVERIFY(WidgetFlasher::flash(nullptr) == nullptr);
        WidgetFlasher* flasher = WidgetFlasher::flash(splitter, 2);
        const QSignalSpy finished(flasher, &WidgetFlasher::finished);
        const QImage lit = window.grab().toImage();
        QVERIFY(lit.pixel(21, 31) != before.pixel(21, 31) &&
                lit.pixel(60, 60) != before.pixel(60, 60));
        QCOMPARE(lit.pixel(10, 10), before.pixel(10, 10));
        QCOMPARE(splitter->count(), 1);
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(appearances.count, times);
        QVERIFY(!WidgetFlasher::isFlashing(splitter));
        QCOMPARE(window.grab().toImage(), before);
        QCOMPARE(splitter->palette(), palette);
    }
    void flashEndsEarly()
    {
        QWidget window;
        auto* box = new QSpinBox(&window);
        auto* hidden = new QSpinBox(&window);
        hidden->hide();
        auto* last = new QSpinBox(&window);
        window.show();
        last->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_VERIFY(last->hasFocus());
        WidgetFlasher::flash(last); // has the focus already
        const QSignalSpy finished(WidgetFlasher::flash(box), &WidgetFlasher::finished);
        QVERIFY(WidgetFlasher::isFlashing(box) && WidgetFlasher::isFlashing(last));
        box->setFocus();
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(!WidgetFlasher::isFlashing(box) && WidgetFlasher::isFlashing(last));
        delete last;
        // A hidden one waits until it is shown.
        const QSignalSpy shown(WidgetFlasher::flash(hidden, 1), &WidgetFlasher::finished);
        letTimersFire(2 * WidgetFlasher::blinkTime);
        QCOMPARE(shown.size(), 0);
        hidden->show();
        QTRY_COMPARE(shown.size(), 1);
        QSplitter moved(&window);
        moved.show();
        WidgetFlasher::flash(&moved, 1);
        moved.setParent(nullptr);
        moved.show();
        QTRY_VERIFY(!WidgetFlasher::isFlashing(&moved));
    }
    void animationSleepsUnseen()
    {
        MotionlessStyle style;
        AnimationWidget animation;
        animation.setTurnTime(0); // the shortest there is
        animation.resize(40, 40);
        const auto picture = [&] { return animation.grab().toImage(); };
        const QImage stopped = picture();
        animation.start();
        animation.show();
        const QImage first = picture();
        QVERIFY(first != stopped);
        QTRY_VERIFY(picture() != first); // it turns
        animation.hide();
        letTimersFire(100); // what was due
        EventCounter timers(QEvent::Timer, [](const QObject*) { return true; });
        letTimersFire(200);
        QCOMPARE(timers.count, 1); // the one that was waited for
        animation.show();
        QTRY_VERIFY(timers.count > 5);
        animation.setStyle(&style);
        animation.hide();
        animation.show();
        const QImage still = picture();
        letTimersFire(100);
        QCOMPARE(picture(), still);
        animation.stop();
        QCOMPARE(picture(), stopped);
    }
    void circleTurns_data()
    {
        // Start angle, direction, layout direction, where the second of four boxes is from the
        // middle.
        using D = CircleLayout::Direction;
        Circle row;
        row("clockwise", 0, D::Clockwise, Qt::LeftToRight, {1, 0});
        row("counter-clockwise", 0, D::CounterClockwise, Qt::LeftToRight, {-1, 0});
        row("mirrored", 0, D::Clockwise, Qt::RightToLeft, {-1, 0});
        row("from the right", 90, D::Clockwise, Qt::LeftToRight, {0, 1});
        row("twice around", -630, D::Clockwise, Qt::LeftToRight, {0, 1});
    }
    void circleTurns()
    {
        const auto [angle, direction, layoutDirection, place] = Circle::fetch();
        QWidget window;
        auto* circle = new CircleLayout(&window);
        circle->setContentsMargins(0, 0, 0, 0);
        circle->setStartAngle(angle);
        circle->setStartAngle(qQNaN());
        circle->setDirection(direction);
        circle->setRadiusPolicy(CircleLayout::RadiusPolicy::Fixed);
        circle->setFixedRadius(50);
        window.setLayoutDirection(layoutDirection);
        for (int i = 0; i < 4; ++i) {
            auto* box = new QWidget;
            box->setFixedSize(20, 10);
            circle->addWidget(box);
        }
        QCOMPARE(circle->sizeHint(), QSize(120, 110));
        window.resize(201, 201);
        window.show();
        const QPoint offset =
            circle->itemAt(1)->geometry().center() - QPoint(100, 100) - place * 50;
        QVERIFY(offset.manhattanLength() <= 2);
        delete circle->takeAt(1);
        QVERIFY(circle->count() == 3 && circle->takeAt(3) == nullptr &&
                circle->itemAt(-1) == nullptr);
    }
    void circleHasRoom()
    {
        using Policy = CircleLayout::RadiusPolicy;
        for (const Policy policy : {Policy::Largest, Policy::Smallest}) {
            for (int count = 0; count < 12; ++count) {
                QWidget window;
                auto* circle = new CircleLayout(&window);
                circle->setRadiusPolicy(policy);
                circle->setSpacing(4);
                QList<QWidget*> boxes;
                for (int i = 0; i < count; ++i) {
                    boxes << new QWidget;
                    boxes.last()->setFixedSize(10 + 7 * i, 30 - 2 * i);
                    circle->addWidget(boxes.last());
                }
                window.resize(circle->minimumSize());
                window.show();
                for (int i = 0; i < count; ++i) {
                    QVERIFY(window.rect().contains(boxes[i]->geometry()));
                    for (int j = 0; j < i; ++j) // half a pixel is rounded at each side
                        QVERIFY(!boxes[j]
                                     ->geometry()
                                     .adjusted(-3, -3, 3, 3)
                                     .intersects(boxes[i]->geometry()));
                }
            }
        }
    }
    void barMovesWhatDoesNotFit()
    {
        QMainWindow window;
        auto* bar = window.addToolBar(u"bar"_s);
        auto* container = new ToolBarContainer;
        QList<QWidget*> boxes;
        for (int i = 0; i < 4; ++i) {
            boxes << new QSpinBox;
            boxes.last()->setMinimumWidth(100);
            container->addWidget(boxes.last());
        }
        bar->addWidget(container);
        window.resize(700, 200);
        window.show();
        QTRY_VERIFY(container->hiddenWidgets().isEmpty() && boxes[3]->isVisible());
        QVERIFY(QTest::qWaitForWindowActive(&window));
        boxes[3]->setFocus();
        window.resize(290, 200);
        QTRY_COMPARE(container->hiddenWidgets(), boxes.sliced(2));
        QVERIFY(boxes[1]->isVisible() && !boxes[3]->isVisible());
        QVERIFY(container->isAncestorOf(QApplication::focusWidget())); // the button

        MenuVisitor::announceKeyboardGrab();
        container->showPopup();
        QTRY_VERIFY(boxes[3]->isVisible());
        QTest::keyClick(boxes[3], Qt::Key_Up);
        QCOMPARE(static_cast<QSpinBox*>(boxes[3])->value(), 1);
        QTest::keyClick(boxes[3], Qt::Key_Escape);
        QTRY_VERIFY(!boxes[3]->isVisible());

        boxes[0]->hide(); // makes room for another one
        QTRY_COMPARE(container->hiddenWidgets(), boxes.sliced(3));
        ToolBarContainer other; // takes it away
        other.addWidget(boxes[1]);
        container->removeWidget(boxes[1]);
        QCOMPARE(other.widgets(), QList<QWidget*>{boxes[1]});
        other.removeWidget(boxes[1]);
        delete boxes[1];
        QTRY_VERIFY(container->hiddenWidgets().isEmpty() && boxes[3]->isVisible());
        QVERIFY(boxes[3]->x() > boxes[2]->geometry().right());
        window.addToolBar(Qt::LeftToolBarArea, bar);
        QTRY_VERIFY(boxes[3]->y() > boxes[2]->geometry().bottom());
        QCOMPARE(container->orientation(), Qt::Vertical);
    }
};

QTEST_MAIN(tst_Widgets)
#include "tst_widgets.moc"
