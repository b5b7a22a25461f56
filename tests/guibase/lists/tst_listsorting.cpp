// SPDX-License-Identifier: MIT
#include <guibase/lists/isortcallback.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortlistviewitem.h>

#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

#include <memory>
#include <vector>

namespace {

int byLength(const QString& x, const QString& y)
{
    return static_cast<int>(y.size() - x.size());
}

/// The stated rule, computed anew for every comparison.
struct Rule
{
    SortListView::CompareFunction function = nullptr;

    bool isLess(const QString& a, const QString& b) const
    {
        return (function == nullptr ? QString::compare(a, b) : function(b, a)) < 0;
    }
};

class RuleItem : public QTreeWidgetItem
{
public:
    RuleItem(const Rule& rule, const QString& text, const QString& key, int number)
        : QTreeWidgetItem(QStringList{text, QString::number(number)})
        , m_rule(rule)
        , m_key(key)
    {}

    bool operator<(const QTreeWidgetItem& other) const override
    {
        const auto& item = static_cast<const RuleItem&>(other);
        if (!m_key.isEmpty() && !item.m_key.isEmpty())
            return m_rule.isLess(m_key, item.m_key);
        return m_rule.isLess(text(0), item.text(0));
    }

private:
    const Rule& m_rule;
    QString m_key;
};

QString randomText(RandomBytes& random, int kind)
{
    static const QStringList odd =
        QStringLiteral("| 3 kHz|nan|inf|-0|1e3 Hz|12.|.5|9007199254740993|0.1234567890123456789|"
                       "Station \u00e4|station \u00c4|\U00010428x|\U00010400y|\ufb00|stra\u00dfe|"
                       "STRASSE|Station")
            .split(u'|');
    const QString number = QString::number((random.below(400) - 100) / 8.0);
    switch (kind == 0 ? 1 + random.below(3) : kind) {
    case 1:
        return number + (random.below(2) == 0 ? QStringLiteral(" MHz") : QString());
    case 2:
        return (random.below(2) == 0 ? QStringLiteral("Station ") : QStringLiteral("station ")) +
               number;
    default:
        return odd.at(random.below(static_cast<int>(odd.size())));
    }
}

QStringList numbersBelow(const QTreeWidgetItem& parent)
{
    QStringList numbers;
    for (int i = 0; i < parent.childCount(); ++i)
        numbers << parent.child(i)->text(1) << numbersBelow(*parent.child(i));
    return numbers;
}

QString firstTexts(const QTreeWidget& list)
{
    QString texts;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        texts += list.topLevelItem(i)->text(0);
    return texts;
}

void fill(SortListView& list, const QString& letters)
{
    for (const QChar letter : letters)
        new SortListViewItem(&list, QString(letter));
}

class Callback : public ISortCallback
{
public:
    explicit Callback(bool answer)
        : m_answer(answer)
    {}
    bool sort(int column, bool ascending) override
    {
        calls << QStringLiteral("%1%2").arg(column).arg(QChar(ascending ? u'+' : u'-'));
        return m_answer;
    }

    QStringList calls;

private:
    bool m_answer;
};

} // namespace

class ListSorting : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void sortsAsStated();
    void compareFunctions_data();
    void compareFunctions();
    void keepsWhatTheUserSees();
    void subclassesMayCompare();
    void sortsOnlyWhenItMay();
    void callbackDecides();
    void headerClicks();
    void arrivalsGoToTheirPlaces();
    void rowsPlacedByHandStay();
};

void ListSorting::sortsAsStated()
{
    RandomBytes random("sorted lists");
    const std::array<SortListView::CompareFunction, 5> functions{
        nullptr, SortListView::_compStandardString, SortListView::_compStandardNumeric,
        SortListView::_compNumericWithSuffix, byLength};
    for (int round = RandomBytes::rounds(300); round > 0; --round) {
        const Rule rule{functions[std::size_t(random.below(int(functions.size())))]};
        const int textKind = random.below(4);
        const int keyShare = random.below(3); // none, some, all
        const bool arriving = random.below(3) == 0;
        SortListView list;
        QTreeWidget model;
        list.setColumnCount(2);
        model.setColumnCount(2);
        list.SetCompareFunctionLength(1);
        list.SetCompareFunction(0, rule.function);
        list.show();
        const auto addRow = [&](int number) {
            const QString text = randomText(random, textKind);
            const QString key = random.below(2) < keyShare ? randomText(random, 0) : QString();
            const int parent = random.below(8) == 0 ? random.below(number + 1) : number;
            auto* const modelItem = new RuleItem(rule, text, key, number);
            SortListViewItem* item = nullptr;
            if (parent < list.topLevelItemCount()) {
                item = new SortListViewItem(list.topLevelItem(parent), text);
                model.topLevelItem(parent)->addChild(modelItem);
            } else {
                item = new SortListViewItem(&list, text);
                model.addTopLevelItem(modelItem);
            }
            item->setText(1, QString::number(number));
            item->SetColCount(1);
            item->SetSortKey(0, key);
        };
        const auto order = random.below(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder;
        const int rows = random.below(60);
        for (int number = 0; number < rows; ++number)
            addRow(number);
        list.sortByColumn(0, order);
        model.sortItems(0, order);
        if (arriving) {
            for (int number = rows; number < rows + 10; ++number)
                addRow(number);
            QCoreApplication::processEvents();
            model.sortItems(0, order);
        }
        QCOMPARE(numbersBelow(*list.invisibleRootItem()), numbersBelow(*model.invisibleRootItem()));
        list.sortByColumn(0, Qt::AscendingOrder);
        list.QTreeWidget::sortItems(0, order); // without keys that were read before
        model.sortItems(0, Qt::AscendingOrder);
        model.sortItems(0, order);
        QCOMPARE(numbersBelow(*list.invisibleRootItem()), numbersBelow(*model.invisibleRootItem()));
    }
}

void ListSorting::compareFunctions_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("expected"); // sign of a against b
    const auto row = [](int function, const char* a, const char* b, int expected) {
        QTest::addRow("%d: %s, %s", function, a, b)
            << function << QString::fromUtf8(a) << QString::fromUtf8(b) << expected;
    };
    row(0, "b", "A", 1);
    row(1, "10", "9", 1);
    row(1, "9 Hz", "10", 0);
    row(2, "12.5 MHz", "3 MHz", 1);
    row(2, "3", "12.5 MHz", -1);
    row(2, "MHz", "3", 0);
    row(2, " 4", "3", 0);
}

