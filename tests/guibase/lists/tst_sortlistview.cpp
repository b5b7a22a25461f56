// SPDX-License-Identifier: MIT
#include "support/checked.h"
#include "support/guardedtest.h"
#include "support/menuvisitor.h"

#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortlistviewitem.h>

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>

#include <functional>
#include <memory>

namespace {

class HookedItem : public SortListViewItem
{
public:
    HookedItem(QTreeWidget* tree, const QString& text, std::function<void(const char*)> hook)
        : SortListViewItem(tree, text)
        , m_hook(std::move(hook))
    {}
    void activate() override { call("activate"); }
    void setOpen(bool open) override { call(open ? "open" : "close"); }

private:
    void call(const char* name)
    {
        const auto hook = m_hook; // which may delete this item
        hook(name);
    }

    std::function<void(const char*)> m_hook;
};

} // namespace

class tst_SortListView : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void columnMenu()
    {
        m_list->show();
        // Off at start.
        Q_EMIT m_list->header()->customContextMenuRequested(QPoint(5, 5));
        m_list->setColumnSelectionMenu(true);
        m_list->setColumnSelectionMenu(true);
        CHECKED(openColumnMenu([](QMenu& menu) {
            QCOMPARE(menu.actions().size(), 3);
            QVERIFY(menu.actions().at(1)->isChecked() && menu.actions().at(1)->isEnabled());
            MenuVisitor::choose(menu, 1);
        }));
        QVERIFY(m_list->isColumnHidden(1));
        m_list->setColumnHidden(2, true);
        CHECKED(openColumnMenu([](QMenu& menu) {
            QVERIFY(menu.actions().at(0)->isChecked() && !menu.actions().at(0)->isEnabled());
            MenuVisitor::choose(menu, 1);
        }));
        QVERIFY(!m_list->isColumnHidden(1));
        // A column that goes while its entry is chosen, and a list that does.
        CHECKED(openColumnMenu([this](QMenu& menu) {
            m_list->setColumnCount(2);
            MenuVisitor::choose(menu, 2);
        }));
        CHECKED(openColumnMenu([this](QMenu&) { m_list.reset(); }));
        QVERIFY(!m_list);
    }
    void keyboard()
    {
        new SortListViewItem(m_list.get(), QStringLiteral("1"), QStringLiteral("2"));
        new SortListViewItem(m_list.get(), QStringLiteral("2"), QStringLiteral("1"));
        m_list->show();
        m_list->setCurrentItem(m_list->topLevelItem(0));
        const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
            QTest::keyClick(m_list.get(), key, modifiers);
        };
        m_list->setColumnHidden(1, true);
        press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(m_list->currentColumn(), 0);
        for (int time = 0; time < 2; ++time)
            press(Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(m_list->currentColumn(), 2);
        for (int time = 0; time < 2; ++time)
            press(Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(m_list->header()->visualIndex(2), 0);
        m_list->setColumnHidden(1, false);
        m_list->setCurrentItem(m_list->topLevelItem(0), 1);
        press(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(m_list->topLevelItem(0)->text(0), QStringLiteral("2"));
        press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(m_list->topLevelItem(0)->text(0), QStringLiteral("1"));
        press(Qt::Key_H, Qt::ControlModifier | Qt::AltModifier); // off
        m_list->setColumnSelectionMenu(true);
        const MenuVisitor visitor([](QMenu& menu) { MenuVisitor::choose(menu, 0); });
        press(Qt::Key_H, Qt::ControlModifier | Qt::AltModifier);
        QVERIFY(visitor.hasSeenMenu() && m_list->isColumnHidden(0));
        const QTreeWidgetItem* const current = m_list->currentItem();
        press(Qt::Key_Tab, Qt::NoModifier); // to the next widget, not the next row
        QCOMPARE(m_list->currentItem(), current);
        m_list->clear(); // columns can be arranged without rows, too
        press(Qt::Key_Left, Qt::AltModifier);
        press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(m_list->header()->sortIndicatorSection(), 2);
        press(Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(m_list->header()->visualIndex(2), 2);
    }
    void selection()
    {
        QSignalSpy spy(m_list.get(), qOverload<SortListViewItem*>(&SortListView::selectionChanged));
        m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        for (int i = 0; i < 3; ++i)
            new SortListViewItem(m_list.get(), QString::number(i));
        m_list->addTopLevelItem(new QTreeWidgetItem({QStringLiteral("plain")}));
        m_list->topLevelItem(0)->setSelected(true); // hidden
        m_list->show();
        m_list->clearSelection();
        m_list->topLevelItem(1)->setSelected(true);
        m_list->selectAll();
        m_list->clearSelection();
        m_list->topLevelItem(3)->setSelected(true);
        QCOMPARE(spy.size(), 1);
        m_list->topLevelItem(2)->setHidden(true);
        const auto index = [this](int row) { return m_list->model()->index(row, 0); };
        m_list->selectionModel()->select({index(1), index(2)}, QItemSelectionModel::ClearAndSelect);
        QCOMPARE(spy.size(), 2);
        QCOMPARE(spy.first().first().value<SortListViewItem*>(), m_list->topLevelItem(1));
        connect(m_list.get(), qOverload<SortListViewItem*>(&SortListView::selectionChanged),
                m_list.get(), &QTreeWidget::clear);
        m_list->setCurrentItem(m_list->topLevelItem(1));
        QCOMPARE(m_list->topLevelItemCount(), 0);
    }
    void activation()
    {
        QStringList calls;
        const auto note = [&calls](const char* name) { calls << QString::fromLatin1(name); };
        HookedItem* item = new HookedItem(m_list.get(), QStringLiteral("1"), note);
        new SortListViewItem(item, QStringLiteral("child"));
        auto* const plain = new QTreeWidgetItem(m_list.get());
        QSignalSpy clicks(m_list.get(), qOverload<SortListViewItem*>(&SortListView::clicked));
        m_list->show();
        item->setExpanded(true);
        item->setExpanded(false);
        Q_EMIT m_list->itemActivated(item, 0);
        Q_EMIT m_list->itemActivated(plain, 0);
        QCOMPARE(calls.join(u' '), QStringLiteral("open close activate"));
        QCOMPARE(clicks.size(), 2);
        QCOMPARE(clicks.at(1).first().value<SortListViewItem*>(), nullptr);
        // The row deletes itself.
        item = new HookedItem(m_list.get(), QStringLiteral("2"),
                              [&item](const char*) { delete item; });
        m_list->slotClicked(item, 0);
        QCOMPARE(m_list->topLevelItemCount(), 2);
        // A slot deletes the row, and then the view, before the row hears of its activation.
        const auto fail = [](const char*) { QFAIL("gone"); };
        const auto connection =
            connect(m_list.get(), qOverload<SortListViewItem*>(&SortListView::clicked),
                    m_list.get(), [](SortListViewItem* clicked) { delete clicked; });
        m_list->slotClicked(new HookedItem(m_list.get(), QStringLiteral("3"), fail), 0);
        disconnect(connection);
        item = new HookedItem(m_list.get(), QStringLiteral("4"), fail);
        connect(m_list.get(), qOverload<SortListViewItem*>(&SortListView::clicked), this,
                [this] { m_list.reset(); });
        m_list->slotClicked(item, 0);
        QVERIFY(!m_list);
    }
    void contextMenus()
    {
        auto* const item = new SortListViewItem(m_list.get(), QStringLiteral("1"));
        m_list->show();
        QMenu menu;
        menu.addAction(QStringLiteral("Entry"));
        QSignalSpy spy(m_list.get(), &SortListView::contextMenuRequested);
        const auto request = [this](QContextMenuEvent::Reason reason, QPoint position) {
            QContextMenuEvent event(reason, position, m_list->viewport()->mapToGlobal(position));
            QCoreApplication::sendEvent(m_list->viewport(), &event);
        };
        request(QContextMenuEvent::Mouse, QPoint(390, 150));
        m_list->setCurrentItem(item, 1);
        m_list->setContextMenu(&menu);
        const MenuVisitor visitor([&menu](QMenu& shown) { QCOMPARE(&shown, &menu); });
        request(QContextMenuEvent::Keyboard, QPoint());
        QVERIFY(visitor.hasSeenMenu());
        QCOMPARE(spy.at(0).at(0).value<SortListViewItem*>(), nullptr);
        QCOMPARE(spy.at(1).at(0).value<SortListViewItem*>(), item);
        QCOMPARE(spy.at(1).at(2).toInt(), 1);
    }

private:
    void prepare() override
    {
        m_list = std::make_unique<SortListView>(nullptr, "List");
        for (const char* text : {"A", "B", "C"})
            m_list->addColumn(QString::fromLatin1(text));
        m_list->resize(400, 200);
    }
    void tidy() override { m_list.reset(); }
    void openColumnMenu(std::function<void(QMenu&)> visit)
    {
        const MenuVisitor visitor(std::move(visit));
        QHeaderView* const header = m_list->header();
        Q_EMIT header->customContextMenuRequested(QPoint(5, 5));
        QVERIFY(visitor.hasSeenMenu());
    }

    std::unique_ptr<SortListView> m_list;
};

QTEST_MAIN(tst_SortListView)
#include "tst_sortlistview.moc"
