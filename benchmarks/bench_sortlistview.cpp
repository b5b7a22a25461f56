// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortlistviewitem.h>

#include <QAbstractTableModel>
#include <QApplication>
#include <QSortFilterProxyModel>
#include <QThread>
#include <QTreeView>

#include <array>
#include <cstdio>
#include <malloc.h>
#include <memory>
#include <random>

namespace {

constexpr int sortedRows = 100'000;
constexpr int listedRows = 1'000; ///< In the list that rows are appended to.
constexpr int appendedRows = 10'000;
constexpr int arrivingRows = 1'000;
constexpr int manyRows = 1'000'000;
constexpr double memoryLimit = 1.4;
enum Column { NumberColumn, TextColumn, ShuffleColumn, ColumnCount };

/// Number with unit, name, and a random text that rows can be shuffled by.
QStringList randomRow(std::mt19937& random)
{
    const auto frequency = QString::number(double(random() % 30'000'000) / 1000.0, 'f', 3);
    return {frequency + QStringLiteral(" MHz"),
            QStringLiteral("Station %1").arg(random() % 50'000, 5, 10, QLatin1Char('0')),
            QString::number(random(), 36)};
}

template <typename Tree, typename Item>
std::unique_ptr<Tree> shownTree(int rows)
{
    auto tree = std::make_unique<Tree>();
    tree->setColumnCount(ColumnCount);
    std::mt19937 random(1);
    for (int row = 0; row < rows; ++row)
        new Item(tree.get(), randomRow(random));
    tree->show();
    QApplication::processEvents();
    return tree;
}

std::unique_ptr<SortListView> shownList(int rows)
{
    auto list = shownTree<SortListView, SortListViewItem>(rows);
    list->SetCompareFunctionLength(ColumnCount);
    list->SetCompareFunction(NumberColumn, &SortListView::_compNumericWithSuffix);
    list->SetCompareFunction(TextColumn, &SortListView::_compStandardString);
    list->setPlacingArrivals(true);
    list->sort();
    QApplication::processEvents();
    return list;
}

/// Two columns of numbers, in no order, as any application would hold them.
class NumberModel : public QAbstractTableModel
{
public:
    NumberModel()
        : m_rows(manyRows)
    {
        std::mt19937 random(4);
        for (auto& row : m_rows)
            row = {double(random() % 30'000'000) / 1000.0, double(random() % 30'000'000) / 1000.0};
    }
    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : 2;
    }
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override
    {
        return role == Qt::DisplayRole
                   ? m_rows[std::size_t(index.row())][std::size_t(index.column())]
                   : QVariant();
    }

private:
    std::vector<std::array<double, 2>> m_rows;
};

/// The same numbers in a list and in a plain model behind a sorting proxy.
struct ManyNumbers
{
    ManyNumbers();

