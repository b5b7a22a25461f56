// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <guibase/frequencies/suffixeddouble.h>

#include <QApplication>
#include <QLocale>

#include <array>

namespace {

// As many as needed to keep the branch predictor from learning one number by heart.
constexpr std::array<double, 8> frequencies{433920000.0,  2400000000.0, 87500000.0, 118.5,
                                            1575420000.0, 27185000.25,  9000.0,     145812500.0};

std::array<QString, frequencies.size()> typedNumbers()
{
    std::array<QString, frequencies.size()> texts;
    for (std::size_t i = 0; i < frequencies.size(); ++i)
        texts[i] = QString::number(frequencies[i] / 1e6, 'f', 6);
    return texts;
}

template <typename Texts, typename Step>
void repeat(benchmark::State& state, const Texts& inputs, Step step)
{
    std::size_t next = 0;
    for (auto _ : state) {
        step(inputs[next]);
        next = (next + 1) % inputs.size();
    }
}

void compareFormatting(RatioRun& run)
{
    run.compare(
        "SuffixedDouble::GetString against QString::number", 2.0,
        [](benchmark::State& state) {
            SuffixedDouble frequency(QStringLiteral("Hz"), 1000, true);
            repeat(state, frequencies, [&frequency](double value) {
                benchmark::DoNotOptimize(frequency.GetString(value));
            });
        },
        [](benchmark::State& state) {
            repeat(state, frequencies, [](double value) {
                benchmark::DoNotOptimize(QString::number(value / 1e6, 'f', 6));
            });
        });
}

void compareParsing(RatioRun& run, const std::string& name, const QString& unit)
{
    const auto numbers = typedNumbers();
    auto typed = numbers;
    for (QString& text : typed)
        text += unit;
    run.compare(
        name, 1.5,
        [typed](benchmark::State& state) {
            SuffixedDouble frequency(QStringLiteral("Hz"), 1000, true);
            repeat(state, typed, [&frequency](const QString& text) {
                frequency.SetFrequencyString(text);
                benchmark::DoNotOptimize(frequency.GetValue());
            });
        },
        [numbers](benchmark::State& state) {
            const QLocale locale = QLocale::c();
            repeat(state, numbers, [&locale](const QString& text) {
                benchmark::DoNotOptimize(locale.toDouble(text));
            });
        });
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    RatioRun run;
    compareFormatting(run);
    compareParsing(run, "SuffixedDouble::SetFrequencyString with unit against QLocale::toDouble",
                   QStringLiteral(" MHz"));
    compareParsing(run, "SuffixedDouble::SetFrequencyString with letter against QLocale::toDouble",
                   QStringLiteral("M"));
    compareParsing(run, "SuffixedDouble::SetFrequencyString digits against QLocale::toDouble",
                   QString());
    return run.run(argc, argv);
}