void ListSorting::compareFunctions()
{
    QFETCH(int, function);
    QFETCH(QString, a);
    QFETCH(QString, b);
    SortListView list;
    list.setColumnCount(3);
    list.SetCompareFunctionLength(3);
    list.SetCompareFunction(0, SortListView::_compStandardString);
    list.SetCompareFunction(1, SortListView::_compStandardNumeric);
    list.SetCompareFunction(2, SortListView::_compNumericWithSuffix);
    QCOMPARE(list.SortFunction(function, a, b), 0);
    list.show();
    const int result = list.SortFunction(function, a, b);
    QTEST((result > 0) - (result < 0), "expected");
}

void ListSorting::keepsWhatTheUserSees()
{
    SortListView list;
    list.setColumnCount(1);
    list.resize(200, 150);
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (int i = 0; i < 200; ++i)
        new SortListViewItem(&list, QString::number(i * 7919 % 1000));
    list.show();
    QCoreApplication::processEvents();
    QTreeWidgetItem* const current = list.topLevelItem(50);
    new SortListViewItem(current, QStringLiteral("child"));
    list.setCurrentItem(current);
    list.topLevelItem(3)->setSelected(true);
    current->setExpanded(true);
    list.topLevelItem(7)->setHidden(true);
    const QTreeWidgetItem* const hidden = list.topLevelItem(7);
    list.verticalScrollBar()->setValue(20);
    const QList<QTreeWidgetItem*> selected = list.selectedItems();
    list.setSorting(0, Qt::DescendingOrder);
    QCoreApplication::processEvents();
    QVERIFY(list.indexOfTopLevelItem(current) != 50);
    QCOMPARE(list.currentItem(), current);
    const QList<QTreeWidgetItem*> after = list.selectedItems();
    QCOMPARE(QSet<QTreeWidgetItem*>(after.begin(), after.end()),
             QSet<QTreeWidgetItem*>(selected.begin(), selected.end()));
    QVERIFY(current->isExpanded() && hidden->isHidden());
    QCOMPARE(list.verticalScrollBar()->value(), 20);
    // Arrivals above do not push the others down.
    for (const auto mode : {QAbstractItemView::ScrollPerItem, QAbstractItemView::ScrollPerPixel}) {
        list.setVerticalScrollMode(mode);
        list.verticalScrollBar()->setValue(50);
        const QTreeWidgetItem* const top = list.itemAt(QPoint(0, 0));
        const QRect place = list.visualItemRect(top);
        const QString text(mode == QAbstractItemView::ScrollPerItem ? u'y' : u'z');
        fill(list, text.repeated(4));
        QTRY_COMPARE(list.topLevelItem(3)->text(0), text);
        QCOMPARE(list.visualItemRect(top), place);
    }
}

void ListSorting::subclassesMayCompare()
{
    class Backwards : public SortListViewItem
    {
    public:
        using SortListViewItem::SortListViewItem;
        bool operator<(const QTreeWidgetItem& other) const override
        {
            return other.text(0) < text(0);
        }
    };
    SortListView list;
    list.setColumnCount(1);
    for (const QChar letter : QStringLiteral("bca"))
        new Backwards(&list, QString(letter));
    list.show();
    QCOMPARE(firstTexts(list), QStringLiteral("cba"));
    // Rows of another kind are compared by their texts.
    list.addTopLevelItem(new QTreeWidgetItem({QStringLiteral("d")}));
    fill(list, QStringLiteral("e"));
    list.setSorting(0, false);
    list.setSorting(0, true);
    QCOMPARE(list.topLevelItemCount(), 5);
    delete list.takeTopLevelItem(0);

    QTreeWidget plain;
    plain.setColumnCount(1);
    for (const QChar letter : QStringLiteral("bca"))
        new SortListViewItem(&plain, QString(letter));
    plain.sortItems(0, Qt::AscendingOrder);
    QCOMPARE(firstTexts(plain), QStringLiteral("abc"));
}

