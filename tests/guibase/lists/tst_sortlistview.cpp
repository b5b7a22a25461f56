// SPDX-License-Identifier: MIT
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortlistviewitem.h>

#include "menuvisitor.h"
#include "support/testguard.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

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

class SortListViews : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_guard = std::make_unique<TestGuard>();
        m_list = std::make_unique<SortListView>(nullptr, "List");
        for (const char* text : {"A", "B", "C"})
            m_list->addColumn(QString::fromLatin1(text));
        m_list->resize(400, 200);
    }
    void cleanup()
    {
        m_list.reset();
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }
    void columns();
    void columnMenu();
    void columnMenuOutlivesView();
    void keyboard();
    void selection();
    void rowsMayGoInSlots();
    void activation();
    void contextMenus();

private:
    void openColumnMenu(std::function<void(QMenu&)> visit)
    {
        const MenuVisitor visitor(std::move(visit));
        QHeaderView* const header = m_list->header();
        Q_EMIT header->customContextMenuRequested(QPoint(5, 5));
        QVERIFY(visitor.hasSeenMenu());
    }

    std::unique_ptr<TestGuard> m_guard;
    std::unique_ptr<SortListView> m_list;
};

void SortListViews::columns()
{
    QCOMPARE(m_list->objectName(), QStringLiteral("List"));
    QCOMPARE(m_list->columns(), 3);
    m_list->setColumnText(1, QStringLiteral("X"));
    m_list->setColumnText(7, QStringLiteral("Y"));
    QCOMPARE(m_list->addColumn(QStringLiteral("D")), 4);
    QCOMPARE(m_list->columnText(1), QStringLiteral("X"));
    QCOMPARE(m_list->columnText(4), QString());
    m_list->setColumnWidthMode(9, QHeaderView::Stretch);
    m_list->setColumnWidthMode(1, QHeaderView::Fixed);
    QCOMPARE(m_list->header()->sectionResizeMode(1), QHeaderView::Fixed);
    QCOMPARE(SortListView(nullptr, nullptr).objectName(), QString());
}

void SortListViews::columnMenu()
{
    m_list->show();
    // Off at start.
    Q_EMIT m_list->header()->customContextMenuRequested(QPoint(5, 5));
    m_list->setColumnSelectionMenu(true);
    m_list->setColumnSelectionMenu(true);
    openColumnMenu([](QMenu& menu) {
        QCOMPARE(menu.objectName(), QStringLiteral("HeaderContextMenu"));
        QCOMPARE(menu.actions().size(), 3);
        QVERIFY(menu.actions().at(1)->isChecked() && menu.actions().at(1)->isEnabled());
        MenuVisitor::choose(menu, 1);
    });
    QVERIFY(m_list->isColumnHidden(1));
    m_list->setColumnHidden(2, true);
    openColumnMenu([](QMenu& menu) {
        QVERIFY(menu.actions().at(0)->isChecked() && !menu.actions().at(0)->isEnabled());
        QVERIFY(!menu.actions().at(1)->isChecked());
        MenuVisitor::choose(menu, 1);
    });
    QVERIFY(!m_list->isColumnHidden(1));
    m_list->setColumnCount(1);
    openColumnMenu([](QMenu& menu) {
        QVERIFY(!menu.actions().at(0)->isEnabled() && !menu.actions().at(1)->isVisible());
    });
    // A column that goes while its entry is chosen.
    m_list->setColumnCount(3);
    openColumnMenu([this](QMenu& menu) {
        m_list->setColumnCount(2);
        MenuVisitor::choose(menu, 2);
    });
    m_list->setColumnSelectionMenu(false);
    Q_EMIT m_list->header()->customContextMenuRequested(QPoint(5, 5));
    QVERIFY(QApplication::activePopupWidget() == nullptr);
}

void SortListViews::columnMenuOutlivesView()
{
    m_list->setColumnSelectionMenu(true);
    m_list->show();
    openColumnMenu([this](QMenu&) { m_list.reset(); });
    QVERIFY(!m_list);
}

