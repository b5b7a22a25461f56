// SPDX-License-Identifier: MIT
#include <guibase/lists/checksortlistviewitem.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortlistviewitem.h>

#include "support/guardedtest.h"

#include <QCheckBox>

#include <memory>

namespace {

QString texts(const QTreeWidgetItem& item)
{
    QStringList all;
    for (int column = 0; column < item.columnCount(); ++column)
        all << item.text(column);
    return all.join(u'|');
}

QCheckBox* boxOf(QTreeWidgetItem* item)
{
    return qobject_cast<QCheckBox*>(item->treeWidget()->itemWidget(item, 0));
}

// A text in quotes must not turn into "insert on top".
static_assert(!std::is_constructible_v<SortListViewItem, QTreeWidget*, const char*>);
static_assert(!std::is_constructible_v<CheckSortListViewItem, QTreeWidget*, const char*>);

const QString a = QStringLiteral("a");
const QString b = QStringLiteral("b");
const QString c = QStringLiteral("c");

} // namespace

class tst_SortListViewItem : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void construction()
    {
        SortListView list;
        list.setColumnCount(8);
        list.setColumnAlignment(3, Qt::AlignRight);
        list.setColumnAlignment(1, Qt::AlignHCenter);
        auto* const first = new SortListViewItem(&list, a, QString(), c);
        QCOMPARE(texts(*first), QStringLiteral("a|||"));
        QCOMPARE(first->textAlignment(0), int(Qt::AlignRight));
        QCOMPARE(first->textAlignment(1), int(Qt::AlignHCenter));
        auto* const top =
            new SortListViewItem(&list, a, QStringLiteral(""), c, a, b, c, a, b, true);
        QCOMPARE(texts(*top), QStringLiteral("a||c|a|b|c|a|b"));
        auto* const second = new SortListViewItem(&list, top, b);
        auto* const child = new SortListViewItem(first, b);
        auto* const elder = new SortListViewItem(first, nullptr, a);
        auto* const listed = new SortListViewItem(&list, QStringList{a, QString(), c});
        QCOMPARE(list.indexOfTopLevelItem(top), 0);
        QCOMPARE(list.indexOfTopLevelItem(second), 1);
        QCOMPARE(list.indexOfTopLevelItem(listed), 3);
        QCOMPARE(first->indexOfChild(elder), 0);
        QCOMPARE(child->textAlignment(2), int(Qt::AlignRight));
        QCOMPARE(listed->text(2), c);
        SortListViewItem loose(static_cast<QTreeWidgetItem*>(nullptr), a);
        loose.moveItem(first);
        loose.SetSortKey(0, b); // no room
        QVERIFY(!loose.listView() && !loose.itemAbove() && loose.height() == 0 &&
                !loose.HasSortKey(0));
    }
    void navigation()
    {
        SortListView list;
        list.setColumnCount(1);
        auto* const first = new SortListViewItem(&list, a);
        auto* const second = new SortListViewItem(&list, b);
        auto* const child = new SortListViewItem(first, a);
        auto* const sibling = new SortListViewItem(first, c);
        list.show();
        QVERIFY(list.firstChild() == first && list.nextChild() == second);
        QVERIFY(list.nextChild() == nullptr && list.nextChild() == nullptr);
        QVERIFY(first->firstChild() == child && child->nextSibling() == sibling);
        QVERIFY(first->nextChild() == nullptr && sibling->nextSibling() == nullptr);
        QVERIFY(first->nextSibling() == second && second->itemAbove() == first);
        QCOMPARE(list.findItem(QStringLiteral("C"), 0, Qt::CaseInsensitive), sibling);
        QVERIFY(list.findItem(QStringLiteral("C"), 0) == nullptr);
        list.takeItem(child);
        list.takeItem(child);
        delete child;
        QCOMPARE(first->childCount(), 1);
    }
    void moving()
    {
        SortListView list;
        list.setColumnCount(1);
        for (const QString& text : {a, b, c})
            new SortListViewItem(&list, text);
        const auto order = [&list] {
            return list.topLevelItem(0)->text(0) + list.topLevelItem(1)->text(0) +
                   list.topLevelItem(2)->text(0);
        };
        auto* const item = static_cast<SortListViewItem*>(list.topLevelItem(0));
        item->setSelected(true);
        item->moveItem(list.topLevelItem(1));
        QCOMPARE(order(), QStringLiteral("bac"));
        QVERIFY(item->isSelected());
        item->moveItem(list.topLevelItem(0));
        QCOMPARE(order(), QStringLiteral("abc"));
        item->moveItem(item);
        item->moveItem(nullptr);
        QCOMPARE(order(), QStringLiteral("abc"));
        auto* const child = new SortListViewItem(list.topLevelItem(2), QStringLiteral("d"));
        child->moveItem(list.topLevelItem(0));
        QCOMPARE(list.indexOfTopLevelItem(child), 0);
        // Whoever acts on changes of the selection is not called while the row is away.
        list.setCurrentItem(child);
        connect(&list, &QTreeWidget::itemSelectionChanged, &list, &QTreeWidget::clear);
        connect(&list, &QTreeWidget::currentItemChanged, &list, &QTreeWidget::clear);
        child->moveItem(list.topLevelItem(2));
        QCOMPARE(list.indexOfTopLevelItem(child), 2);
        QVERIFY(list.currentItem() == child && child->isSelected());
        disconnect(&list, nullptr, &list, nullptr);
        auto* const grandchild = new QTreeWidgetItem(new QTreeWidgetItem(child));
        grandchild->parent()->setExpanded(true);
        list.setCurrentItem(grandchild);
        child->moveItem(list.topLevelItem(0));
        QVERIFY(grandchild->isSelected() && grandchild->parent()->isExpanded());
        QCOMPARE(list.QTreeWidget::currentItem(), grandchild);
    }
    void checkBoxes_data()
    {
        TestRows<bool> row;
        row("sort list view", true);
        row("plain tree widget", false);
    }
    void checkBoxes()
    {
        const bool isListView = std::get<0>(TestRows<bool>::fetch());
        const std::unique_ptr<QTreeWidget> tree(isListView ? new SortListView : new QTreeWidget);
        tree->setColumnCount(2);
        auto* const item = new CheckSortListViewItem(tree.get(), a, b);
        auto* const other = new CheckSortListViewItem(tree.get(), b);
        QCOMPARE(texts(*item), QStringLiteral("|b"));
        QCOMPARE(boxOf(item)->text(), a);
        QVERIFY(boxOf(item)->objectName().startsWith(QStringLiteral("Check_")));
        QVERIFY(boxOf(item)->objectName() != boxOf(other)->objectName());
        tree->show();
        boxOf(item)->click();
        QVERIFY(item->isOn() && !other->isOn());
        other->setTristate(true);
        other->setState(Qt::PartiallyChecked);
        QCOMPARE(boxOf(other)->checkState(), Qt::PartiallyChecked);
        for (int column : {0, 1})
            tree->sortItems(column, Qt::DescendingOrder);
        QVERIFY(boxOf(item)->isChecked());
        item->moveItem(other);
        QVERIFY(boxOf(item)->isChecked() && boxOf(item)->text() == a);
        boxOf(item)->click();
        QVERIFY(!item->isOn());
        // Out of the tree and in again.
        tree->takeTopLevelItem(tree->indexOfTopLevelItem(other));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(other->state(), Qt::PartiallyChecked);
        item->addChild(other);
        if (!isListView)
            other->setState(Qt::PartiallyChecked);
        QCOMPARE(boxOf(other)->checkState(), Qt::PartiallyChecked);
        QVERIFY(other->isTristate() && boxOf(other)->text() == b);
    }
    void checkBoxLifetimes()
    {
        auto list = std::make_unique<SortListView>();
        list->setColumnCount(1);
        auto* const parent = new CheckSortListViewItem(list.get(), a);
        auto* const child = new CheckSortListViewItem(parent, b);
        auto* const other = new CheckSortListViewItem(list.get(), c);
        list->show();
        const QPointer<QCheckBox> childBox(boxOf(child));
        list->takeTopLevelItem(0);
        list->addTopLevelItem(parent); // before the old boxes are gone
        QVERIFY(boxOf(parent) != nullptr && boxOf(child) != nullptr);
        QVERIFY(boxOf(child) != childBox);
        delete parent;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(list->findChildren<QCheckBox*>().size(), 1);
        delete boxOf(other);
        other->setOn(true);
        QVERIFY(boxOf(other)->isChecked());
        list.reset();
    }
};

QTEST_MAIN(tst_SortListViewItem)
#include "tst_sortlistviewitem.moc"