    NumberModel model;
    QSortFilterProxyModel proxy;
    QTreeView view;
    SortListView list;
    // A proxy that has this order already does nothing: each side takes turns of its own.
    int proxyTurn = 0;
    int listTurn = 0;
};

ManyNumbers::ManyNumbers()
{
    proxy.setSourceModel(&model);
    view.setModel(&proxy);
    list.setColumnCount(2);
    list.SetCompareFunctionLength(2);
    for (int column : {0, 1})
        list.SetCompareFunction(column, &SortListView::_compStandardNumeric);
    const auto text = [this](int row, int column) {
        return QString::number(model.data(model.index(row, column)).toDouble(), 'f', 3);
    };
    for (int row = 0; row < manyRows; ++row)
        new SortListViewItem(&list, {text(row, 0), text(row, 1)});
    for (QTreeView* shown : {&view, static_cast<QTreeView*>(&list)}) {
        shown->setUniformRowHeights(true);
        shown->show();
    }
    QApplication::processEvents();
}

/// Many rows by two columns of numbers in turn. `made` is filled when it is needed.
void compareSortingManyRows(RatioRun& run, std::unique_ptr<ManyNumbers>& made)
{
    const auto sortInTurn = [&made](benchmark::State& state, auto sort) {
        if (!made)
            made = std::make_unique<ManyNumbers>();
        for (auto _ : state) {
            sort(*made);
            state.PauseTiming();
            QApplication::processEvents();
            state.ResumeTiming();
        }
    };
    run.compare(
        "Sorting 1,000,000 rows by numbers", 1.2,
        [sortInTurn](benchmark::State& state) {
            sortInTurn(state, [](ManyNumbers& numbers) {
                numbers.list.sortByColumn(++numbers.listTurn % 2, Qt::AscendingOrder);
            });
        },
        [sortInTurn](benchmark::State& state) {
            sortInTurn(state, [](ManyNumbers& numbers) {
                numbers.proxy.sort(++numbers.proxyTurn % 2, Qt::AscendingOrder);
            });
        });
}

/// Sorts by the column, after shuffling the rows outside the measured time.
template <typename Sort>
void sortShuffled(benchmark::State& state, int column, Sort sort)
{
    for (auto _ : state) {
        state.PauseTiming();
        sort(ShuffleColumn);
        state.ResumeTiming();
        sort(column);
    }
}

template <typename Tree, typename Item>
void append(benchmark::State& state, std::unique_ptr<Tree> (*makeTree)(int))
{
    for (auto _ : state) {
        state.PauseTiming();
        auto tree = makeTree(listedRows);
        std::mt19937 random(2);
        std::vector<QStringList> rows(appendedRows);
        for (QStringList& row : rows)
            row = randomRow(random);
        state.ResumeTiming();
        for (const QStringList& row : rows)
            new Item(tree.get(), row);
        QApplication::processEvents();
        state.PauseTiming();
        tree.reset();
        state.ResumeTiming();
    }
}

/// Appends rows, which the tree shows (and puts in place, if it does) as soon as it can.
template <typename Item>
void arrive(benchmark::State& state, QTreeWidget& tree, unsigned seed)
{
    constexpr unsigned long longestPause = 1; // Seconds that a list may wait after placing rows.
    std::mt19937 random(seed);
    for (auto _ : state) {
        state.PauseTiming();
        QThread::sleep(longestPause);
        std::vector<QStringList> rows(arrivingRows);
        for (QStringList& row : rows)
            row = randomRow(random);
        state.ResumeTiming();
        QTreeWidgetItem* last = nullptr;
        for (const QStringList& row : rows)
            last = new Item(&tree, row);
        QApplication::processEvents();
        state.PauseTiming();
        const bool isLast = tree.indexOfTopLevelItem(last) + 1 == tree.topLevelItemCount();
        if (isLast != std::is_same_v<Item, QTreeWidgetItem>)
            state.SkipWithError("The rows are not in their places");
        state.ResumeTiming();
    }
}

template <typename Tree, typename Item>
double bytesPerRow()
{
    const auto tree = shownTree<Tree, Item>(0);
    const auto before = mallinfo2().uordblks;
    std::mt19937 random(3);
    for (int row = 0; row < appendedRows; ++row)
        new Item(tree.get(), randomRow(random));
    return double(mallinfo2().uordblks - before) / appendedRows;
}

bool checkMemory()
{
    const double ours = bytesPerRow<SortListView, SortListViewItem>();
    const double theirs = bytesPerRow<QTreeWidget, QTreeWidgetItem>();
    const double ratio = ours / theirs;
    return printRatio("memory per row", withUnit(ours, 0, " bytes"), withUnit(theirs, 0, " bytes"),
                      ratio, memoryLimit);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const bool isSmall = checkMemory();
    const auto list = shownList(sortedRows);
    const auto plain = shownTree<QTreeWidget, QTreeWidgetItem>(sortedRows);
    RatioRun run;
    const auto compareSorting = [&](const char* name, double limit, int column) {
        run.compare(
            name, limit,
            [&list, column](benchmark::State& state) {
                sortShuffled(state, column,
                             [&](int by) { list->sortByColumn(by, Qt::AscendingOrder); });
            },
            [&plain, column](benchmark::State& state) {
                sortShuffled(state, column,
                             [&](int by) { plain->sortItems(by, Qt::AscendingOrder); });
            });
    };
    compareSorting("Sorting 100,000 rows by numbers with units", 0.25, NumberColumn);
    compareSorting("Sorting 100,000 rows by texts without case", 0.5, TextColumn);
    run.compare(
        "Appending 10,000 rows to a sorted list", 1.7,
        [](benchmark::State& state) { append<SortListView, SortListViewItem>(state, shownList); },
        [](benchmark::State& state) {
            append<QTreeWidget, QTreeWidgetItem>(state, shownTree<QTreeWidget, QTreeWidgetItem>);
        });
    const auto arrivals = [&](const char* name, int column) {
        run.compare(
            name, 2,
            [&list, column](benchmark::State& state) {
                list->sortByColumn(column, Qt::AscendingOrder);
                QApplication::processEvents();
                arrive<SortListViewItem>(state, *list, 5);
            },
            [&plain, column](benchmark::State& state) {
                // The rows in the same order: one that differs from that in memory costs time too.
                plain->sortItems(column, Qt::AscendingOrder);
                QApplication::processEvents();
                arrive<QTreeWidgetItem>(state, *plain, 5);
            });
    };
    arrivals("Placing 1,000 rows by numbers in a sorted list of 100,000", NumberColumn);
    arrivals("Placing 1,000 rows by texts in a sorted list of 100,000", TextColumn);
    std::unique_ptr<ManyNumbers> manyNumbers;
    compareSortingManyRows(run, manyNumbers);
    const int result = run.run(argc, argv);
    return isSmall ? result : 1;
}
