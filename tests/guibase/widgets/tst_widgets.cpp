// SPDX-License-Identifier: MIT
#include "support/duetimers.h"
#include "support/guardedtest.h"
#include "support/menuvisitor.h"
#include "support/testrows.h"

#include <guibase/services/guibase.h>
#include <guibase/widgets/animationwidget.h>
#include <guibase/widgets/circlelayout.h>
#include <guibase/widgets/closabletabwidget.h>
#include <guibase/widgets/contextmenuhandler.h>
#include <guibase/widgets/toolbarcontainer.h>
#include <guibase/widgets/widgetflasher.h>

#include <QContextMenuEvent>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QSpinBox>
#include <QSplitter>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Asks for a context menu as the mouse, or the Menu key, does; the texts of the menu that opens.
QStringList menuTexts(QWidget& widget, const QPoint& position, bool byKeyboard = false)
{
    QStringList texts;
    MenuVisitor visitor([&](QMenu& menu) {
        for (const QAction* action : menu.actions())
            texts << action->text();
    });
    QContextMenuEvent event(byKeyboard ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse,
                            position, widget.mapToGlobal(position));
    QCoreApplication::sendEvent(&widget, &event);
    [&] { QTRY_VERIFY(visitor.hasSeenMenu()); }();
    return texts;
}

/// A page that refuses to close when its name is "stubborn".
class Page : public QWidget
{
protected:
    void closeEvent(QCloseEvent* event) override
    {
        event->setAccepted(objectName() != u"stubborn"_s);
    }
};

QStringList names(const QTabWidget& tabs)
{
    QStringList result;
    for (int i = 0; i < tabs.count(); ++i)
        result << tabs.tabText(i);
    return result;
}

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
    using Tabs = TestRows<std::function<void(ClosableTabWidget&)>, QStringList>;
    using Circle = TestRows<double, CircleLayout::Direction, Qt::LayoutDirection, QPoint>;

public Q_SLOTS:
    void slotHotKey(int id) { m_firedHotKey = id; }

private Q_SLOTS:
    void menusOpenWhereTheyAreWanted();
    void menusLeaveRoomForOthers();
    void menusRunHotKeys();
    void tabsClose_data();
    void tabsClose();
    void tabsComeBack();
    void flashes_data();
    void flashes();
    void flashEndsEarly();
    void animationSleepsUnseen();
    void circleTurns_data();
    void circleTurns();
    void circleHasRoom();
    void barMovesWhatDoesNotFit();

private:
    int m_firedHotKey = 0;
};

void tst_Widgets::menusOpenWhereTheyAreWanted()
{
    QWidget panel;
    auto* layout = new QVBoxLayout(&panel);
    ContextMenuRequest seen;
    new ContextMenuHandler(&panel, [&seen](QMenu& menu, const ContextMenuRequest& request) {
        seen = request;
        menu.addAction(u"own"_s);
    });
    // Widgets that come later belong to it, too.
    auto* list = new QListWidget;
    list->addItems({u"a"_s, u"b"_s, u"c"_s});
    auto* text = new QPlainTextEdit(u"one\ntwo"_s);
    auto* label = new QLabel(u"label"_s);
    for (QWidget* widget : QList<QWidget*>{list, text, label})
        layout->addWidget(widget);
    panel.show();

    const QPoint inSecond = list->visualItemRect(list->item(1)).center();
    QCOMPARE(menuTexts(*list->viewport(), inSecond), QStringList(u"own"_s));
    QVERIFY(seen.widget == list && seen.position == inSecond && !seen.isByKeyboard);
    QCOMPARE(seen.index.row(), 1);
    list->setCurrentRow(2);
    QCOMPARE(menuTexts(*list, list->rect().center(), true), QStringList(u"own"_s));
    QCOMPARE(seen.index.row(), 2);
    QVERIFY(list->visualItemRect(list->item(2)).contains(seen.position));
    text->moveCursor(QTextCursor::End);
    const QStringList entries = menuTexts(*text, {}, true);
    QCOMPARE(entries.first(), u"own"_s);
    QVERIFY(entries.size() > 5); // with Undo, Copy, Paste
    QVERIFY(text->cursorRect().adjusted(-1, -1, 1, 1).contains(seen.position));
    menuTexts(*label, QPoint(3, 4));
    QVERIFY(seen.widget == label && seen.position == QPoint(3, 4));
    // A keyboard without a Menu key.
    panel.activateWindow();
    list->setFocus();
    QTRY_VERIFY(list->hasFocus());
    MenuVisitor visitor([&](const QMenu& menu) { QVERIFY(menu.activeAction() != nullptr); });
    QTest::keyClick(list, Qt::Key_F10, Qt::ShiftModifier);
    QTRY_VERIFY(visitor.hasSeenMenu());
    QVERIFY(seen.widget == list && seen.isByKeyboard);
}

