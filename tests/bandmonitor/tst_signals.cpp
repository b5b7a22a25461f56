// SPDX-License-Identifier: MIT
#include "recordings.h"

#include <model/ratelimit.h>
#include <model/samplegenerator.h>
#include <model/signalalarm.h>
#include <model/signalwatch.h>

#include "support/testrows.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <random>

using namespace bandmonitor;

namespace {

/// Noise that is the same every time, with a spread of 1 dB.
std::vector<float> noise(std::size_t bins, float floorDb)
{
    std::mt19937 engine;
    std::normal_distribution<float> spread(floorDb, 1);
    std::vector<float> levels(bins);
    std::ranges::generate(levels, [&] { return spread(engine); });
    return levels;
}

void raise(std::vector<float>& levels, int first, int count, float levelDb)
{
    std::fill_n(levels.begin() + first, count, levelDb);
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

std::vector<Signal> at(double hertz, bool isThere = true)
{
    return std::vector(isThere ? 1 : 0, signalAt(hertz));
}

} // namespace

class tst_Signals : public QObject
{
    Q_OBJECT
    using Spots = TestRows<int, int, float, int>;
    using Script = std::vector<Signal> (*)(int sweep);
    using Types = TestRows<int, QByteArray, Script>;

private Q_SLOTS:
    void detects_data()
    {
        // First bin, bins and level of what is put on noise of -90 dB in two hops of 500 bins of
        // 10 Hz, from 1000 Hz on; then how many signals must be found.
        Spots row;
        row("noise only", 0, 0, -90, 0);
        row("just above the noise", 200, 1, -82, 1);
        row("wide and weak", 200, 40, -87, 1);
        row("weak, but not wide", 200, 2, -87, 0);
        row("over the seam", 490, 20, -60, 1);
        row("first bin", 0, 3, -60, 1);
        row("last bin", 999, 1, -60, 1);
        row("fills a hop", 500, 500, -60, 1);
        row("half a hop", 0, 250, -60, 1);
    }

    void detects()
    {
        const auto& [first, count, level, signalCount] = Spots::fetch();
        std::vector<float> levels = noise(1000, -90);
        raise(levels, first, count, level);
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
        QVERIFY(std::abs(found[0].lowHz - low) <= slack &&
                std::abs(found[0].highHz - high) <= slack);
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
        Types row; // the number of sweeps, the types of the tracks, the signals of each sweep
        row("young", 7, "a", [](int) { return at(5000); });
        row("fixed", 20, "h", [](int sweep) { return at(5000, sweep % 8 != 5); });
        row("trembling", 60, "h", [](int sweep) { return at(5000 + sweep * 37 % 50); });
        row("one leap", 40, "h", [](int sweep) { return at(sweep < 12 ? 5000 : 5050); });
        row("drift, then rest", 60, "i", [](int s) { return at(5000 + 40 * std::min(s, 20)); });
        row("burst", 40, "k", [](int sweep) { return at(5000, sweep % 16 < 2); });
        row("now and then", 40, "a", [](int sweep) { return at(5000, sweep % 16 < 8); });
        row("hopper", 40, "jjjjjjj", [](int s) { return at(5000 + 1000 * (s * 5 % 7)); });
        const auto unlikeLevels = [](int sweep) {
            const int place = sweep * 5 % 7;
            return std::vector{signalAt(5000 + 1000 * place, -20 - 10 * place)};
        };
        row("bursts of unlike levels", 40, "kkkkkkk", unlikeLevels);
        const auto together = [](int sweep) {
            std::vector<Signal> all;
            for (int i = 0; i < 6 && sweep % 10 == 0; ++i)
                all.push_back(signalAt(5000 + 1000 * i));
            return all;
        };
        row("bursts at the same time", 40, "kkkkkk", together);
        row("gone for long", 80, "", [](int sweep) { return at(5000, sweep < 9); });
    }