void SortListViews::keyboard()
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
    press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(m_list->currentColumn(), 2);
    press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(m_list->currentColumn(), 2);
    press(Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
    QCOMPARE(m_list->header()->visualIndex(2), 0);
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
    m_list->clear(); // columns can be arranged without rows, too
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    QCOMPARE(m_list->header()->sortIndicatorSection(), 2);
    press(Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
    QCOMPARE(m_list->header()->visualIndex(2), 2);
}

void SortListViews::selection()
{
    QSignalSpy spy(m_list.get(), qOverload<SortListViewItem*>(&SortListView::selectionChanged));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (int i = 0; i < 5; ++i)
        new SortListViewItem(m_list.get(), QString::number(i));
    m_list->addTopLevelItem(new QTreeWidgetItem({QStringLiteral("plain")}));
    m_list->topLevelItem(0)->setSelected(true);
    QCOMPARE(spy.size(), 0); // hidden
    m_list->show();
    m_list->clearSelection();
    m_list->topLevelItem(1)->setSelected(true);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().value<SortListViewItem*>(), m_list->topLevelItem(1));
    m_list->topLevelItem(3)->setSelected(true);
    m_list->selectAll();
    m_list->clearSelection();
    m_list->topLevelItem(5)->setSelected(true);
    QCOMPARE(spy.size(), 1);
}

void SortListViews::rowsMayGoInSlots()
{
    for (int i = 0; i < 3; ++i)
        new SortListViewItem(m_list.get(), QString::number(i));
    m_list->show();
    connect(m_list.get(), qOverload<SortListViewItem*>(&SortListView::selectionChanged),
            m_list.get(), &QTreeWidget::clear);
    m_list->topLevelItem(1)->setSelected(true);
    QCOMPARE(m_list->topLevelItemCount(), 0);
}

void SortListViews::activation()
{
    QStringList calls;
    HookedItem* item = nullptr;
    const auto note = [&calls](const char* name) { calls << QString::fromLatin1(name); };
    item = new HookedItem(m_list.get(), QStringLiteral("1"), note);
    new SortListViewItem(item, QStringLiteral("child"));
    auto* const plain = new QTreeWidgetItem(m_list.get());
    QSignalSpy clicks(m_list.get(), qOverload<SortListViewItem*>(&SortListView::clicked));
    QSignalSpy doubleClicks(m_list.get(),
                            qOverload<SortListViewItem*>(&SortListView::doubleClicked));
    m_list->show();
    item->setExpanded(true);
    item->setExpanded(false);
    Q_EMIT m_list->itemActivated(item, 0);
    Q_EMIT m_list->itemActivated(plain, 0);
    Q_EMIT m_list->itemDoubleClicked(item, 0);
    QCOMPARE(calls.join(u' '), QStringLiteral("open close activate"));
    QCOMPARE(clicks.size(), 2);
    QCOMPARE(clicks.at(1).first().value<SortListViewItem*>(), nullptr);
    QCOMPARE(doubleClicks.first().first().value<SortListViewItem*>(), item);
    // The row deletes itself.
    item = new HookedItem(m_list.get(), QStringLiteral("2"), [&item](const char*) { delete item; });
    m_list->setCurrentItem(item);
    m_list->setFocus();
    QTest::keyClick(m_list.get(), Qt::Key_Return);
    QCOMPARE(m_list->topLevelItemCount(), 2);
    // A slot deletes the row, and then the view, before the row hears of its activation.
    item = new HookedItem(m_list.get(), QStringLiteral("3"), [](const char*) { QFAIL("gone"); });
    const auto connection =
        connect(m_list.get(), qOverload<SortListViewItem*>(&SortListView::clicked), m_list.get(),
                [](SortListViewItem* clicked) { delete clicked; });
    m_list->slotClicked(item, 0);
    disconnect(connection);
    item = new HookedItem(m_list.get(), QStringLiteral("4"), [](const char*) { QFAIL("gone"); });
    connect(m_list.get(), qOverload<SortListViewItem*>(&SortListView::clicked), this,
            [this] { m_list.reset(); });
    m_list->slotClicked(item, 0);
    QVERIFY(!m_list);
}

void SortListViews::contextMenus()
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
    const int secondColumn = m_list->columnViewportPosition(1) + 3;
    request(QContextMenuEvent::Mouse, QPoint(secondColumn, m_list->itemRect(item).center().y()));
    request(QContextMenuEvent::Mouse, QPoint(390, 150));
    m_list->setCurrentItem(item, 1);
    m_list->setContextMenu(&menu);
    const MenuVisitor visitor([&menu](QMenu& shown) { QCOMPARE(&shown, &menu); });
    request(QContextMenuEvent::Keyboard, QPoint());
    QVERIFY(visitor.hasSeenMenu());
    QCOMPARE(spy.size(), 3);
    QCOMPARE(spy.at(0).at(0).value<SortListViewItem*>(), item);
    QCOMPARE(spy.at(0).at(2).toInt(), 1);
    QCOMPARE(spy.at(1).at(0).value<SortListViewItem*>(), nullptr);
    QCOMPARE(spy.at(2).at(0).value<SortListViewItem*>(), item);
    QCOMPARE(spy.at(2).at(2).toInt(), 1);
}

QTEST_MAIN(SortListViews)
#include "tst_sortlistview.moc"
