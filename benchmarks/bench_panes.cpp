// SPDX-License-Identifier: MIT
// What a pane of 1600 x 900 pixels costs must follow its pixels: 100,000 bins ("ours") against
// 2,000 bins ("theirs") on the same pixels.
#include "ratio.h"

#include "centre/bandview.h"

#include <radiopanes/core/columnreducer.h>
#include <radiopanes/panes/spectrumpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <QApplication>
#include <QImage>

#include <cmath>
#include <map>
#include <memory>
#include <numbers>

using namespace bandmonitor;

namespace {

constexpr int manyBins = 100'000;
constexpr int fewBins = 2'000;
constexpr int sweeps = 16;
constexpr QSize paneSize(1600, 900);
constexpr double pixelLimit = 1.5;
// A new sweep must also be read once, bin by bin, for the pyramids and the hold maximum.
constexpr double newSweepLimit = 3;

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

using Step = std::function<void(Bench&, int sweep)>;

void compare(RatioRun& run, const std::string& name, double limit, std::map<int, Bench>& benches,
             const Step& step)
{
    const auto body = [&benches, step](int bins) {
        return [&benches, step, bins](benchmark::State& state) {
            Bench& bench = benches.at(bins);
            int sweep = 0;
            clearVectorRegisters();
            for (auto _ : state) {
                if (++sweep == sweeps) {
                    state.PauseTiming();
                    bench.view.waterfall().setPosition(0, bench.pyramids[0]);
                    sweep = 1;
                    state.ResumeTiming();
                }
                step(bench, sweep);
            }
        };
    };
    run.compare(name, limit, body(manyBins), body(fewBins));
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::map<int, Bench> benches;
    benches.try_emplace(manyBins, manyBins);
    benches.try_emplace(fewBins, fewBins);

    RatioRun run;
    compare(run, "spectrum: paint, 100,000 against 2,000 bins", pixelLimit, benches,
            [](Bench& bench, int) { bench.paint(bench.view.spectrum()); });
    compare(run, "spectrum: reduce and paint, 100,000 against 2,000 bins", pixelLimit, benches,
            [](Bench& bench, int sweep) {
                bench.view.spectrum().setSweep(bench.recording->sweep(sweep),
                                               bench.pyramids[static_cast<size_t>(sweep)]);
                bench.paint(bench.view.spectrum());
            });
    compare(run, "waterfall: new line without painting, 100,000 against 2,000 bins", pixelLimit,
            benches, [](Bench& bench, int sweep) {
                bench.view.waterfall().setPosition(sweep,
                                                   bench.pyramids[static_cast<size_t>(sweep)]);
            });
    compare(run, "waterfall: new line and paint, 100,000 against 2,000 bins", pixelLimit, benches,
            [](Bench& bench, int sweep) {
                bench.view.waterfall().setPosition(sweep,
                                                   bench.pyramids[static_cast<size_t>(sweep)]);
                bench.paint(bench.view.waterfall());
            });
    compare(run, "whole new sweep, both panes, 100,000 against 2,000 bins", newSweepLimit, benches,
            [](Bench& bench, int sweep) {
                bench.view.showSweep(sweep, sweep - 1);
                bench.paint(bench.view.spectrum());
                bench.paint(bench.view.waterfall());
            });
    return run.run(argc, argv);
}