    void tellsTypes()
    {
        const auto& [sweeps, expected, script] = Types::fetch();
        SignalTracker tracker;
        for (int sweep = 0; sweep < sweeps; ++sweep)
            tracker.add(static_cast<quint64>(sweep), script(sweep));
        QByteArray types;
        for (const SignalTrack& track : tracker.tracks())
            types += track.type;
        QCOMPARE(types, expected);
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
        QCOMPARE(tracker.tracks().front().firstSeenUs, 1U);
        QVERIFY(std::ranges::all_of(tracker.tracks(), &SignalTrack::isPresent));
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
        QVERIFY(counts['j'] >= 8);
        QVERIFY(counts['i'] >= 1 && counts['i'] <= 2); // the drifting one, hidden for a while
        QVERIFY(watch.tracks().size() <= 24);
        const std::uint32_t before = watch.tracks().back().id;

        const auto textOf = [](const SignalWatch& shown) {
            QString text;
            for (const SignalTrack& track : shown.tracks())
                QDebug(&text) << track.signal.centreHz << track.type << track.age
                              << track.firstSeenUs;
            return text;
        };
        for (const qsizetype target : {40, 50, 10}) { // back and on: the signals of that time
            watch.showSweep(target, -1);
            QCOMPARE(watch.newcomer(), nullptr);
            QCOMPARE(watch.track(before), nullptr);
            SignalWatch played;
            played.setRecording(sample.recording);
            for (qsizetype sweep = 0; sweep <= target; ++sweep)
                played.showSweep(sweep, sweep - 1);
            QCOMPARE(textOf(watch), textOf(played));
        }
        for (qsizetype sweep = 11; sweep < 80 && watch.newcomer() == nullptr; ++sweep)
            watch.showSweep(sweep, sweep - 1);
        QVERIFY(watch.newcomer() != nullptr); // the hopper does not stand still
        QVERIFY(watch.track(watch.newcomer()->id) == watch.newcomer());
    }

    void alarmsAgainForWhatHadGone()
    {
        // It begins in silence. The tracker gives a signal up long before it has gone.
        const int comes[] = {200, 300, 1000};
        Recording recording;
        for (int sweep = 0; sweep < 1100; ++sweep) {
            std::vector<float> levels = noise(500, -90);
            if (std::ranges::any_of(comes, [=](int at) { return sweep >= at && sweep < at + 5; }))
                raise(levels, 100, 3, -60);
            if (sweep >= 400) // the tracker takes it for another one each time
                raise(levels, sweep / 75 % 2 == 0 ? 300 : 312, 20, -60);
            const Segment segment{0, 10, 1, levels};
            recording.append(static_cast<quint64>(sweep) * 100'000, {&segment, 1});
        }
        SignalWatch watch;
        watch.setRecording(std::shared_ptr<const Recording>(std::shared_ptr<void>(), &recording));
        SignalAlarm alarm;
        std::vector<qsizetype> alarms;
        for (qsizetype sweep = 0; sweep < recording.count(); ++sweep) {
            watch.showSweep(sweep, sweep - 1);
            alarms.insert(alarms.end(), alarm.takeIn(watch).size(), sweep);
        }
        QCOMPARE(alarms, (std::vector<qsizetype>{202, 402, 1002}));
    }

    void fewPassInAMinute()
    {
        RateLimit limit;
        std::vector<int> passed;
        for (int second = 0; second < 130; second += 10) {
            if (limit.pass(RateLimit::Time(std::chrono::seconds(second))))
                passed.push_back(second);
        }
        QCOMPARE(passed, (std::vector{0, 10, 20, 60, 70, 80, 120}));
    }

    void alarmsOnceForWhatStays()
    {
        ReadRecording sample;
        sample.read(SampleGenerator().remaining().toStdString());
        SignalAlarm alarm;
        bool isFine = true; // Nothing too early, nothing twice.
        const auto replay = [&](bool ignoring) {
            SignalWatch watch;
            watch.setRecording(sample.recording);
            std::vector<std::uint32_t> ids;
            for (qsizetype sweep = 0; sweep < sample.recording->count(); ++sweep) {
                watch.showSweep(sweep, sweep - 1);
                for (const SignalTrack& track : alarm.takeIn(watch)) {
                    isFine = isFine && track.longestRun() >= SignalAlarm::sweepsOnEnd &&
                             sweep >= SignalAlarm::sweepsOnEnd &&
                             std::ranges::count(ids, track.id) == 0;
                    ids.push_back(track.id);
                    if (ignoring)
                        alarm.ignore(track.signal);
                }
            }
            return ids.size();
        };
        const std::size_t all = replay(false);
        QVERIFY(all >= 1);
        const std::size_t first = replay(true);
        QVERIFY(first >= 1 && first <= all);
        QVERIFY(replay(false) < all);
        QVERIFY(isFine);
        // Wherever it begins, what is there then is no news, side by side or not.
        for (qsizetype begin = 10; begin < sample.recording->count() - 20; ++begin) {
            SignalWatch watch;
            watch.setRecording(sample.recording);
            watch.showSweep(begin, -1);
            SignalAlarm begun;
            QVERIFY(begun.takeIn(watch).empty());
            const auto last = watch.tracks().empty()
                                  ? 0
                                  : std::ranges::max(watch.tracks(), {}, &SignalTrack::id).id;
            for (qsizetype sweep = begin + 1; sweep < begin + 20; ++sweep) {
                watch.showSweep(sweep, sweep - 1);
                for (const SignalTrack& track : begun.takeIn(watch))
                    QVERIFY2(track.id > last, qPrintable(QString::number(begin)));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_Signals)
#include "tst_signals.moc"