void tst_Widgets::menusLeaveRoomForOthers()
{
    QWidget outer;
    auto* inner = new QWidget(&outer);
    auto* child = new QLabel(inner);
    auto* custom = new QLabel(&outer);
    custom->setContextMenuPolicy(Qt::CustomContextMenu);
    const QSignalSpy asked(custom, &QWidget::customContextMenuRequested);
    bool hasInnerEntries = true;
    new ContextMenuHandler(inner, [&](QMenu& menu, const ContextMenuRequest&) {
        if (hasInnerEntries)
            menu.addAction(u"inner"_s);
    });
    new ContextMenuHandler(
        &outer, [](QMenu& menu, const ContextMenuRequest&) { menu.addAction(u"outer"_s); });
    outer.show();
    QCOMPARE(menuTexts(*child, {}), QStringList(u"inner"_s));
    hasInnerEntries = false;
    QCOMPARE(menuTexts(*child, {}), QStringList(u"outer"_s));
    QContextMenuEvent event(QContextMenuEvent::Mouse, {}, {});
    QCoreApplication::sendEvent(custom, &event);
    QCOMPARE(asked.size(), 1);
    // Filling the menu may take the widget away.
    auto* gone = new QWidget;
    new ContextMenuHandler(gone, [gone](QMenu&, const ContextMenuRequest&) { delete gone; });
    QContextMenuEvent last(QContextMenuEvent::Mouse, {}, {});
    QCoreApplication::sendEvent(gone, &last);
}

void tst_Widgets::menusRunHotKeys()
{
    GuiBase& services = GuiBase::Instance();
    const int id = services.AddHotKey(Qt::Key_F7, Qt::ControlModifier, this, u"Scan & go"_s,
                                      u"Test"_s, true, true);
    QMenu menu;
    QAction* entry = ContextMenuHandler::addHotKey(menu, id);
    QCOMPARE(entry->text(), u"Scan && go\tCtrl+F7"_s);
    entry->trigger();
    QTRY_COMPARE(m_firedHotKey, id);
    QVERIFY(ContextMenuHandler::addHotKey(menu, id + 1) == nullptr);
    services.RemoveHotKey(id, true);
}

void tst_Widgets::tabsClose_data()
{
    // Tabs: plain, fixed, stubborn, last; the third refuses, the user cannot close the second.
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        return [key, modifiers](ClosableTabWidget& tabs) {
            tabs.setCurrentIndex(0);
            QTest::keyClick(tabs.currentWidget(), key, modifiers);
        };
    };
    const auto click = [](int tab, int releasedOn) {
        return [tab, releasedOn](ClosableTabWidget& tabs) {
            QTabBar* bar = tabs.tabBar();
            QTest::mousePress(bar, Qt::MiddleButton, {}, bar->tabRect(tab).center());
            QTest::mouseRelease(bar, Qt::MiddleButton, {}, bar->tabRect(releasedOn).center());
        };
    };
    const auto entry = [](int tab, int number) {
        return [tab, number](ClosableTabWidget& tabs) {
            QMenu menu;
            tabs.addTabEntries(menu, tab);
            menu.actions().at(number)->trigger();
        };
    };
    const QStringList all{u"plain"_s, u"fixed"_s, u"stubborn"_s, u"last"_s};
    const QStringList behind = all.sliced(1);
    Tabs row;
    row("key", press(Qt::Key_W, Qt::ControlModifier), behind);
    row("other key", press(Qt::Key_W, Qt::AltModifier), all);
    row("click", click(0, 0), behind);
    row("click elsewhere", click(0, 3), all);
    row("click on fixed", click(1, 1), all);
    row("click on stubborn", click(2, 2), all);
    row("entry", entry(0, 0), behind);
    row("entry of fixed", entry(1, 0), all);
    row("others", entry(3, 1), behind);
    row("to the right", entry(0, 2), {u"plain"_s, u"fixed"_s, u"stubborn"_s});
    row("by program", [](ClosableTabWidget& tabs) { tabs.closeTab(1); },
        {u"plain"_s, u"stubborn"_s, u"last"_s});
}

