// SPDX-License-Identifier: MIT
// What a pane of 1600 x 900 pixels costs: against drawing one ready image of that size, with
// 100,000 bins against 2,000 on the same pixels, and against the same in QCustomPlot where that is
// there.
#include "ratio.h"
#ifdef BENCH_QCUSTOMPLOT
#include "plottedpanes.h"
#endif

#include "centre/bandview.h"

#include <radiopanes/core/columnreducer.h>
#include <radiopanes/panes/spectrumpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <numbers>

using namespace bandmonitor;
using namespace RadioPanes;

namespace {

constexpr int manyBins = 100'000;
constexpr int fewBins = 2'000;
constexpr int sweeps = 16;
constexpr QSize paneSize(1600, 900);
constexpr double pixelLimit = 1.5;
// In ready images.
constexpr double spectrumLimit = 4;
constexpr double cursorLimit = 2;
constexpr double waterfallLimit = 1;
// A new sweep must also be read once, bin by bin, for the pyramids and the hold maximum.
constexpr double newSweepLimit = 3;
[[maybe_unused]] constexpr double plotLimit = 0.1;

/// Waves above noise, the same picture whatever the number of bins.
std::shared_ptr<const Recording> makeRecording(int bins)
{
    auto recording = std::make_shared<Recording>();
    std::vector<float> levels(static_cast<size_t>(bins));
    quint32 random = 1;
    for (int sweep = 0; sweep < sweeps; ++sweep) {
        for (int bin = 0; bin < bins; ++bin) {
            random = random * 1664525U + 1013904223U;
            const double noise = static_cast<double>(random >> 16) / 65536 * 10;
            const double wave = std::sin(20 * std::numbers::pi * bin / bins) * 20;
            levels[static_cast<size_t>(bin)] = static_cast<float>(-80 + wave + noise);
        }
        const Segment segment{80e6, 30e6 / bins, 1, levels};
        recording->append(static_cast<quint64>(sweep) * 1'000'000, {&segment, 1});
    }
    return recording;
}

/// The sweeps of a recording again and again: a waterfall of them is full.
class EndlessHistory : public SweepHistory
{
public:
    explicit EndlessHistory(const Recording& recording)
        : m_recording(recording)
    {}
    qsizetype count() const override { return std::numeric_limits<qsizetype>::max(); }
    Sweep sweep(qsizetype index) const override { return m_recording.sweep(index % sweeps); }
    std::size_t largestBinCount() const override { return m_recording.largestBinCount(); }

private:
    const Recording& m_recording;
};

/// The toolkit's painting can leave the upper halves of the vector registers in use, and scalar
/// code is several times slower until they are cleared. Repetitions run in random order: without
/// this, what one of them measures would depend on which one ran before.
void clearVectorRegisters()
{
#if defined(__GNUC__) && defined(__x86_64__)
    if (__builtin_cpu_supports("avx"))
        asm volatile("vzeroupper");
#endif
}

/// A pane with its recording and everything that painting needs.
struct Bench
{
    explicit Bench(int bins)
        : recording(makeRecording(bins))
        , canvas(paneSize, QImage::Format_RGB32)
    {
        for (int sweep = 0; sweep < sweeps; ++sweep)
            pyramids.push_back(std::make_shared<const LevelPyramid>(recording->sweep(sweep)));
        view.setRecording(recording);
        view.spectrum().setFixedSize(paneSize);
        view.waterfall().setFixedSize(paneSize);
        view.adjustSize();
        view.showSweep(0, -1);
        paint(view.spectrum()); // the first painting lays the widgets out
        paint(view.waterfall());
    }

    void paint(QWidget& pane) { pane.render(&canvas, {}, {}, QWidget::RenderFlags()); }

