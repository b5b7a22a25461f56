// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <radiopanes/core/columnreducer.h>
#include <radiopanes/core/overviewlevels.h>

#include <model/recordingloader.h>
#include <model/recordingparser.h>
#include <model/samplegenerator.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <malloc.h>

#include <charconv>
#include <cstdio>

using namespace bandmonitor;

namespace {

constexpr qsizetype textBytes = 100'000'000;
constexpr std::size_t paneColumns = 1600;

QByteArray bigRecording()
{
    SampleSettings settings;
    settings.sweeps = 1'000'000;
    settings.binsPerHop = 4000;
    settings.stepHz = 2500;
    SampleGenerator generator(settings);
    QByteArray text;
    text.reserve(textBytes + 200'000);
    while (text.size() < textBytes)
        text += generator.nextSweep();
    return text;
}

/// std::from_chars over every field, and nothing else.
void readFields(benchmark::State& state, const QByteArray& text)
{
    for (auto _ : state) {
        const char* at = text.constData();
        const char* const end = at + text.size();
        while (at < end) {
            float value = 0;
            at = std::from_chars(at, end, value).ptr;
            benchmark::DoNotOptimize(value);
            while (at < end && *at != ',' && *at != '\n')
                ++at;
            while (at < end && (*at == ',' || *at == '\n' || *at == ' '))
                ++at;
        }
    }
}

std::shared_ptr<const Recording> parse(const QByteArray& text)
{
    const auto recording = std::make_shared<Recording>();
    RecordingParser parser(recording);
    parser.feed({text.constData(), static_cast<std::size_t>(text.size())});
    parser.finish();
    return recording;
}

std::shared_ptr<const Recording> loadFile(const QString& path)
{
    RecordingLoader loader;
    QEventLoop loop;
    QObject::connect(&loader, &RecordingLoader::finished, &loop, &QEventLoop::quit);
    QObject::connect(&loader, &RecordingLoader::failed, &loop, &QEventLoop::quit);
    loader.load(path);
    loop.exec();
    return loader.recording();
}

std::size_t allocatedBytes()
{
    const auto information = mallinfo2();
    return information.uordblks + information.hblkhd;
}

/// Whether a loaded recording takes at most twice the memory of the levels it holds.
bool checkMemory(const QString& path)
{
    const std::size_t before = allocatedBytes();
    const auto recording = loadFile(path);
    const double taken = static_cast<double>(allocatedBytes() - before);
    const double held = static_cast<double>(recording->levelCount() * sizeof(float));
    return printRatio("memory of a loaded recording against its levels",
                      withUnit(taken / 1e6, 1, " MB"), withUnit(held / 1e6, 1, " MB"), taken / held,
                      2);
}

/// Columns of a pane from a sweep of `bins` bins.
RatioRun::Body reducing(std::size_t bins)
{
    return [bins](benchmark::State& state) {
        std::vector<float> levels(bins);
        for (std::size_t i = 0; i < bins; ++i)
            levels[i] = static_cast<float>(i * 7919 % 10007) / 100 - 100;
        const std::vector<Segment> segments = {{80e6, 30e6 / static_cast<double>(bins), 1, levels}};
        const LevelPyramid pyramid(makeSweep(0, segments));
        std::vector<LevelRange> columns(paneColumns);
        for (auto _ : state) {
            pyramid.reduce({80e6, 110e6}, columns);
            benchmark::DoNotOptimize(columns.data());
            benchmark::ClobberMemory();
        }
    };
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("recording.csv"));
    const QByteArray text = bigRecording();
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()) {
        std::fprintf(stderr, "%s\n", qPrintable(file.errorString()));
        return 1;
    }
    const bool memoryIsGood = checkMemory(path);

    RatioRun run;
    const auto fields = [&text](benchmark::State& state) { readFields(state, text); };
    run.compare(
        "RecordingParser, 100 MB in memory, against std::from_chars", 0.9,
        [&text](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(parse(text));
        },
        fields);
    run.compare(
        "RecordingLoader, 100 MB file, against std::from_chars in memory", 0.9,
        [&path](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(loadFile(path));
        },
        fields, RatioRun::Clock::Wall);
    const auto recording = parse(text);
    run.compare(
        "overview of all sweeps, 100 MB, against RecordingParser", 0.1,
        [&recording](benchmark::State& state) {
            for (auto _ : state) {
                OverviewLevels levels;
                for (qsizetype sweep = 0; sweep < recording->count(); ++sweep)
                    levels.add(recording->sweep(sweep));
                benchmark::DoNotOptimize(levels.column(0).data());
            }
        },
        [&text](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(parse(text));
        });
    run.compare("LevelPyramid::reduce, 100,000 bins against 2,000", 1.5, reducing(100'000),
                reducing(2'000));
    const int result = run.run(argc, argv);
    return memoryIsGood ? result : 1;
}
