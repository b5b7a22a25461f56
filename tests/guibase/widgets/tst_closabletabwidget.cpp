// SPDX-License-Identifier: MIT
#include "menutexts.h"
#include "support/guardedtest.h"

#include <guibase/widgets/closabletabwidget.h>

#include <QCloseEvent>
#include <QPointer>
#include <QStyle>
#include <QTabBar>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

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

} // namespace

class tst_ClosableTabWidget : public GuardedTest
{
    Q_OBJECT
    using Rows = TestRows<std::function<void(ClosableTabWidget&)>, QStringList>;

private Q_SLOTS:
    void closes_data()
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
        Rows row;
        row("key", press(Qt::Key_W, Qt::ControlModifier), behind);
        row("other key", press(Qt::Key_W, Qt::AltModifier), all);
        row(
            "key after a choice by mouse",
            [](ClosableTabWidget& tabs) {
                QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {},
                                  tabs.tabBar()->tabRect(0).center());
                if (tabs.focusWidget() != nullptr)
                    QTest::keyClick(tabs.focusWidget(), Qt::Key_W, Qt::ControlModifier);
            },
            behind);
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
    void closes()
    {
        const auto [act, left] = Rows::fetch();
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
    void reopens()
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
};

QTEST_MAIN(tst_ClosableTabWidget)
#include "tst_closabletabwidget.moc"
