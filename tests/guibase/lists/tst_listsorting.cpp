// SPDX-License-Identifier: MIT
#include <guibase/lists/isortcallback.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortlistviewitem.h>

#include "support/duetimers.h"
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

int byLength(const QString& x, const QString& y)
{
    return static_cast<int>(y.size() - x.size());
}

struct Row
{
    QString text;
    QString key;
    QString number;
};

/// The stated rule, computed anew for every comparison.
bool isLess(SortListView::CompareFunction function, const Row& a, const Row& b)
{
    const bool haveKeys = !a.key.isEmpty() && !b.key.isEmpty();
    const QString& x = haveKeys ? a.key : a.text;
    const QString& y = haveKeys ? b.key : b.text;
    return (function == nullptr ? QString::compare(x, y) : function(y, x)) < 0;
}

/// Sorts the rows by the stated rule.
QString sortedNumbers(std::vector<Row>& rows, SortListView::CompareFunction function,
                      Qt::SortOrder order)
{
    std::stable_sort(rows.begin(), rows.end(), [=](const Row& a, const Row& b) {
        return order == Qt::AscendingOrder ? isLess(function, a, b) : isLess(function, b, a);
    });
    QString numbers;
    for (const Row& row : rows)
        numbers += row.number;
    return numbers;
}

void addRow(SortListView& list, std::vector<Row>& rows, const QString& text, const QString& key)
{
    rows.push_back({text, key, QString::number(rows.size()) + u' '});
    auto* const item = new SortListViewItem(&list, text, rows.back().number);
    item->SetColCount(1);
    item->SetSortKey(0, key);
}

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

