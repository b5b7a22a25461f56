// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>

#include <trovappstartup/cfgcenter.h>

#include <QHeaderView>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

const QString listName = QStringLiteral("list");

std::unique_ptr<ICfg> configuration()
{
    return CfgCenter::GetAppCfg(LayoutView)->OpenSubCfg(QStringLiteral("FreqStoreListView"));
}

std::unique_ptr<SortListView> makeList(int columns, const QString& stored)
{
    configuration()->SetString(listName, stored);
    auto list = std::make_unique<SortListView>();
    list->header()->setStretchLastSection(false);
    for (int column = 0; column < columns; ++column)
        list->addColumn(QString::number(column));
    list->show();
    GuiBase::Instance().ApplyColumnWidth4(listName, list.get());
    return list;
}

QString storedBy(SortListView& list)
{
    GuiBase::Instance().StoreColumnWidth4(listName, &list);
    GuiBase::Instance().StoreColumnSizes2Cfg();
    return configuration()->GetString(listName);
}

} // namespace

class TestColumns : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void texts_data();
    void texts();
    void everyOrder();
    void hiddenColumnKeepsItsWidth();
    void lateColumns();
    void changesAreKept_data();
    void changesAreKept();
    void damagedTexts();
};

void TestColumns::texts_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, int columns, const char* text, const char* expected) {
        QTest::newRow(name) << columns << QString::fromLatin1(text)
                            << QString::fromLatin1(expected);
    };
    row("as stored", 2, "120,0,0;80,1,1;", "120,0,0;80,1,1;");
    row("swapped", 2, "120,1,0;80,0,0;", "120,1,0;80,0,0;");
    row("fewer are stored", 3, "120,0,0;80,1,1;", "120,0,0;80,1,1;100,2,0;");
    row("more are stored", 2, "120,0,0;80,2,0;90,1,0;", "120,0,0;80,2,0;90,1,0;");
    row("more are stored, in another order", 2, "120,2,0;80,1,0;90,0,1;", "120,2,0;80,1,0;90,0,1;");
    row("all hidden", 2, "120,0,1;80,1,1;", "120,0,0;80,1,1;");
    row("nothing", 2, "", "100,0,0;100,1,0;");
    row("no numbers", 2, "120,x,0;80,1,0;", "100,0,0;100,1,0;");
    row("pairs", 2, "120,1;80,0;", "100,0,0;100,1,0;");
    row("too wide", 2, "1000000,0,0;80,1,0;", "100,0,0;100,1,0;");
    row("no width", 2, "0,1,0;80,0,0;", "100,1,0;80,0,0;");
    row("impossible", 2, "-5,-1,0;2147483647,2147483647,0;", "100,0,0;100,1,0;");
}

void TestColumns::texts()
{
    QFETCH(int, columns);
    QFETCH(QString, text);
    const auto list = makeList(columns, text);
    QTEST(storedBy(*list), "expected");
    GuiBase::Instance().StoreColumnWidth4(listName, nullptr);
    GuiBase::Instance().ApplyColumnWidth4(listName, nullptr);
}

void TestColumns::everyOrder()
{
    QList<int> places{0, 1, 2, 3, 4};
    do {
        QString text;
        for (const int place : places)
            text += QStringLiteral("90,%1,0;").arg(place);
        QCOMPARE(storedBy(*makeList(5, text)), text);
    } while (std::next_permutation(places.begin(), places.end()));
}

void TestColumns::hiddenColumnKeepsItsWidth()
{
    const auto list = makeList(2, QStringLiteral("120,0,0;80,1,1;"));
    QCOMPARE(storedBy(*list), QStringLiteral("120,0,0;80,1,1;"));
    list->setColumnHidden(1, false);
    QCOMPARE(list->columnWidth(1), 80);
    QCOMPARE(storedBy(*list), QStringLiteral("120,0,0;80,1,0;"));
    list->setColumnHidden(0, true);
    QCOMPARE(storedBy(*list), QStringLiteral("120,0,1;80,1,0;"));
    list->hide();
    list->setColumnWidth(1, 33);
    QCOMPARE(storedBy(*list), QStringLiteral("120,0,1;80,1,0;"));
}

void TestColumns::lateColumns()
{
    QList<int> places{0, 1, 2, 3};
    do {
        QString text;
        for (const int place : places)
            text += QStringLiteral("%1,%2,0;").arg(90 + place).arg(place);
        const auto list = makeList(1, text);
        list->SetColumnWidthPersistantName(listName);
        list->setColumnWidth(0, 55);
        list->addColumn(QStringLiteral("1"));
        list->setColumnCount(4);
        text.replace(0, 2, QStringLiteral("55"));
        QCOMPARE(storedBy(*list), text);
    } while (std::next_permutation(places.begin(), places.end()));
}

void TestColumns::changesAreKept_data()
{
    using End = std::function<void(std::unique_ptr<QWidget>&)>;
    QTest::addColumn<int>("delay");
    QTest::addColumn<End>("end");
    QTest::newRow("after the delay") << 1 << End([](auto&) {});
    QTest::newRow("application ends")
        << -1 << End([](auto&) { GuiBase::Instance().SavePersistant(); });
    QTest::newRow("window closes") << -1 << End([](auto& window) { window->close(); });
    QTest::newRow("window dies") << -1 << End([](auto& window) { window.reset(); });
    QTest::newRow("list dies") << -1 << End([](auto& window) {
        delete window->layout()->itemAt(0)->widget();
    });
    QTest::newRow("another name") << -1 << End([](auto& window) {
        static_cast<SortListView*>(window->layout()->itemAt(0)->widget())
            ->SetColumnWidthPersistantName(QString());
    });
}

void TestColumns::changesAreKept()
{
    QFETCH(int, delay);
    QFETCH(std::function<void(std::unique_ptr<QWidget>&)>, end);
    GuiBase::Instance().SetLayoutWriteDelay(-1);
    SortListView* const list = makeList(3, QStringLiteral("50,0,0;60,1,0;70,2,0;")).release();
    auto window = std::make_unique<QWidget>();
    (new QVBoxLayout(window.get()))->addWidget(list);
    window->show();
    list->SetColumnWidthPersistantName(listName);
    list->setColumnWidth(0, 77);
    list->header()->moveSection(2, 0);
    list->setColumnHidden(1, true);
    GuiBase::Instance().SetLayoutWriteDelay(delay);
    end(window);
    QTRY_COMPARE(configuration()->GetString(listName), QStringLiteral("77,1,0;60,2,1;70,0,0;"));
    GuiBase::Instance().SetLayoutWriteDelay(2000);
}

void TestColumns::damagedTexts()
{
    RandomBytes random("column texts");
    for (int round = 0; round < RandomBytes::rounds(500); ++round) {
        const QByteArray text = random.mutated("120,2,0;80,0,1;70,1,0;");
        const auto list = makeList(3, QString::fromLatin1(text));
        QVERIFY(list->header()->hiddenSectionCount() < 3);
    }
}

QTEST_MAIN(TestColumns)
#include "tst_columns.moc"