void ListSorting::sortsOnlyWhenItMay()
{
    SortListView list;
    list.setColumnCount(1);
    fill(list, QStringLiteral("bca"));
    list.setSorting(0, Qt::DescendingOrder);
    list.sortItems(0, Qt::AscendingOrder);
    QCOMPARE(firstTexts(list), QStringLiteral("bca"));
    list.show();
    QCOMPARE(firstTexts(list), QStringLiteral("cba"));
    list.AllowSort(false);
    list.setSorting(0, true);
    list.hide();
    list.show();
    QCOMPARE(firstTexts(list), QStringLiteral("cba"));
    list.AllowSort(true);
    for (const int column : {-1, 1, 4000}) {
        list.setSorting(column, false);
        QCOMPARE(firstTexts(list), QStringLiteral("cba"));
    }
    QCOMPARE(list.GetColumnSortingOrder(), Qt::DescendingOrder);
    list.setSorting(0, true);
    QCOMPARE(firstTexts(list), QStringLiteral("abc"));
}

void ListSorting::callbackDecides()
{
    Callback sorts(true);
    Callback declines(false);
    SortListView list;
    list.setColumnCount(2);
    list.SetCompareFunctionLength(1);
    list.SetCompareFunction(0, SortListView::_compStandardString);
    fill(list, QStringLiteral("bca"));
    list.SetSortCallback(&sorts);
    list.show();
    list.setSorting(1, false);
    QCOMPARE(sorts.calls, QStringList({QStringLiteral("0+"), QStringLiteral("1-")}));
    list.SetSortCallback(&declines);
    QVERIFY(!list.HasSortFunction(0));
    list.setSorting(0, true);
    QCOMPARE(declines.calls, QStringList{QStringLiteral("0+")});
    QCOMPARE(firstTexts(list), QStringLiteral("bca"));
    list.SetSortCallback(nullptr);
    list.sort();
    QCOMPARE(firstTexts(list), QStringLiteral("abc"));
}

void ListSorting::headerClicks()
{
    SortListView list;
    list.setColumnCount(2);
    fill(list, QStringLiteral("bca"));
    list.show();
    for (const int column : {0, 1}) {
        list.slotHeaderClicked(column); // the direction stays for another column
        QCOMPARE(list.header()->sortIndicatorSection(), column);
        QCOMPARE(list.GetColumnSortingOrder(), Qt::DescendingOrder);
    }
    list.slotHeaderClicked(1);
    list.slotHeaderClicked(0);
    QCOMPARE(firstTexts(list), QStringLiteral("abc"));
}

void ListSorting::arrivalsGoToTheirPlaces()
{
    SortListView list;
    list.setColumnCount(1);
    list.show();
    fill(list, QStringLiteral("dbf"));
    list.setCurrentItem(list.topLevelItem(0));
    QCOMPARE(firstTexts(list), QStringLiteral("dbf"));
    QTRY_COMPARE(firstTexts(list), QStringLiteral("bdf"));
    QCOMPARE(list.currentItem()->text(0), QStringLiteral("d"));
    // A row that comes back with another text is read again.
    QTreeWidgetItem* const item = list.takeTopLevelItem(0);
    item->setText(0, QStringLiteral("z"));
    list.addTopLevelItem(item);
    fill(list, QStringLiteral("e"));
    QTRY_COMPARE(firstTexts(list), QStringLiteral("defz"));
    new SortListViewItem(list.topLevelItem(0), QStringLiteral("2"));
    new SortListViewItem(list.topLevelItem(0), QStringLiteral("1"));
    QTRY_COMPARE(list.topLevelItem(0)->child(0)->text(0), QStringLiteral("1"));
    fill(list, QStringLiteral("a"));
    list.clear();
    QCoreApplication::processEvents();
    auto doomed = std::make_unique<SortListView>();
    doomed->setColumnCount(1);
    doomed->show();
    fill(*doomed, QStringLiteral("ba"));
    doomed.reset();
    QCoreApplication::processEvents();
}

void ListSorting::rowsPlacedByHandStay()
{
    SortListView list;
    list.setColumnCount(1);
    fill(list, QStringLiteral("bca"));
    list.show();
    new SortListViewItem(&list, QStringLiteral("z"), {}, {}, {}, {}, {}, {}, {}, true);
    fill(list, QStringLiteral("0"));
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    QCOMPARE(firstTexts(list), QStringLiteral("zabc0"));
    list.sort();
    static_cast<SortListViewItem*>(list.topLevelItem(0))->moveItem(list.topLevelItem(4));
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    QCOMPARE(firstTexts(list), QStringLiteral("abcz0"));
}

QTEST_MAIN(ListSorting)
#include "tst_listsorting.moc"
