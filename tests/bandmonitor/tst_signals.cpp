// SPDX-License-Identifier: MIT
#include "recordings.h"

#include <model/samplegenerator.h>
#include <model/signalwatch.h>

#include <QTest>

#include <cmath>
#include <map>

using namespace bandmonitor;

namespace {

/// Noise that is the same every time, with a normal-like spread of 1 dB.
std::vector<float> noise(std::size_t bins, float floorDb, unsigned seed = 1)
{
    std::vector<float> levels(bins);
    quint64 state = seed;
    for (float& level : levels) {
        float sum = 0;
        for (int i = 0; i < 6; ++i) {
            state = state * 6364136223846793005U + 1442695040888963407U;
            sum += static_cast<float>(state >> 40) / (1 << 24) - 0.5F;
        }
        level = floorDb + sum * 1.414F;
    }
    return levels;
}

void raise(std::vector<float>& levels, std::size_t first, std::size_t count, float levelDb)
{
    for (std::size_t i = first; i < first + count; ++i)
        levels[i] = levelDb;
}

Signal signalAt(double hertz, double levelDb = -50, double bandwidth = 100)
{
    Signal signal;
    signal.centreHz = hertz;
    signal.lowHz = hertz - bandwidth / 2;
    signal.highHz = hertz + bandwidth / 2;
    signal.peakDb = levelDb;
    signal.stepHz = 10;
    return signal;
}

using Script = std::vector<Signal> (*)(int sweep);

} // namespace
Q_DECLARE_METATYPE(Script)

