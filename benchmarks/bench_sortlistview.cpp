// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortlistviewitem.h>

#include <QApplication>

#include <cstdio>
#include <malloc.h>
#include <memory>
#include <random>

namespace {

constexpr int sortedRows = 100'000;
constexpr int listedRows = 1'000; ///< In the list that rows are appended to.
constexpr int appendedRows = 10'000;
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
    list->sort();
    QApplication::processEvents();
    return list;
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
    std::printf("Memory per row: ours %.0f bytes, theirs %.0f bytes, ratio %.3f, limit %.3f%s\n",
                ours, theirs, ratio, memoryLimit, ratio <= memoryLimit ? "" : "  EXCEEDED");
    return ratio <= memoryLimit;
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
    const int result = run.run(argc, argv);
    return isSmall ? result : 1;
}
