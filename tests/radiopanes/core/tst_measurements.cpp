// SPDX-License-Identifier: MIT
#include "support/testrows.h"

#include <radiopanes/core/heldlevels.h>
#include <radiopanes/core/levelhistory.h>
#include <radiopanes/core/measurements.h>

#include <cmath>
#include <random>

using namespace RadioPanes;

namespace {

constexpr double startHz = -50; // across zero, as in baseband
constexpr double stepHz = 10;

/// One hop with these levels.
struct Levels
{
    std::vector<float> levels;
    Segment hop{startHz, stepHz, 1, levels};

    Sweep sweep() const { return makeSweep(0, {&hop, 1}); }
};

double centreOf(int bin)
{
    return startHz + (bin + 0.5) * stepHz;
}

} // namespace

/// What is measured in sweeps, what is held of them, and how many are kept.
class tst_Measurements : public QObject
{
    Q_OBJECT
    using Values = std::vector<float>;
    using Peaks = TestRows<Values, int, Direction, int>;
    using Widths = TestRows<Values, int, int, int>;

private Q_SLOTS:
    void peaks_data()
    {
        Peaks row; // levels, bin of the cursor, direction, bin of the peak or -1
        const Values two{0, 10, 20, 10, 0, 10, 15, 0};
        row("up from the left", two, 0, Direction::Up, 2);
        row("up from the slope", two, 1, Direction::Up, 2);
        row("up from a peak", two, 2, Direction::Up, 6);
        row("none above", two, 6, Direction::Up, -1);
        row("down from a peak", two, 6, Direction::Down, 2);
        row("a ripple is no peak", {0, 20, 17, 20, 0}, 0, Direction::Up, 1);
        row("at the ends", {20, 0, 20}, 1, Direction::Up, 2);
        row("at the other end", {20, 0, 20}, 1, Direction::Down, 0);
        row("beside a bin without level", {0, 20, noLevel, 30, 0}, 1, Direction::Up, 3);
        row("nothing but such bins", {noLevel, noLevel}, 0, Direction::Up, -1);
    }

    void peaks()
    {
        const auto& [levels, from, direction, expected] = Peaks::fetch();
        const auto peak = nextPeak(Levels{levels}.sweep(), centreOf(from), direction);
        QCOMPARE(peak.has_value(), expected >= 0);
        if (peak)
            QCOMPARE(*peak,
                     (BinLevel{centreOf(expected), stepHz, levels[static_cast<size_t>(expected)]}));
    }

    /// Averaged noise is normal in dB; that of a single look has an exponential power.
    void peaksStandOutOfTheNoise_data()
    {
        TestRows<bool> row;
        row("averaged", false);
        row("single looks", true);
    }

    void peaksStandOutOfTheNoise()
    {
        const auto [isSingle] = TestRows<bool>::fetch();
        std::mt19937 engine(7);
        std::normal_distribution<float> averaged(-100, 2);
        std::exponential_distribution<double> single;
        Levels levels{Values(8000)};
        for (float& level : levels.levels)
            level = isSingle ? static_cast<float>(10 * std::log10(single(engine)) - 100)
                             : averaged(engine);
        constexpr int carriers[] = {700, 4000, 4020, 7990};
        for (const int bin : carriers)
            levels.levels[static_cast<std::size_t>(bin)] = -85;
        const Sweep sweep = levels.sweep();
        std::vector<double> found;
        double hertz = startHz;
        while (const auto peak =
                   nextPeak(sweep, hertz, Direction::Up, {.levelDb = noiseCeiling(sweep)})) {
            hertz = peak->hertz;
            found.push_back(hertz);
        }
        QVERIFY2(found.size() <= std::size(carriers) + 2,
                 qPrintable(QString::number(found.size())));
        for (const int bin : carriers)
            QVERIFY(std::ranges::count(found, centreOf(bin)) == 1);
        QVERIFY(std::isinf(noiseCeiling(Sweep())));
    }

    void highestBinNearby()
    {
        const Levels levels{{5, 9, 9, 1, noLevel, 30}};
        QCOMPARE(highestNear(levels.sweep(), centreOf(0), 25)->hertz, centreOf(1));
        QCOMPARE(highestNear(levels.sweep(), centreOf(3), 25)->hertz, centreOf(5));
        QVERIFY(!highestNear(levels.sweep(), centreOf(4), 1));
        QVERIFY(!highestNear(levels.sweep(), qQNaN(), 25) && !binAt(levels.sweep(), 1e9));
        QCOMPARE(binAt(levels.sweep(), centreOf(2) + 4)->hertz, centreOf(2));
    }

    void widths_data()
    {
        Widths row; // levels, bin of the peak, first bin, end bin (equal for none)
        row("one bin", {0, 20, 0}, 1, 1, 2);
        row("down to exactly 3 dB", {0, 17, 20, 18, 16.9F, 0}, 2, 1, 4);
        row("cut off by the end of the hop", {18, 20, 0}, 1, 0, 0);
        row("ended by a bin without level", {noLevel, 20, 19, noLevel}, 1, 1, 3);
        row("without level", {0, noLevel, 0}, 1, 0, 0);
    }