class tst_Signals : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void detects_data()
    {
        // First bin, bins and level of what is put on noise of -90 dB in two hops of 500 bins of
        // 10 Hz, from 1000 Hz on; then the band that must be found, or none.
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("count");
        QTest::addColumn<float>("level");
        QTest::addColumn<int>("signalCount");
        QTest::newRow("noise only") << 0 << 0 << -90.0F << 0;
        QTest::newRow("carrier of one bin") << 200 << 1 << -70.0F << 1;
        QTest::newRow("just above the noise") << 200 << 1 << -82.0F << 1;
        QTest::newRow("wide and weak") << 200 << 40 << -87.0F << 1;
        QTest::newRow("weak, but not wide") << 200 << 2 << -87.0F << 0;
        QTest::newRow("over the seam") << 490 << 20 << -60.0F << 1;
        QTest::newRow("first bin") << 0 << 3 << -60.0F << 1;
        QTest::newRow("last bin") << 999 << 1 << -60.0F << 1;
        QTest::newRow("fills a hop") << 500 << 500 << -60.0F << 1;
        QTest::newRow("half a hop") << 0 << 250 << -60.0F << 1;
    }

    void detects()
    {
        QFETCH(int, first);
        QFETCH(int, count);
        QFETCH(float, level);
        QFETCH(int, signalCount);
        std::vector<float> levels = noise(1000, -90);
        raise(levels, static_cast<std::size_t>(first), static_cast<std::size_t>(count), level);
        OwnedSegments segments;
        segments.add(1000, 10, {levels.begin(), levels.begin() + 500});
        segments.add(6000, 10, {levels.begin() + 500, levels.end()});
        SignalDetector detector;
        const auto found = detector.detect(segments.sweep());
        QCOMPARE(found.size(), static_cast<std::size_t>(signalCount));
        if (signalCount == 0)
            return;
        // Beside what is only just above it, noise may count among the signal.
        const double slack = level < -65 ? 60 : 0.001;
        const double low = 1000 + 10.0 * first;
        const double high = low + 10.0 * count;
        QVERIFY2(std::abs(found[0].lowHz - low) <= slack,
                 qPrintable(QString::number(found[0].lowHz)));
        QVERIFY2(std::abs(found[0].highHz - high) <= slack,
                 qPrintable(QString::number(found[0].highHz)));
        QVERIFY(std::abs(found[0].centreHz - (low + high) / 2) <= slack / 2 + 0.1);
        QCOMPARE(found[0].peakDb, static_cast<double>(level));
    }

    void skirtsAndGapsBelongToTheSignal()
    {
        std::vector<float> levels = noise(500, -90);
        raise(levels, 100, 1, -40); // with sidebands parted from it
        raise(levels, 95, 2, -60);
        raise(levels, 104, 2, -60);
        raise(levels, 108, 1, -75); // more than 26 dB below
        raise(levels, 200, 3, -60);
        levels[201] = noLevel;
        OwnedSegments segments;
        segments.add(0, 10, levels);
        SignalDetector detector;
        const auto found = detector.detect(segments.sweep());
        QCOMPARE(found.size(), 2U);
        QCOMPARE(found[0].lowHz, 950.0);
        QCOMPARE(found[0].highHz, 1060.0);
        QCOMPARE(found[1].bandwidthHz(), 30.0);
    }

    void strangeSweepsAreHarmless()
    {
        SignalDetector detector;
        QCOMPARE(detector.detect({}).size(), 0U);
        OwnedSegments segments;
        segments.add(0, 10, std::vector<float>(50, noLevel));
        segments.add(500, 10, std::vector<float>(50, -30)); // without any noise
        segments.add(520, 3, std::vector<float>(4, -30));   // inside another hop
        QCOMPARE(detector.detect(segments.sweep()).size(), 0U);
        OwnedSegments comb;
        std::vector<float> teeth = noise(30000, -90);
        for (std::size_t i = 0; i < teeth.size(); i += 40)
            teeth[i] = -60 + static_cast<float>(i) / 10000;
        comb.add(0, 10, teeth);
        const auto strongest = detector.detect(comb.sweep());
        QCOMPARE(strongest.size(), SignalDetector::maximumSignals);
        QVERIFY(strongest.front().lowHz >= 10.0 * (30000 - 40 * 501));
    }

    void tellsTypes_data()
    {
        QTest::addColumn<Script>("script");
        QTest::addColumn<int>("sweeps");
        QTest::addColumn<QByteArray>("types");
        QTest::newRow("young") << Script([](int) { return std::vector{signalAt(5000)}; }) << 7
                               << QByteArray("a");
        QTest::newRow("fixed") << Script([](int sweep) {
            return sweep % 8 == 5 ? std::vector<Signal>() : std::vector{signalAt(5000)};
        }) << 20 << QByteArray("h");
        QTest::newRow("trembling")
            << Script([](int sweep) { return std::vector{signalAt(5000 + sweep * 37 % 50)}; }) << 60
            << QByteArray("h");
        QTest::newRow("one leap") << Script([](int sweep) {
            return std::vector{signalAt(sweep < 12 ? 5000 : 5050)};
        }) << 40 << QByteArray("h");
        QTest::newRow("chirp that comes to rest") << Script([](int sweep) {
            return std::vector{signalAt(5000 + 40 * std::min(sweep, 20))};
        }) << 60 << QByteArray("i");
        QTest::newRow("burst") << Script([](int sweep) {
            return sweep % 16 < 2 ? std::vector{signalAt(5000)} : std::vector<Signal>();
        }) << 40 << QByteArray("k");
        QTest::newRow("now and then") << Script([](int sweep) {
            return sweep % 16 < 8 ? std::vector{signalAt(5000)} : std::vector<Signal>();
        }) << 40 << QByteArray("a");
        QTest::newRow("hopper") << Script([](int sweep) {
            return std::vector{signalAt(5000 + 1000 * (sweep * 5 % 7))};
        }) << 40 << QByteArray("jjjjjjj");
        QTest::newRow("bursts of unlike levels") << Script([](int sweep) {
            const int place = sweep * 5 % 7;
            return std::vector{signalAt(5000 + 1000 * place, -20 - 10 * place)};
        }) << 40 << QByteArray("kkkkkkk");
        QTest::newRow("bursts at the same time") << Script([](int sweep) {
            std::vector<Signal> all;
            for (int i = 0; i < 6 && sweep % 10 == 0; ++i)
                all.push_back(signalAt(5000 + 1000 * i));
            return all;
        }) << 40 << QByteArray("kkkkkk");
        QTest::newRow("gone for long") << Script([](int sweep) {
            return sweep < 9 ? std::vector{signalAt(5000)} : std::vector<Signal>();
        }) << 80 << QByteArray();
    }

    void tellsTypes()
    {
        QFETCH(Script, script);
        QFETCH(int, sweeps);
        SignalTracker tracker;
        for (int sweep = 0; sweep < sweeps; ++sweep)
            tracker.add(static_cast<quint64>(sweep), script(sweep));
        QByteArray types;
        for (const SignalTrack& track : tracker.tracks())
            types += track.type;
        QTEST(types, "types");
    }

    void tracksAreBounded()
    {
        SignalTracker tracker;
        const auto crowd = [](int count, double offset) {
            std::vector<Signal> all{signalAt(10)};
            for (int i = 1; i < count; ++i)
                all.push_back(signalAt(offset + 1000.0 * i));
            return all;
        };
        tracker.add(1, crowd(150, 0));
        tracker.add(2, crowd(500, 500)); // keeps the newly seen ones first, of these the older
        QCOMPARE(tracker.tracks().size(), SignalTracker::maximumTracks);
        QCOMPARE(tracker.tracks().front().id, 1U);
        QCOMPARE(tracker.tracks().front().firstSeenUs, 1U);
        for (const SignalTrack& track : tracker.tracks())
            QVERIFY(track.isPresent());
        QCOMPARE(tracker.tracks()[1].signal.centreHz, 1500.0);
    }

    void followsTheSample()
    {
        ReadRecording sample;
        sample.read(SampleGenerator().remaining().toStdString());
        SignalWatch watch;
        watch.setRecording(sample.recording);
        QCOMPARE(watch.newcomer(), nullptr);
        for (qsizetype sweep = 0; sweep < sample.recording->count(); ++sweep)
            watch.showSweep(sweep, sweep - 1);
        std::map<char, int> counts;
        for (const SignalTrack& track : watch.tracks())
            ++counts[track.type];
        QCOMPARE(counts['h'], 9); // the stations
        QVERIFY2(counts['j'] >= 8, qPrintable(QString::number(counts['j'])));
        QVERIFY(counts['i'] >= 1 && counts['i'] <= 2); // the drifting one, hidden for a while
        QVERIFY2(watch.tracks().size() <= 24, qPrintable(QString::number(watch.tracks().size())));
        const std::uint32_t before = watch.tracks().back().id;

        watch.showSweep(10, -1); // back: all begins anew
        QCOMPARE(watch.newcomer(), nullptr);
        QCOMPARE(watch.track(before), nullptr);
        for (const SignalTrack& track : watch.tracks())
            QCOMPARE(track.type, 'a');
        for (qsizetype sweep = 11; sweep < 30 && watch.newcomer() == nullptr; ++sweep)
            watch.showSweep(sweep, sweep - 1);
        QVERIFY(watch.newcomer() != nullptr); // the hopper does not stand still
        QVERIFY(watch.track(watch.newcomer()->id) == watch.newcomer());
    }
};

QTEST_GUILESS_MAIN(tst_Signals)
#include "tst_signals.moc"