QString columnTexts(const QTreeWidget& list, int column = 0)
{
    QString texts;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        texts += list.topLevelItem(i)->text(column);
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

class tst_ListSorting : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void sortsAsStated()
    {
        RandomBytes random("sorted lists");
        const std::array<SortListView::CompareFunction, 5> functions{
            nullptr, SortListView::_compStandardString, SortListView::_compStandardNumeric,
            SortListView::_compNumericWithSuffix, byLength};
        for (int round = RandomBytes::rounds(300); round > 0; --round) {
            const auto function = functions[std::size_t(random.below(int(functions.size())))];
            const int textKind = random.below(4);
            const int keyShare = random.below(3); // none, some, all
            const auto order = random.below(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder;
            SortListView list;
            list.setColumnCount(2);
            list.SetCompareFunctionLength(1);
            list.SetCompareFunction(0, function);
            list.setPlacingArrivals(true);
            list.show();
            std::vector<Row> rows;
            const auto addRows = [&](int count) {
                for (; count > 0; --count) {
                    const QString key =
                        random.below(2) < keyShare ? randomText(random, 0) : QString();
                    addRow(list, rows, randomText(random, textKind), key);
                }
            };
            const auto expected = [&](Qt::SortOrder direction) {
                return sortedNumbers(rows, function, direction);
            };
            addRows(random.below(60));
            list.sortByColumn(0, order);
            QCOMPARE(columnTexts(list, 1), expected(order));
            QSignalSpy sorts(list.model(), &QAbstractItemModel::layoutChanged);
            for (int times = random.below(4); times >= 0; --times) {
                sorts.clear();
                addRows(1 + random.below(10));
                // Also rows that are in place already: sorting them twice can make another order
                // where texts that are no numbers equal all numbers.
                QTRY_VERIFY(!sorts.isEmpty());
                QCOMPARE(columnTexts(list, 1), expected(order));
                if (random.below(3) == 0 && !rows.empty()) {
                    const int row = random.below(int(rows.size()));
                    delete list.topLevelItem(row);
                    rows.erase(rows.begin() + row);
                }
            }
            list.sortByColumn(0, Qt::AscendingOrder);
            QCOMPARE(columnTexts(list, 1), expected(Qt::AscendingOrder));
            list.QTreeWidget::sortItems(0, order); // without keys that were read before
            QCOMPARE(columnTexts(list, 1), expected(order));
        }
    }
    void compareFunctions()
    {
        struct
        {
            SortListView::CompareFunction function;
            QString a;
            QString b;
            int expected; ///< Sign of a against b.
        } const cases[] = {
            {SortListView::_compStandardString, QStringLiteral("b"), QStringLiteral("A"), 1},
            {SortListView::_compStandardNumeric, QStringLiteral("10"), QStringLiteral("9"), 1},
            {SortListView::_compStandardNumeric, QStringLiteral("9 Hz"), QStringLiteral("10"), 0},
            {SortListView::_compNumericWithSuffix, QStringLiteral("3"), QStringLiteral("12.5 k"),
             -1},
            {SortListView::_compNumericWithSuffix, QStringLiteral("MHz"), QStringLiteral("3"), 0},
            {SortListView::_compNumericWithSuffix, QStringLiteral(" 4"), QStringLiteral("3"), 0},
        };
        SortListView list;
        list.SetCompareFunctionLength(1);
        for (const auto& [function, a, b, expected] : cases) {
            list.SetCompareFunction(0, function);
            list.hide();
            QCOMPARE(list.SortFunction(0, a, b), 0);
            list.show();
            const int result = list.SortFunction(0, a, b);
            QCOMPARE((result > 0) - (result < 0), expected);
        }
    }
    void keepsWhatTheUserSees()
    {
        SortListView list;
        list.setColumnCount(1);
        list.setPlacingArrivals(true);
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
        for (const auto mode :
             {QAbstractItemView::ScrollPerItem, QAbstractItemView::ScrollPerPixel}) {
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
    void subclassesMayCompare()
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
        QCOMPARE(columnTexts(list), QStringLiteral("cba"));
        // Rows of another kind are compared by their texts.
        list.addTopLevelItem(new QTreeWidgetItem({QStringLiteral("d")}));
        fill(list, QStringLiteral("e"));
        list.setSorting(0, false);
        list.setSorting(0, true);
        QCOMPARE(list.topLevelItemCount(), 5);
        delete list.takeTopLevelItem(0);
    }
    void sortsOnlyWhenItMay()
    {
        SortListView list;
        list.setColumnCount(1);
        fill(list, QStringLiteral("bca"));
        list.setSorting(0, Qt::DescendingOrder);
        list.sortItems(0, Qt::AscendingOrder);
        QCOMPARE(columnTexts(list), QStringLiteral("bca"));
        list.show();
        QCOMPARE(columnTexts(list), QStringLiteral("cba"));
        list.AllowSort(false);
        list.setSorting(0, true);
        list.hide();
        list.show();
        QCOMPARE(columnTexts(list), QStringLiteral("cba"));
        list.AllowSort(true);
        for (const int column : {-1, 1, 4000}) {
            list.setSorting(column, false);
            QCOMPARE(columnTexts(list), QStringLiteral("cba"));
        }
        QCOMPARE(list.GetColumnSortingOrder(), Qt::DescendingOrder);
        list.setSorting(0, true);
        QCOMPARE(columnTexts(list), QStringLiteral("abc"));
    }
    void callbackDecides()
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
        QCOMPARE(columnTexts(list), QStringLiteral("bca"));
        list.SetSortCallback(nullptr);
        list.slotHeaderClicked(1); // the direction stays for another column
        QCOMPARE(list.header()->sortIndicatorSection(), 1);
        list.slotHeaderClicked(0);
        QCOMPARE(columnTexts(list), QStringLiteral("abc"));
        list.slotHeaderClicked(0);
        QCOMPARE(columnTexts(list), QStringLiteral("cba"));
    }
    void ordersOfTheToolkitStay()
    {
        SortListView list;
        list.setColumnCount(2);
        list.setPlacingArrivals(true);
        list.show();
        for (const QString& row : {QStringLiteral("a1"), QStringLiteral("b3")})
            new SortListViewItem(&list, {row.left(1), row.mid(1)});
        list.sortItems(1, Qt::DescendingOrder);
        new SortListViewItem(&list, {QStringLiteral("c"), QStringLiteral("2")});
        QTRY_COMPARE(columnTexts(list, 1), QStringLiteral("321"));
        list.setSortingEnabled(true);
        list.header()->setSortIndicator(0, Qt::DescendingOrder);
        new SortListViewItem(&list, {QStringLiteral("d"), QStringLiteral("0")});
        QTRY_COMPARE(columnTexts(list), QStringLiteral("dcba"));
        list.hide();
        list.show();
        QCOMPARE(columnTexts(list), QStringLiteral("dcba"));
        // One sort for each click; the direction stays for another column.
        QSignalSpy sorts(list.model(), &QAbstractItemModel::layoutChanged);
        for (const auto& [column, expected] :
             {std::pair(1, "bcad"), std::pair(1, "dacb"), std::pair(0, "abcd")}) {
            QTest::mouseClick(list.header()->viewport(), Qt::LeftButton, {},
                              QPoint(list.header()->sectionViewportPosition(column) + 20, 5));
            QCOMPARE(columnTexts(list), QString::fromLatin1(expected));
            QCOMPARE(sorts.size(), 1);
            sorts.clear();
        }
    }
    void arrivalsStayUnlessTheyArePlaced()
    {
        SortListView list;
        list.setColumnCount(1);
        fill(list, QStringLiteral("cb"));
        list.show();
        fill(list, QStringLiteral("a"));
        letTimersFire();
        QCOMPARE(columnTexts(list), QStringLiteral("bca"));
        // Those that wait when the application changes its mind stay, too.
        list.setPlacingArrivals(true);
        list.sort();
        fill(list, QStringLiteral("0"));
        list.setPlacingArrivals(false);
        letTimersFire();
        QCOMPARE(columnTexts(list), QStringLiteral("abc0"));
    }
    void arrivalsGoToTheirPlaces()
    {
        SortListView list;
        list.setColumnCount(1);
        list.setPlacingArrivals(true);
        list.show();
        fill(list, QStringLiteral("dbf"));
        list.setCurrentItem(list.topLevelItem(0));
        QCOMPARE(columnTexts(list), QStringLiteral("dbf"));
        QTRY_COMPARE(columnTexts(list), QStringLiteral("bdf"));
        QCOMPARE(list.currentItem()->text(0), QStringLiteral("d"));
        // A row that comes back with another text is read again.
        QTreeWidgetItem* const item = list.takeTopLevelItem(0);
        item->setText(0, QStringLiteral("z"));
        list.addTopLevelItem(item);
        fill(list, QStringLiteral("e"));
        QTRY_COMPARE(columnTexts(list), QStringLiteral("defz"));
        new SortListViewItem(list.topLevelItem(0), QStringLiteral("2"));
        new SortListViewItem(list.topLevelItem(0), QStringLiteral("1"));
        QTRY_COMPARE(list.topLevelItem(0)->child(0)->text(0), QStringLiteral("1"));
        fill(list, QStringLiteral("a"));
        list.clear();
        QCoreApplication::processEvents();
        auto doomed = std::make_unique<SortListView>();
        doomed->setColumnCount(1);
        doomed->setPlacingArrivals(true);
        doomed->show();
        fill(*doomed, QStringLiteral("ba"));
        doomed.reset();
        QCoreApplication::processEvents();
    }
    void rowsPlacedByHandStay()
    {
        SortListView list;
        list.setColumnCount(1);
        list.setPlacingArrivals(true);
        fill(list, QStringLiteral("bca"));
        list.show();
        new SortListViewItem(&list, QStringLiteral("z"), {}, {}, {}, {}, {}, {}, {}, true);
        fill(list, QStringLiteral("0"));
        letTimersFire();
        QCOMPARE(columnTexts(list), QStringLiteral("zabc0"));
        list.sort();
        static_cast<SortListViewItem*>(list.topLevelItem(0))->moveItem(list.topLevelItem(4));
        letTimersFire();
        QCOMPARE(columnTexts(list), QStringLiteral("abcz0"));
    }
};

QTEST_MAIN(tst_ListSorting)
#include "tst_listsorting.moc"