    std::shared_ptr<const Recording> recording;
    std::vector<std::shared_ptr<const LevelPyramid>> pyramids;
    BandView view;
    QImage canvas;
};

void addLine(Bench& bench, int sweep)
{
    bench.view.waterfall().setPosition(sweep, bench.pyramids[static_cast<size_t>(sweep % sweeps)]);
}

using Step = std::function<void(Bench&, int sweep)>;
using Benches = std::map<int, Bench>;
using BodyOf = RatioRun::Body (*)(Benches&, int bins, const Step&);

RatioRun::Body bodyOf(Benches& benches, int bins, const Step& step)
{
    return [&bench = benches.at(bins), step](benchmark::State& state) {
        int sweep = 0;
        clearVectorRegisters();
        for (auto _ : state) {
            if (++sweep == sweeps) {
                state.PauseTiming();
                bench.view.setHistory(bench.recording); // no line is kept
                bench.view.waterfall().setPosition(0, bench.pyramids[0]);
                QCoreApplication::sendPostedEvents();
                sweep = 1;
                state.ResumeTiming();
            }
            step(bench, sweep);
        }
    };
}

/// The waterfall is full of lines from the first step on.
RatioRun::Body bodyOfWaterfall(Benches& benches, int bins, const Step& step)
{
    return [&bench = benches.at(bins), step](benchmark::State& state) {
        const EndlessHistory history(*bench.recording);
        WaterfallPane& waterfall = bench.view.waterfall();
        waterfall.setHistory({std::shared_ptr<void>(), &history});
        int sweep = 0;
        while (sweep < paneSize.height() / WaterfallPane::linePixels)
            addLine(bench, sweep++);
        bench.paint(waterfall);
        clearVectorRegisters();
        for (auto _ : state)
            step(bench, sweep++);
        waterfall.setHistory(bench.recording);
    };
}

void drawReadyImage(benchmark::State& state)
{
    QImage image(paneSize, QImage::Format_RGB32);
    image.fill(Qt::darkBlue);
    QImage canvas(paneSize, QImage::Format_RGB32);
    clearVectorRegisters();
    for (auto _ : state) {
        QPainter painter(&canvas);
        painter.drawImage(0, 0, image);
    }
}

void compareBins(RatioRun& run, const std::string& name, double limit, Benches& benches,
                 const Step& step, BodyOf makeBody = bodyOf)
{
    run.compare(name + ", 100,000 against 2,000 bins", limit, makeBody(benches, manyBins, step),
                makeBody(benches, fewBins, step));
}

void compareImage(RatioRun& run, const std::string& name, double limit, Benches& benches,
                  const Step& step, BodyOf makeBody = bodyOf)
{
    for (const int bins : {fewBins, manyBins})
        run.compare(name + ", " + std::to_string(bins) + " bins, against a ready image", limit,
                    makeBody(benches, bins, step), drawReadyImage);
}

/// Curve and hold.
void setTraces(Bench& bench, int sweep)
{
    const auto& pyramid = bench.pyramids[static_cast<size_t>(sweep)];
    bench.view.spectrum().setTrace(Trace::Current, bench.recording->sweep(sweep), pyramid);
    const auto& held = bench.pyramids[static_cast<size_t>(sweep - 1)];
    bench.view.spectrum().setTrace(Trace::Maximum, bench.recording->sweep(sweep - 1), held);
}

/// With grid and text.
void showInSpectrum(Bench& bench, int sweep)
{
    setTraces(bench, sweep);
    bench.paint(bench.view.spectrum());
}

void moveCursor(Bench& bench, int sweep)
{
    bench.view.visibleBand().setCursor(90e6 + sweep * 1e5);
    bench.paint(bench.view.spectrum());
}

void addLineAndPaint(Bench& bench, int sweep)
{
    addLine(bench, sweep);
    bench.paint(bench.view.waterfall());
}

void showSweep(Bench& bench, int sweep)
{
    bench.view.showSweep(sweep, sweep - 1);
    bench.paint(bench.view.spectrum());
    bench.paint(bench.view.waterfall());
}

#ifdef BENCH_QCUSTOMPLOT

/// As an application does it: the step, and what it has a shown window paint.
RatioRun::Body shownBodyOf(Benches& benches, int bins, const Step& step, BodyOf makeBody = bodyOf)
{
    const Step stepAndPaint = [step](Bench& bench, int sweep) {
        step(bench, sweep);
        QCoreApplication::sendPostedEvents();
    };
    return [&bench = benches.at(bins),
            body = makeBody(benches, bins, stepAndPaint)](benchmark::State& state) {
        bench.view.show();
        QCoreApplication::processEvents();
        body(state);
        bench.view.hide();
    };
}

std::vector<std::vector<float>> levelsOf(const Recording& recording)
{
    std::vector<std::vector<float>> result;
    for (int sweep = 0; sweep < sweeps; ++sweep) {
        const auto levels = recording.sweep(sweep).segments.front().levels;
        result.emplace_back(levels.begin(), levels.end());
    }
    return result;
}

void comparePlots(RatioRun& run, Benches& benches)
{
    for (const int bins : {fewBins, manyBins}) {
        const std::string name = ", " + std::to_string(bins) + " bins, against QCustomPlot";
        const Recording& recording = *benches.at(bins).recording;
        run.compare("spectrum: reduce and paint" + name, plotLimit,
                    shownBodyOf(benches, bins, setTraces),
                    [&recording, bins](benchmark::State& state) {
                        PlottedSpectrum plot(paneSize, 80e6, 30e6 / bins, levelsOf(recording));
                        std::size_t sweep = 0;
                        for (auto _ : state) {
                            ++sweep;
                            plot.show(sweep, sweep - 1);
                        }
                    });
        run.compare("waterfall: new line and paint" + name, plotLimit,
                    shownBodyOf(benches, bins, addLine, bodyOfWaterfall),
                    [&recording](benchmark::State& state) {
                        PlottedWaterfall plot(paneSize,
                                              paneSize.height() / WaterfallPane::linePixels);
                        const auto levels = levelsOf(recording);
                        std::size_t sweep = 0;
                        for (auto _ : state)
                            plot.addLine(levels[++sweep % levels.size()]);
                    });
    }
}

#endif

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Benches benches;
    benches.try_emplace(manyBins, manyBins);
    benches.try_emplace(fewBins, fewBins);

    RatioRun run;
    compareImage(run, "spectrum: reduce and paint", spectrumLimit, benches, showInSpectrum);
    compareImage(run, "spectrum: move the cursor and paint", cursorLimit, benches, moveCursor);
    compareImage(run, "waterfall: new line and paint", waterfallLimit, benches, addLineAndPaint,
                 bodyOfWaterfall);
    compareBins(run, "spectrum: reduce and paint", pixelLimit, benches, showInSpectrum);
    compareBins(run, "waterfall: new line without painting", pixelLimit, benches, addLine,
                bodyOfWaterfall);
    compareBins(run, "waterfall: new line and paint", pixelLimit, benches, addLineAndPaint,
                bodyOfWaterfall);
    compareBins(run, "whole new sweep, both panes", newSweepLimit, benches, showSweep);
#ifdef BENCH_QCUSTOMPLOT
    comparePlots(run, benches);
#endif
    return run.run(argc, argv);
}
