// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>

#include <trovappstartup/cfgcenter.h>

#include <QHeaderView>

#include <algorithm>
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

QString storedBy(const std::unique_ptr<SortListView>& list)
{
    GuiBase::Instance().StoreColumnWidth4(listName, list.get());
    GuiBase::Instance().StoreColumnSizes2Cfg();
    return configuration()->GetString(listName);
}

} // namespace

class tst_Columns : public GuardedTest
{
    Q_OBJECT
    using Texts = TestRows<int, QString, QString, bool>;

private Q_SLOTS:
    void texts_data()
    {
        // The list's columns, what is stored for it, what it stores, whether the text is damaged.
        Texts row;
        row("as stored", 2, "120,0,0;80,1,1;", "120,0,0;80,1,1;", false);
        row("fewer are stored", 3, "120,0,0;80,1,1;", "120,0,0;80,1,1;100,2,0;", false);
        row("more are stored", 2, "120,0,0;80,2,0;90,1,0;", "120,0,0;80,1,0;", false);
        row("all hidden", 2, "120,0,1;80,1,1;", "120,0,0;80,1,1;", false);
        row("nothing", 2, "", "100,0,0;100,1,0;", false);
        row("no width", 2, "0,1,0;80,0,0;", "100,1,0;80,0,0;", false);
        row("no numbers", 2, "120,x,0;80,1,0;", "100,0,0;100,1,0;", true);
        row("pairs", 2, "120,1;80,0;", "100,0,0;100,1,0;", true);
        row("too wide", 2, "1000000,0,0;80,1,0;", "100,0,0;100,1,0;", true);
        row("no places", 2, "-5,-1,0;80,2147483647,0;", "100,0,0;80,1,0;", false);
    }
    void texts()
    {
        const auto& [columns, text, expected, isDamaged] = Texts::fetch();
        QCOMPARE(storedBy(makeList(columns, text)), expected);
        QCOMPARE(configuration()->GetString(listName + QStringLiteral("_damaged")),
                 isDamaged ? text : QString());
    }
    void everyOrder()
    {
        QList<int> places{0, 1, 2, 3, 4};
        do {
            QString text;
            for (const int place : places)
                text += QStringLiteral("90,%1,0;").arg(place);
            QCOMPARE(storedBy(makeList(5, text)), text);
        } while (std::next_permutation(places.begin(), places.end()));
    }
    void hiddenColumnKeepsItsWidth()
    {
        const auto list = makeList(2, QStringLiteral("120,0,0;80,1,1;"));
        list->setColumnHidden(1, false);
        QCOMPARE(storedBy(list), QStringLiteral("120,0,0;80,1,0;"));
        list->setColumnHidden(0, true);
        QCOMPARE(storedBy(list), QStringLiteral("120,0,1;80,1,0;"));
        list->hide();
        list->setColumnWidth(1, 33);
        QCOMPARE(storedBy(list), QStringLiteral("120,0,1;80,1,0;"));
    }
    void stretchedColumnShrinks_data()
    {
        // What is stored, whether the columns come one by one, their widths in a window of 600.
        TestRows<QString, bool, QList<int>> row;
        row("at once", "120,0,0;80,1,0;824,2,0;", false, {120, 80, 400});
        row("one by one", "120,0,0;80,1,0;824,2,0;", true, {120, 80, 400});
        row("moved", "120,1,0;824,2,0;80,0,0;", false, {120, 400, 80});
        row("moved, one by one", "120,1,0;824,2,0;80,0,0;", true, {120, 400, 80});
        row("hidden behind it", "120,0,0;824,1,0;824,2,1;", false, {120, 480, 0});
    }
    void stretchedColumnShrinks()
    {
        const auto& [stored, isOneByOne, widths] = TestRows<QString, bool, QList<int>>::fetch();
        configuration()->SetString(listName, stored);
        SortListView list;
        list.setFrameShape(QFrame::NoFrame);
        if (isOneByOne)
            list.SetColumnWidthPersistantName(listName);
        for (const char* title : {"A", "B", "C"})
            list.addColumn(QString::fromLatin1(title));
        if (!isOneByOne)
            list.SetColumnWidthPersistantName(listName);
        list.resize(1100, 100);
        list.show();
        list.resize(600, 100);
        for (int column = 0; column < list.columns(); ++column)
            QTRY_COMPARE(list.columnWidth(column), widths.at(column));
        list.setColumnHidden(2, false);
        QTRY_COMPARE(list.header()->length(), 600);
    }
    void damagedTexts()
    {
        const QString damaged = QStringLiteral("x");
        const auto unaware = makeList(1, QString());
        configuration()->SetString(listName, damaged);
        storedBy(unaware);
        QCOMPARE(configuration()->GetString(listName + QStringLiteral("_damaged")), damaged);
    }
};

QTEST_MAIN(tst_Columns)
#include "tst_columns.moc"
