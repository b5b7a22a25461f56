// SPDX-License-Identifier: MIT
#include "pages.h"
#include "specimens.h"

#include <guibase/formats/frequencydisplayformat.h>
#include <guibase/lists/checksortlistviewitem.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortlistviewitem.h>
#include <guibase/lists/sortrowtable.h>

#include <QGridLayout>

namespace gallery {

namespace {

struct Station
{
    const char* name;
    qint64 hertz;
    UnitPrefix::ESuffix unit;
};

constexpr Station stations[] = {
    {"Airport", 118'100'000, UnitPrefix::Mega},     {"Beacon", 400'000, UnitPrefix::Kilo},
    {"Harbour", 156'800'000, UnitPrefix::Mega},     {"Time signal", 77'500, UnitPrefix::Kilo},
    {"Satellite", 1'575'420'000, UnitPrefix::Giga},
};

SortListView* makeList()
{
    auto* list = new SortListView;
    list->addColumn(QStringLiteral("Station"));
    list->addColumn(QStringLiteral("Frequency"));
    list->setColumnAlignment(0, Qt::AlignLeft | Qt::AlignVCenter);
    list->setColumnAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    list->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    list->SetCompareFunctionLength(2);
    list->SetCompareFunction(0, &SortListView::_compStandardString);
    list->SetCompareFunction(1, &SortListView::_compStandardNumeric);
    list->setColumnSelectionMenu(true);
    return list;
}

template <typename Row>
void fill(SortListView& list)
{
    for (const Station& station : stations) {
        auto* row = new Row(&list, QString::fromLatin1(station.name),
                            FrequencyDisplayFormat(station.unit).fullTextFromValue(station.hertz));
        row->SetColCount(2);
        row->SetSortKey(0, QString::fromLatin1(station.name));
        row->SetSortKey(1, QString::number(station.hertz));
        list.applyAlignment(row);
    }
}

SortListView* makeSorted(int column, Qt::SortOrder order)
{
    SortListView* const list = makeList();
    fill<SortListViewItem>(*list);
    list->setSorting(column, order);
    return list;
}

} // namespace

QWidget* makeLists()
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->addWidget(framed(QStringLiteral("By name"), makeSorted(0, Qt::AscendingOrder)), 0, 0);
    grid->addWidget(
        framed(QStringLiteral("By frequency, highest first"), makeSorted(1, Qt::DescendingOrder)),
        0, 1);

    SortListView* const selected = makeSorted(1, Qt::AscendingOrder);
    selected->setMultiSelection(true);
    for (const char* name : {"Beacon", "Harbour"})
        selected->setSelected(selected->findItem(QString::fromLatin1(name), 0), true);
    grid->addWidget(framed(QStringLiteral("Several rows selected"), selected), 1, 0);

    SortListView* const checks = makeList();
    fill<CheckSortListViewItem>(*checks);
    static_cast<CheckSortListViewItem*>(checks->topLevelItem(1))->setOn(true);
    static_cast<CheckSortListViewItem*>(checks->topLevelItem(2))->setState(Qt::PartiallyChecked);
    checks->setSorting(0, Qt::AscendingOrder);
    grid->addWidget(framed(QStringLiteral("With check boxes"), checks), 1, 1);

    SortListView* const tree = makeSorted(0, Qt::AscendingOrder);
    tree->setRootIsDecorated(true);
    SortListViewItem* const parent = tree->firstChild();
    new SortListViewItem(parent, QStringLiteral("Tower"), QStringLiteral("118.1 MHz"));
    new SortListViewItem(parent, QStringLiteral("Ground"), QStringLiteral("121.9 MHz"));
    parent->setExpanded(true);
    grid->addWidget(framed(QStringLiteral("With children; disabled"), tree), 2, 0);
    tree->setEnabled(false);
    SortListView* const hidden = makeSorted(1, Qt::AscendingOrder);
    hidden->setColumnHidden(0, true);
    grid->addWidget(framed(QStringLiteral("A column hidden by its menu"), hidden), 2, 1);

    grid->addWidget(framed(QStringLiteral("Empty"), makeList()), 3, 0);
    SortListView* const mirrored = makeSorted(0, Qt::AscendingOrder);
    mirrored->setLayoutDirection(Qt::RightToLeft);
    grid->addWidget(framed(QStringLiteral("Right to left"), mirrored), 3, 1);
    return page;
}

QWidget* makeTables()
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    const auto add = [grid](const QString& title, int column) {
        auto* table = new SortRowTable(0, 2);
        table->setHorizontalHeaderLabels({QStringLiteral("Frequency"), QStringLiteral("Level")});
        table->addRows(SortRowTable::parseRows(
            QStringLiteral("108 MHz; -45,5\n82 M; -50 dB\n94,5; -38\ntomorrow; -40")));
        grid->addWidget(framed(title, table), 0, column);
        return table;
    };
    add(QStringLiteral("Numbers before other texts"), 0)->sortByColumn(0, Qt::AscendingOrder);
    SortRowTable* const selected = add(QStringLiteral("Rows selected, by level"), 1);
    selected->sortByColumn(1, Qt::DescendingOrder);
    selected->selectRow(1);
    add(QStringLiteral("Disabled"), 2)->setEnabled(false);
    return page;
}

} // namespace gallery
