// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

/// Prints a row of the table that scripts/benchmarks makes: what was measured (with its unit), and
/// the ratio, which is not above the limit when it is good. Returns whether it is.
bool printRatio(const std::string& name, const std::string& ours, const std::string& theirs,
                double ratio, double limit);

/// A number with so many decimals, and what follows it.
std::string withUnit(double number, int decimals, const char* unit);

/// Compares pairs of ways to do the same thing, "ours" and "theirs", in one run.
///
/// Each side is an ordinary Google Benchmark body (`for (auto _ : state) ...`). All sides are
/// repeated in a random order, so that a slow phase of the machine hits both alike, and the lower
/// quartiles of the repetitions are compared. The library's command line options work as usual.
class RatioRun
{
public:
    using Body = std::function<void(benchmark::State&)>;
    enum class Clock {
        Cpu,  ///< Time of this process only; for plain computations.
        Wall, ///< Time that passed; for bodies that wait or set the time themselves.
    };

    /// How often each side is measured, unless told otherwise.
    static constexpr int usualRepetitions = 15;

    /// `limit` is the largest allowed ratio ours / theirs. Names must differ from one another.
    /// A body that takes long needs more repetitions: fewer of them fit between what disturbs.
    void compare(const std::string& name, double limit, const Body& ours, const Body& theirs,
                 Clock clock = Clock::Cpu, int repetitions = usualRepetitions);
    /// Compares how the two sides of the pair `small` grow when they do `factor` times the work, as
    /// they do in the pair `large`: what a piece of work costs in the large, in relation to the
    /// small, on our side and on theirs, and the ratio of the two.
    void compareGrowth(const std::string& name, double limit, const std::string& small,
                       const std::string& large, double factor);
    /// Measures, prints a row for each pair, and returns the exit code for main(): 1 when a limit
    /// was exceeded or a side could not be measured, else 0.
    /// Pairs that --benchmark_filter leaves out do not count.
    int run(int argc, char** argv);

private:
    struct Pair
    {
        std::string name;
        double limit;
        Clock clock;
    };

    struct Growth
    {
        std::string name;
        double limit;
        std::string small;
        std::string large;
        double factor;
    };

    /// Prints the row; whether both times (0 = missing) are there and within the limit.
    static bool report(const Pair& pair, double ours, double theirs);

    std::vector<Pair> m_pairs;
    std::vector<Growth> m_growths;
};
