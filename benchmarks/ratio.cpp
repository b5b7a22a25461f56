// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <map>

namespace {

constexpr double secondsPerRepetition = 0.02;

std::string sideName(const std::string& pair, const char* side)
{
    return pair + "/" + side;
}

/// The times of the repetitions in nanoseconds, by benchmark.
class Collector : public benchmark::BenchmarkReporter
{
public:
    explicit Collector(const std::function<bool(const std::string&)>& usesWallClock)
        : m_usesWallClock(usesWallClock)
    {}

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const std::string& name = run.run_name.function_name;
            std::vector<double>& times = m_times[name];
            if (run.iterations == 0) // The body gave up.
                continue;
            times.push_back(m_usesWallClock(name) ? run.GetAdjustedRealTime()
                                                  : run.GetAdjustedCPUTime());
        }
    }

    bool wasRun(const std::string& name) const { return m_times.contains(name); }
    /// The lower quartile: what other programs do only ever adds time. 0 without any time.
    double quietTime(const std::string& name) const
    {
        const auto found = m_times.find(name);
        if (found == m_times.end() || found->second.empty())
            return 0;
        std::vector<double> times = found->second;
        const auto quartile = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 4);
        std::nth_element(times.begin(), quartile, times.end());
        return *quartile;
    }

private:
    std::function<bool(const std::string&)> m_usesWallClock;
    std::map<std::string, std::vector<double>> m_times;
};

} // namespace

std::string withUnit(double number, int decimals, const char* unit)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*f%s", decimals, number, unit);
    return text;
}

bool printRatio(const std::string& name, const std::string& ours, const std::string& theirs,
                double ratio, double limit)
{
    const bool isGood = ratio <= limit; // not for one that is no number
    const char* const remark = isGood ? "" : std::isnan(ratio) ? "not measured" : "over the limit";
    std::printf("| %s | %s | %s | %.3f | %g | %s |\n", name.c_str(), ours.c_str(), theirs.c_str(),
                ratio, limit, remark);
    std::fflush(stdout);
    return isGood;
}

void RatioRun::compare(const std::string& name, double limit, const Body& ours, const Body& theirs,
                       Clock clock, int repetitions)
{
    m_pairs.push_back({name, limit, clock});
    for (const auto& [side, body] : {std::pair("ours", &ours), std::pair("theirs", &theirs)}) {
        auto* registered = benchmark::RegisterBenchmark(sideName(name, side).c_str(), *body);
        registered->Repetitions(repetitions)
            ->MinTime(secondsPerRepetition)
            ->Unit(benchmark::kNanosecond);
        if (clock == Clock::Wall)
            registered->UseRealTime();
    }
}

void RatioRun::compareGrowth(const std::string& name, double limit, const std::string& small,
                             const std::string& large, double factor)
{
    m_growths.push_back({name, limit, small, large, factor});
}

int RatioRun::run(int argc, char** argv)
{
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + std::min(argc, 1), interleaving.data());
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;

    Collector collector([this](const std::string& name) {
        return std::any_of(m_pairs.begin(), m_pairs.end(), [&name](const Pair& pair) {
            return pair.clock == Clock::Wall && name.starts_with(pair.name + "/");
        });
    });
    benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::Shutdown();

    bool passed = true;
    for (const Pair& pair : m_pairs) {
        const std::string ours = sideName(pair.name, "ours");
        const std::string theirs = sideName(pair.name, "theirs");
        if (collector.wasRun(ours) || collector.wasRun(theirs))
            passed = report(pair, collector.quietTime(ours), collector.quietTime(theirs)) && passed;
    }
    for (const Growth& growth : m_growths) {
        const auto growthOf = [&](const char* side) {
            const double small = collector.quietTime(sideName(growth.small, side));
            const double large = collector.quietTime(sideName(growth.large, side));
            return small > 0 ? large / (growth.factor * small) : 0;
        };
        const double ours = growthOf("ours");
        const double theirs = growthOf("theirs");
        if (ours > 0 && theirs > 0)
            passed = printRatio(growth.name, withUnit(ours, 3, " times"),
                                withUnit(theirs, 3, " times"), ours / theirs, growth.limit) &&
                     passed;
    }
    return passed ? 0 : 1;
}

bool RatioRun::report(const Pair& pair, double ours, double theirs)
{
    const bool measured = ours > 0 && theirs > 0;
    return printRatio(pair.name, withUnit(ours, 1, " ns"), withUnit(theirs, 1, " ns"),
                      measured ? ours / theirs : std::numeric_limits<double>::quiet_NaN(),
                      pair.limit);
}
