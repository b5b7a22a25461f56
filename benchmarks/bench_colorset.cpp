// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <guibase/colors/colorset.h>

#include <QApplication>

#include <array>
#include <cstdint>

/// What GetColor() is measured against: a function that returns an array's element by reference
/// and that no optimizer sees through. As it is in this executable, its call costs even less than
/// that of a function which a library exports.
[[gnu::noipa]] const QColor& arrayElement(int position);

const QColor& arrayElement(int position)
{
    static constinit std::array<QColor, IColorBase::slotCount> elements;
    return elements[static_cast<std::size_t>(position)];
}

namespace {

/// Slots in an order that jumps about; below 75 every slot has a colour.
constexpr auto visited = [] {
    std::array<std::uint8_t, 256> slots{};
    for (std::size_t i = 0; i < slots.size(); ++i)
        slots[i] = static_cast<std::uint8_t>(i * 37 % 75);
    return slots;
}();

template <typename Step>
void repeat(benchmark::State& state, Step step)
{
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(&step(visited[next++ % visited.size()]));
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    RatioRun run;
    const ColorSet& colors = ColorSet::Instance();
    run.compare(
        "ColorSet::GetColor against an array element", 2.0,
        [&colors](benchmark::State& state) {
            repeat(state, [&colors](int slot) -> const QColor& {
                return colors.GetColor(static_cast<IColorBase::ECOLOR>(slot));
            });
        },
        [](benchmark::State& state) { repeat(state, arrayElement); });
    return run.run(argc, argv);
}
