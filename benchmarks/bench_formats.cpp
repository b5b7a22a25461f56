// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <guibase/formats/integralnumberdisplayformat.h>
#include <guibase/formats/realnumberdisplayformat.h>

#include <QLocale>

#include <bit>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr int sampleCount = 1024;

QLocale ungrouped()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

std::vector<double> randomReals(int count)
{
    std::mt19937_64 engine(1);
    std::uniform_real_distribution<double> exponent(-3.0, 9.0);
    std::vector<double> reals(static_cast<std::size_t>(count));
    for (double& real : reals)
        real = std::pow(10.0, exponent(engine)) * (engine() % 2 == 0 ? 1.0 : -1.0);
    return reals;
}

std::vector<qint64> randomIntegers(int count)
{
    std::mt19937_64 engine(2);
    std::vector<qint64> integers(static_cast<std::size_t>(count));
    for (qint64& integer : integers)
        integer = static_cast<qint64>(engine()) >> (engine() % 64);
    return integers;
}

/// A body that calls the step with one sample after the other.
template <typename Sample, typename Step>
RatioRun::Body over(const std::vector<Sample>& samples, Step step)
{
    return [samples, step](benchmark::State& state) {
        std::size_t next = 0;
        for (auto _ : state) {
            benchmark::DoNotOptimize(step(samples[next]));
            next = (next + 1) % samples.size();
        }
    };
}

template <typename Sample, typename Step>
std::vector<QString> textsOf(const std::vector<Sample>& samples, Step step)
{
    std::vector<QString> texts;
    for (const Sample& sample : samples)
        texts.push_back(step(sample));
    return texts;
}

/// Both ways must give the same: over a million random values, and at the edges.
bool areResultsEqual(const RealNumberDisplayFormat<double>& real,
                     const IntegralNumberDisplayFormat<qint64>& integer)
{
    const QLocale locale = ungrouped();
    std::vector<double> reals = randomReals(1'000'000);
    for (const double edge : {0.0, -0.0, 0.5, 2.5e-6, 1e15, 1e22, 1.7976931348623157e308, 5e-324})
        reals.insert(reals.end(), {edge, -edge, std::nextafter(edge, 1.0)});
    bool ok = false;
    for (const double value : reals) {
        const QString text = locale.toString(value, 'f', 6);
        if (real.textFromValue(value) != text ||
            std::bit_cast<quint64>(real.valueFromText(text, &ok)) !=
                std::bit_cast<quint64>(locale.toDouble(text)))
            return false;
    }
    std::vector<qint64> integers = randomIntegers(1'000'000);
    integers.insert(integers.end(), {0, 1, -1, INT64_MIN, INT64_MAX});
    for (const qint64 value : integers) {
        const QString text = locale.toString(value);
        if (integer.textFromValue(value) != text || integer.valueFromText(text, &ok) != value ||
            !ok)
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const QLocale locale = ungrouped();
    RealNumberDisplayFormat<double> real;
    real.setPrecision(6);
    const IntegralNumberDisplayFormat<qint64> integer;
    if (!areResultsEqual(real, integer)) {
        std::fputs("The formats and the locale differ\n", stderr);
        return 1;
    }
    const auto reals = randomReals(sampleCount);
    const auto integers = randomIntegers(sampleCount);
    const auto writeReal = [&locale](double value) { return locale.toString(value, 'f', 6); };
    const auto writeInteger = [&locale](qint64 value) { return locale.toString(value); };
    bool ok = false;
    RatioRun run;
    run.compare("RealNumberDisplayFormat writing against QLocale::toString", 0.8,
                over(reals, [&real](double value) { return real.textFromValue(value); }),
                over(reals, writeReal));
    run.compare("RealNumberDisplayFormat reading against QLocale::toDouble", 0.5,
                over(textsOf(reals, writeReal),
                     [&](const QString& text) { return real.valueFromText(text, &ok); }),
                over(textsOf(reals, writeReal),
                     [&](const QString& text) { return locale.toDouble(text, &ok); }));
    run.compare("IntegralNumberDisplayFormat writing against QLocale::toString", 0.8,
                over(integers, [&integer](qint64 value) { return integer.textFromValue(value); }),
                over(integers, writeInteger));
    run.compare("IntegralNumberDisplayFormat reading against QLocale::toLongLong", 0.5,
                over(textsOf(integers, writeInteger),
                     [&](const QString& text) { return integer.valueFromText(text, &ok); }),
                over(textsOf(integers, writeInteger),
                     [&](const QString& text) { return locale.toLongLong(text, &ok); }));
    return run.run(argc, argv);
}
