// SPDX-License-Identifier: MIT
#include "recordings.h"

#include <model/samplegenerator.h>

#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <radiopanes/core/columnreducer.h>
#include <radiopanes/core/heldlevels.h>

#include <cmath>

using namespace bandmonitor;

namespace {

/// Up to three segments of up to 3000 levels, which may overlap or leave a gap.
OwnedSegments randomSegments(RandomBytes& random)
{
    OwnedSegments segments;
    double start = random.below(1000);
    for (int hop = 1 + random.below(3); hop > 0; --hop) {
        std::vector<float> levels(static_cast<std::size_t>(1 + random.below(3000)));
        for (float& level : levels)
            level = random.below(50) == 0 ? noLevel : static_cast<float>(random.below(9999));
        const double step = 1 + random.below(4);
        const double end = start + step * static_cast<double>(levels.size());
        segments.add(start, step, std::move(levels));
        start = std::max(start + 1, end + random.below(200) - 100);
    }
    return segments;
}

} // namespace

/// What is worked out from the levels of sweeps: columns of pixels, held maxima, the level at the
/// cursor; and the memory that a recording takes for them.
class tst_Sweeps : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void levelAtCursor()
    {
        OwnedSegments segments;
        segments.add(100, 10, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}); // to 200
        segments.add(120, 5, {20, noLevel});                    // to 130
        segments.add(300, 1, {30});
        const std::vector<std::pair<double, std::optional<float>>> expected = {
            {99.99, {}}, {100, 1},  {119.99, 2}, {120, 20}, {126, {}},         {131, 4},
            {199, 10},   {200, {}}, {300.5, 30}, {301, {}}, {std::nan(""), {}}};
        for (const auto& [hz, level] : expected)
            QVERIFY2(segments.sweep().levelAt(hz) == level, qPrintable(QString::number(hz)));
    }
    void columnsOfUselessViews()
    {
        OwnedSegments segments;
        segments.add(0, 1, std::vector<float>(1000, 5));
        const LevelPyramid pyramid(segments.sweep());
        const double infinity = std::numeric_limits<double>::infinity();
        for (const ColumnView view : {ColumnView{0, 0}, ColumnView{8, 0}, ColumnView{0, infinity},
                                      ColumnView{std::nan(""), 8}, ColumnView{-9e300, -8e300}}) {
            std::vector<LevelRange> columns(4, LevelRange{1, 1});
            reduceToColumns(segments.sweep(), view, columns);
            QVERIFY(columns == std::vector<LevelRange>(4));
            pyramid.reduce(view, columns);
            QVERIFY(columns == std::vector<LevelRange>(4));
        }
        reduceToColumns(segments.sweep(), {0, 8}, {});
        std::vector<LevelRange> columns(3);
        pyramid.reduce({-1e18, 2e18}, columns); // all bins in a small part of one column
        QCOMPARE(columns[1], (LevelRange{5, 5}));
    }
    void columnsMatchBruteForce()
    {
        RandomBytes random("columns");
        for (int round = RandomBytes::rounds(300); round > 0; --round) {
            const OwnedSegments segments = randomSegments(random);
            const Sweep sweep = segments.sweep();
            const double low = sweep.lowHz - 50 + random.below(2000);
            const ColumnView view{low, low + 1 + random.below(12'000)};
            std::vector<LevelRange> columns(static_cast<std::size_t>(1 + random.below(60)));
            reduceToColumns(sweep, view, columns);
            std::vector<LevelRange> fast(columns.size());
            LevelPyramid(sweep).reduce(view, fast);
            std::vector<float> maxima(columns.size());
            LevelPyramid(sweep).reduceMaxima(view, maxima);

            const double width = (view.highHz - view.lowHz) / static_cast<double>(columns.size());
            for (std::size_t column = 0; column < columns.size(); ++column) {
                const double columnLow = view.lowHz + static_cast<double>(column) * width;
                QCOMPARE(maxima[column], fast[column].maximum);
                LevelRange exact;
                LevelRange widest;
                for (const Segment& segment : sweep.segments) {
                    for (std::size_t i = 0; i < segment.levels.size(); ++i) {
                        const double binLow =
                            segment.startHz + segment.stepHz * static_cast<double>(i);
                        const double above = binLow - (columnLow + width);
                        const double below = columnLow - (binLow + segment.stepHz);
                        if (above < -1e-5 && below < -1e-5)
                            exact.add(segment.levels[i]);
                        if (above < width / 4 && below < width / 4)
                            widest.add(segment.levels[i]);
                    }
                }
                QVERIFY(columns[column] == exact);
                QVERIFY(fast[column].minimum <= exact.minimum &&
                        fast[column].minimum >= widest.minimum);
                QVERIFY(fast[column].maximum >= exact.maximum &&
                        fast[column].maximum <= widest.maximum);
            }
        }
    }
    void holdMaximum()
    {
        HeldLevels hold;
        OwnedSegments first;
        first.add(0, 1, {1, noLevel, 3, noLevel});
        first.add(10, 1, {5});
        OwnedSegments second;
        second.add(0, 1, {0, 2, 4, noLevel});
        second.add(5, 1, {6});
        hold.add(first.sweep(1));
        hold.add(second.sweep(2));
        QCOMPARE(sweepText(hold.sweep()),
                 QByteArray("1970-01-01, 00:00:00.000002, 0, 4, 1.00, 1, 1.00, 2.00, 4.00, nan\n"
                            "1970-01-01, 00:00:00.000002, 5, 6, 1.00, 1, 6.00\n"
                            "1970-01-01, 00:00:00.000002, 10, 11, 1.00, 1, 5.00\n"));
        QCOMPARE(sweepText(first.sweep(1)).count("nan"), 2); // its levels are its own
        hold.clear();
        QVERIFY(hold.isEmpty());
        for (std::size_t hop = 0; hop < HeldLevels::maximumHops + 10; ++hop) {
            OwnedSegments segments;
            segments.add(static_cast<double>(hop), 1, {1});
            hold.add(segments.sweep());
        }
        QCOMPARE(hold.sweep().segments.size(), HeldLevels::maximumHops);
    }
    void memoryIsBounded_data()
    {
        TestRows<std::size_t> row;
        row("small", 1200);
        row("just over a quarter of a chunk", 262'145);
        row("odd", 99'999);
    }
    void memoryIsBounded()
    {
        Recording recording;
        OwnedSegments segments;
        segments.add(0, 1, std::vector<float>(std::get<0>(TestRows<std::size_t>::fetch()), -70));
        recording.append(1, segments.sweep().segments);
        const float* const firstLevel = recording.sweep(0).segments[0].levels.data();
        while (recording.levelCount() < 3'000'000) {
            recording.append(1, segments.sweep().segments);
            if (recording.levelCount() > 100'000)
                QVERIFY(recording.reservedBytes() <= 2 * recording.levelCount() * sizeof(float));
        }
        QCOMPARE(recording.sweep(0).segments[0].levels.data(), firstLevel); // never moved
        QVERIFY(recording.sweep(recording.count()).isEmpty());

        constexpr std::size_t limit = 8 << 20;
        for (int i = 0; i < 100; ++i) {
            recording.append(1, segments.sweep().segments);
            recording.dropBefore(recording.firstWithin(limit));
            const std::size_t oneSweep = segments.sweep().binCount * sizeof(float);
            QVERIFY(recording.reservedBytes() <= limit + 2 * oneSweep + limit / 4);
        }
        QVERIFY(recording.first() > 0 && recording.sweep(recording.first() - 1).isEmpty());
        QVERIFY(recording.count() - recording.first() >= 2);
        for (const qsizetype index : {recording.first(), recording.count() - 1})
            QCOMPARE(sweepText(recording.sweep(index)), sweepText(segments.sweep(1)));
    }
    void fullHistoryKeepsItsMemory()
    {
        constexpr std::size_t limit = 32 << 20;
        Recording recording;
        OwnedSegments segments;
        segments.add(0, 1, std::vector<float>(25'000, -70));
        const auto append = [&] {
            recording.append(1, segments.sweep().segments);
            recording.dropBefore(recording.firstWithin(limit));
        };
        while (recording.count() < 1000)
            append();
        const std::size_t reserved = recording.reservedBytes();
        QVERIFY(reserved <= limit);
        QVERIFY(recording.levelCount() * sizeof(float) > limit / 3 * 2);
        while (recording.count() < 1200) {
            const qsizetype first = recording.first();
            append();
            QVERIFY(recording.first() <= first + 2);
            QVERIFY(recording.reservedBytes() <= reserved + 2 * sizeof(Sweep));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Sweeps)
#include "tst_sweeps.moc"
