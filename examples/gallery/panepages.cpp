// SPDX-License-Identifier: MIT
#include "pages.h"
#include "specimens.h"

#include <radiopanes/bearings/bearingrose.h>
#include <radiopanes/panes/levelpanes.h>
#include <radiopanes/panes/spectrumpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <QGridLayout>

#include <array>
#include <cmath>
#include <random>

namespace gallery {

namespace {

using namespace RadioPanes;

/// Noise with three carriers; always the same.
void fill(LevelPanes& panes)
{
    constexpr int sweeps = 120;
    constexpr quint64 firstTimeUs = 1'772'366'400'000'000; // 2026-03-01T12:00Z
    std::minstd_rand random(1);
    std::uniform_real_distribution<float> noise(-104, -96);
    for (int sweep = 0; sweep < sweeps; ++sweep) {
        std::vector<float> levels(2000);
        for (std::size_t bin = 0; bin < levels.size(); ++bin) {
            const auto at = [bin](double centre, double width) {
                const double away = (static_cast<double>(bin) - centre) / width;
                return std::exp(-away * away);
            };
            const double fading = 0.8 + 0.2 * std::sin(sweep * 0.2);
            levels[bin] =
                noise(random) + static_cast<float>(50 * at(400, 12) + 60 * fading * at(1100, 25) +
                                                   (sweep % 40 < 20 ? 40 * at(1650, 6) : 0));
        }
        panes.addSweep(firstTimeUs + static_cast<quint64>(sweep) * 40'000, 88e6, 10e3, levels);
    }
}

BearingRose* makeRose()
{
    auto* rose = new BearingRose;
    const std::array bearings{
        Bearing{.id = 1, .hertz = 98.5e6, .degrees = 40, .spread = 3, .type = 'a'},
        Bearing{.id = 2, .hertz = 92e6, .degrees = 135, .spread = 12, .type = 'd'},
        Bearing{.id = 3,
                .hertz = 104.5e6,
                .degrees = 250,
                .spread = 1,
                .type = 'k',
                .isPresent = false}};
    rose->setBearings(bearings);
    return rose;
}

} // namespace

QWidget* makeLivePanes()
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    auto* plain = new LevelPanes;
    fill(*plain);
    grid->addWidget(framed(QStringLiteral("As it begins"), plain), 0, 0);

    auto* full = new LevelPanes;
    for (const Trace trace : {Trace::Average, Trace::Minimum})
        full->spectrum().setTraceVisible(trace, true);
    full->spectrum().setThreshold(-70);
    full->spectrum().setCaption(QStringLiteral("Band II"));
    full->spectrum().setWidthsVisible(true);
    full->spectrum().setReferenceLevels({{.hertz = 88e6, .levelDb = -60},
                                         {.hertz = 98e6, .levelDb = -50},
                                         {.hertz = 108e6, .levelDb = -60}});
    full->waterfall().setColorMap(ColorMap::Fire);
    full->waterfall().setLegendVisible(true);
    fill(*full);
    full->visibleBand().addPin(92e6);
    full->visibleBand().setCursor(99e6);
    grid->addWidget(framed(QStringLiteral("All traces, pins, legends"), full), 0, 1);

    auto* zoomed = new LevelPanes;
    zoomed->waterfall().setColorMap(ColorMap::Even);
    fill(*zoomed);
    zoomed->visibleBand().setVisible(98.5e6, 99.5e6);
    grid->addWidget(framed(QStringLiteral("Zoomed in"), zoomed), 1, 0);
    grid->addWidget(framed(QStringLiteral("Without a sweep"), new LevelPanes), 1, 1);
    return page;
}

QWidget* makeBearings()
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->addWidget(framed(QStringLiteral("North up"), makeRose()), 0, 0);
    BearingRose* const selected = makeRose();
    selected->select(2);
    grid->addWidget(framed(QStringLiteral("A signal selected"), selected), 0, 1);
    BearingRose* const heading = makeRose();
    heading->setHeading(70);
    heading->setHeadingUp(true);
    grid->addWidget(framed(QStringLiteral("Heading up, 70°"), heading), 1, 0);
    grid->addWidget(framed(QStringLiteral("Without a bearing"), new BearingRose), 1, 1);
    return page;
}

} // namespace gallery
