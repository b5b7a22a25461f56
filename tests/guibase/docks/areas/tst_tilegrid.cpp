// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/docks/areas/tilegrid_p.h>

#include <algorithm>

namespace {

/// The rule itself, pixel by pixel.
QList<int> spreadPixels(QList<int> sizes, int surplus)
{
    for (; surplus > 0 && !sizes.isEmpty(); --surplus)
        ++*std::min_element(sizes.begin(), sizes.end());
    return sizes;
}

} // namespace

class tst_TileGrid : public GuardedTest
{
    Q_OBJECT
    using Grids = TestRows<QList<QSize>, QSize, QList<int>, QList<int>>;

private Q_SLOTS:
    void fits_data()
    {
        const auto equal = [](int docks, int side) { return QList<QSize>(docks, {side, side}); };
        const auto lines = [](int count, int side) { return QList<int>(count, side); };
        const QList<QSize> mixed{{10, 5}, {30, 7}, {20, 9}, {5, 50}, {6, 1}};
        const QList<int> none;
        Grids row;
        row("one row, just fitting", equal(5, 20), {100, 20}, lines(5, 20), lines(1, 20));
        row("too wide by one", equal(5, 20), {99, 40}, lines(3, 20), lines(2, 20));
        row("filled by rows", mixed, {60, 59}, {10, 30, 20}, {9, 50});
        row("two columns, too high", mixed, {50, 57}, none, none);
        row("two columns", mixed, {50, 58}, {20, 30}, {7, 50, 1});
        row("full", equal(100, 7), {70, 70}, lines(10, 7), lines(10, 7));
        row("too many", equal(101, 0), {10000, 10000}, none, none);
        row("eleven rows", equal(11, 50), {50, 10000}, none, none);
        row("huge", equal(10, 16777215), {2'000'000'000, 100}, none, none);
    }
    void fits()
    {
        const auto& [sizes, available, widths, heights] = Grids::fetch();
        const std::optional<TileGrid> grid = fitTileGrid(sizes, available);
        QCOMPARE(grid ? grid->columnWidths : QList<int>(), widths);
        QCOMPARE(grid ? grid->rowHeights : QList<int>(), heights);
    }
    void spreadsLikeThePixelRule()
    {
        RandomBytes random("surplus");
        for (int round = RandomBytes::rounds(500); round > 0; --round) {
            QList<int> sizes(random.below(12));
            for (int& size : sizes)
                size = random.below(40);
            const int surplus = random.below(400) - 20;
            QCOMPARE(spreadSurplus(sizes, surplus), spreadPixels(sizes, surplus));
        }
        QCOMPARE(spreadSurplus({0, 5, 0}, 4'500'000'001),
                 QList<int>({1'500'000'002, 1'500'000'002, 1'500'000'002}));
    }
};

QTEST_GUILESS_MAIN(tst_TileGrid)
#include "tst_tilegrid.moc"