void tst_Widgets::tabsClose()
{
    const auto [act, left] = Tabs::fetch();
    ClosableTabWidget tabs;
    for (const char* name : {"plain", "fixed", "stubborn", "last"}) {
        auto* page = new Page;
        page->setObjectName(QString::fromLatin1(name));
        tabs.addTab(page, page->objectName());
    }
    tabs.setTabClosable(1, false);
    tabs.setTabClosable(2, false);
    tabs.setTabClosable(2, true);
    tabs.resize(500, 200);
    tabs.show();
    const auto side = static_cast<QTabBar::ButtonPosition>(
        tabs.style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition));
    for (int i = 0; i < tabs.count(); ++i)
        QCOMPARE(tabs.tabBar()->tabButton(i, side) != nullptr, i != 1);
    const QSignalSpy closed(&tabs, &ClosableTabWidget::tabClosed);
    act(tabs);
    QCOMPARE(names(tabs), left);
    QCOMPARE(closed.size(), 4 - left.size());
    QCOMPARE(tabs.canReopen(), !closed.isEmpty());
}

void tst_Widgets::tabsComeBack()
{
    ClosableTabWidget tabs;
    tabs.show();
    QList<QPointer<QWidget>> pages;
    for (const char* name : {"a", "b", "c", "d"}) {
        pages << new QWidget;
        tabs.addTab(pages.last(), QString::fromLatin1(name));
    }
    tabs.setTabToolTip(1, u"second"_s);
    pages[3]->setAttribute(Qt::WA_DeleteOnClose);
    QVERIFY(tabs.closeTab(3) && !tabs.canReopen());
    QTRY_VERIFY(pages[3] == nullptr);
    QVERIFY(tabs.closeTab(1) && tabs.closeTab(0) && tabs.canReopen());
    QTest::keyClick(tabs.currentWidget(), Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(names(tabs), QStringList({u"a"_s, u"c"_s}));
    tabs.reopenTab();
    QCOMPARE(names(tabs), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    QVERIFY(tabs.currentWidget() == pages[1] && pages[1]->isVisible());
    QCOMPARE(tabs.tabToolTip(1), u"second"_s);
    tabs.closeTab(0);
    tabs.closeTab(0);
    tabs.setReopenLimit(1); // the one that was closed last stays
    QTRY_VERIFY(pages[0] == nullptr && pages[1] != nullptr);
    delete pages[1];
    tabs.reopenTab();
    QCOMPARE(names(tabs), QStringList(u"c"_s));
    const QStringList entries = menuTexts(*tabs.tabBar(), tabs.tabBar()->tabRect(0).center());
    QCOMPARE(entries.size(), 5); // with a line
}

void tst_Widgets::flashes_data()
{
    TestRows<bool, int> row; // Motion is wanted; how often the overlay appears.
    row("blinking", true, 2);
    row("standing", false, 1);
}

void tst_Widgets::flashes()
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
    QVERIFY(lit.pixel(21, 31) != before.pixel(21, 31) && lit.pixel(60, 60) != before.pixel(60, 60));
    QCOMPARE(lit.pixel(10, 10), before.pixel(10, 10));
    QCOMPARE(splitter->count(), 1);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(appearances.count, times);
    QVERIFY(!WidgetFlasher::isFlashing(splitter));
    QCOMPARE(window.grab().toImage(), before);
    QCOMPARE(splitter->palette(), palette);
}

void tst_Widgets::flashEndsEarly()
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
}

void tst_Widgets::animationSleepsUnseen()
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

void tst_Widgets::circleTurns_data()
{
    // Start angle, direction, layout direction, where the second of four boxes is from the middle.
    using D = CircleLayout::Direction;
    Circle row;
    row("clockwise", 0, D::Clockwise, Qt::LeftToRight, {1, 0});
    row("counter-clockwise", 0, D::CounterClockwise, Qt::LeftToRight, {-1, 0});
    row("mirrored", 0, D::Clockwise, Qt::RightToLeft, {-1, 0});
    row("from the right", 90, D::Clockwise, Qt::LeftToRight, {0, 1});
    row("twice around", -630, D::Clockwise, Qt::LeftToRight, {0, 1});
}

void tst_Widgets::circleTurns()
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
    const QPoint offset = circle->itemAt(1)->geometry().center() - QPoint(100, 100) - place * 50;
    QVERIFY(offset.manhattanLength() <= 2);
    delete circle->takeAt(1);
    QVERIFY(circle->count() == 3 && circle->takeAt(3) == nullptr && circle->itemAt(-1) == nullptr);
}

void tst_Widgets::circleHasRoom()
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

void tst_Widgets::barMovesWhatDoesNotFit()
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
    container->removeWidget(boxes[1]);
    delete boxes[1];
    QTRY_VERIFY(container->hiddenWidgets().isEmpty() && boxes[3]->isVisible());
    QVERIFY(boxes[3]->x() > boxes[2]->geometry().right());
    window.addToolBar(Qt::LeftToolBarArea, bar);
    QTRY_VERIFY(boxes[3]->y() > boxes[2]->geometry().bottom());
    QCOMPARE(container->orientation(), Qt::Vertical);
}

QTEST_MAIN(tst_Widgets)
#include "tst_widgets.moc"