    void widths()
    {
        const auto& [levels, peak, first, end] = Widths::fetch();
        const auto width = widthBelow(Levels{levels}.sweep(), centreOf(peak));
        QCOMPARE(width.has_value(), first != end);
        if (width)
            QCOMPARE(*width, (Extent{startHz + first * stepHz, startHz + end * stepHz}));
    }

    void occupiedWidthHoldsItsShare()
    {
        // Powers of 1 and 1000: the five bins of 30 dB hold 5000 of 5095.
        std::vector<float> levels(100, 0);
        std::fill_n(levels.begin() + 48, 5, 30.0F);
        const Levels held{levels};
        const Sweep sweep = held.sweep();
        const Extent all{sweep.lowHz, sweep.highHz};
        const auto most = occupiedWidth(sweep, all, 0.98);
        QCOMPARE(*most, (Extent{centreOf(48) - 5, centreOf(52) + 5}));
        QVERIFY(occupiedWidth(sweep, all, 0.99)->widthHz() > most->widthHz());
        QCOMPARE(*occupiedWidth(sweep, all, 1), all);
        QVERIFY(!occupiedWidth(sweep, {1e9, 2e9}));
        QVERIFY(!occupiedWidth(Levels{{noLevel}}.sweep(), all));
    }

    void usualLevelsHoldCarriersWithoutBadBins()
    {
        std::vector<float> levels(2000, -100);
        for (size_t i = 0; i < levels.size(); ++i)
            levels[i] += static_cast<float>(i % 10);
        levels[7] = 1e30F;
        levels[9] = -300;
        levels[500] = 80;
        const Levels noise{levels};
        const std::vector<Sweep> once{noise.sweep()};
        QCOMPARE(usualLevels(once), (LevelRange{-100, -91}));
        // One narrow carrier must not lie off the top, however many bins are in the floor.
        std::vector<float> floor(50'000, -95);
        floor[1000] = -50;
        const Levels carrier{floor};
        QCOMPARE(usualLevels(std::vector<Sweep>{carrier.sweep()}), (LevelRange{-95, -50}));
        QVERIFY(usualLevels({}).isEmpty());
        const Levels single{{-7}};
        QCOMPARE(usualLevels(std::vector<Sweep>{single.sweep()}), (LevelRange{-7, -7}));
    }

    void averageIsThatOfThePowers()
    {
        HeldLevels average(HeldLevels::Kind::Average);
        HeldLevels minimum(HeldLevels::Kind::Minimum);
        for (const Levels& levels :
             {Levels{{0, noLevel, -50}}, Levels{{20, 3, noLevel}}, Levels{{-300, 3, -40}}}) {
            average.add(levels.sweep());
            minimum.add(levels.sweep());
        }
        const auto mean = average.sweep().segments.front().levels;
        QVERIFY(std::abs(mean[0] - 10 * std::log10(101.0F / 3)) < 0.01F);
        QVERIFY(std::abs(mean[1] - 3) < 0.01F);
        const auto lowest = minimum.sweep().segments.front().levels;
        QCOMPARE(std::vector<float>(lowest.begin(), lowest.end()), (Values{-300, 3, -50}));
        for (int i = 0; i < 500; ++i)
            average.add(Levels{{60, 60, 60}}.sweep());
        QVERIFY(std::abs(mean[0] - 60) < 0.01F); // older levels fade out
    }

    void historyIsBounded()
    {
        constexpr std::size_t limit = 100'000;
        LevelHistory history(limit);
        std::vector<float> levels(1000);
        for (int i = 0; i < 200; ++i) {
            levels.front() = static_cast<float>(i);
            const std::vector<Segment> hops{{5e3, 1, 1, levels}, {1e3, 1, 1, levels}};
            QVERIFY(history.append(static_cast<quint64>(i), hops));
            QVERIFY(history.bytes() <= limit + 2 * levels.size() * sizeof(float) + 1000);
        }
        QCOMPARE(history.count(), 200);
        QVERIFY(history.first() > 150 && history.sweep(history.first() - 1).isEmpty());
        for (qsizetype i = history.first(); i < history.count(); ++i) {
            QCOMPARE(history.sweep(i).timeUs, static_cast<quint64>(i));
            QCOMPARE(history.sweep(i).lowHz, 1e3);
            QCOMPARE(*history.sweep(i).levelAt(5e3), static_cast<float>(i));
        }
        const std::vector<Segment> useless{{0, 0, 1, levels},
                                           {0, -1, 1, levels},
                                           {0, 1, 1, {}},
                                           {qQNaN(), 1, 1, levels},
                                           {0, 1e308, 1, levels}};
        for (const Segment& hop : useless)
            QVERIFY(!history.append(0, {&hop, 1}));
        QVERIFY(!history.append(0, {}));
        QCOMPARE(history.count(), 200);
    }
};

QTEST_GUILESS_MAIN(tst_Measurements)
#include "tst_measurements.moc"
