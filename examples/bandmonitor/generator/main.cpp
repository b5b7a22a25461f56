// SPDX-License-Identifier: MIT
// Writes the stream of a receiver that does not exist to the standard output, in real time.
#include "generator/receiverstream.h"

#include <jtbase/numberhelpers.h>

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>
#include <thread>

using namespace bandmonitor;

namespace {

struct Stream
{
    SampleSettings settings;
    double rate = 10; ///< Sweeps a second.
    StreamFaults faults;
};

struct Options
{
    QCommandLineOption rate{QStringLiteral("rate"),
                            QStringLiteral("Sweeps a second, 0.01 to 10000; 10 by default."),
                            QStringLiteral("SWEEPS"), QStringLiteral("10")};
    QCommandLineOption span{QStringLiteral("span"),
                            QStringLiteral("The band in Hz, with k, M or G; 80M:110M by default."),
                            QStringLiteral("LOW:HIGH"), QStringLiteral("80M:110M")};
    QCommandLineOption bins{QStringLiteral("bins"),
                            QStringLiteral("Levels in a sweep, 1 to 1000000; 1200 by default."),
                            QStringLiteral("COUNT"), QStringLiteral("1200")};
    QCommandLineOption seed{QStringLiteral("seed"),
                            QStringLiteral("Another number makes another band; 1 by default."),
                            QStringLiteral("NUMBER"), QStringLiteral("1")};
    QCommandLineOption sweeps{QStringLiteral("sweeps"),
                              QStringLiteral("End after so many sweeps; never by default."),
                              QStringLiteral("COUNT")};
    QCommandLineOption faults{
        QStringLiteral("faults"),
        QStringLiteral("What goes wrong now and then: a list of garbage, cut, stall, jump, span."),
        QStringLiteral("LIST")};
};

/// A number in the range; nothing for any other text.
std::optional<double> numberOf(const QString& text, double lowest, double highest)
{
    bool isNumber = false;
    const double number = NumberHelpers::parse<double>(text, &isNumber);
    return isNumber && number >= lowest && number <= highest ? std::optional(number) : std::nullopt;
}

std::optional<int> countOf(const QString& text, int highest)
{
    const std::optional<double> number = numberOf(text, 1, highest);
    return number && *number == std::floor(*number) ? std::optional(static_cast<int>(*number))
                                                    : std::nullopt;
}

std::optional<double> frequencyOf(QString text)
{
    double factor = 1;
    for (const auto& [unit, value] : {std::pair{'k', 1e3}, {'M', 1e6}, {'G', 1e9}}) {
        if (!text.endsWith(QLatin1Char(unit)))
            continue;
        text.chop(1);
        factor = value;
        break;
    }
    const std::optional<double> number = numberOf(text, -1e13 / factor, 1e13 / factor);
    return number ? std::optional(*number * factor) : std::nullopt;
}

std::optional<StreamFaults> faultsOf(const QString& list)
{
    StreamFaults faults;
    for (const QString& name : list.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const std::pair<const char*, StreamFault> known[] = {{"garbage", StreamFault::Garbage},
                                                             {"cut", StreamFault::Cut},
                                                             {"stall", StreamFault::Stall},
                                                             {"jump", StreamFault::Jump},
                                                             {"span", StreamFault::Span}};
        const auto* found = std::ranges::find_if(
            known, [&name](const auto& entry) { return name == QLatin1String(entry.first); });
        if (found == std::end(known))
            return std::nullopt;
        faults |= found->second;
    }
    return faults;
}

/// Nothing, and the name of the option in `wrong`, when one cannot be read.
std::optional<Stream> readValues(const QCommandLineParser& parser, const Options& options,
                                 QString& wrong)
{
    const auto valueOf = [&](const QCommandLineOption& option) {
        wrong = option.names().first();
        return parser.value(option);
    };
    const auto rate = numberOf(valueOf(options.rate), 0.01, 10'000);
    const auto bins = rate ? countOf(valueOf(options.bins), 1'000'000) : std::nullopt;
    const auto seed =
        bins ? countOf(valueOf(options.seed), std::numeric_limits<int>::max()) : std::nullopt;
    const auto faults = seed ? faultsOf(valueOf(options.faults)) : std::nullopt;
    if (!faults)
        return std::nullopt;
    Stream stream;
    stream.rate = *rate;
    stream.faults = *faults;
    stream.settings.seed = static_cast<quint64>(*seed);
    stream.settings.hops = *bins % 4 == 0 ? 4 : 1;
    stream.settings.binsPerHop = *bins / stream.settings.hops;
    const QString sweeps = valueOf(options.sweeps);
    const auto count = countOf(sweeps, std::numeric_limits<int>::max());
    if (!sweeps.isEmpty() && !count)
        return std::nullopt;
    stream.settings.sweeps = count.value_or(std::numeric_limits<int>::max());
    const QStringList ends = valueOf(options.span).split(QLatin1Char(':'));
    const auto low = frequencyOf(ends.first());
    const auto high = frequencyOf(ends.last());
    if (ends.size() != 2 || !low || !high || *high - *low < *bins)
        return std::nullopt;
    stream.settings.lowHz = *low;
    stream.settings.stepHz = (*high - *low) / *bins;
    return stream;
}

/// Until every sweep is written, or nobody reads them any more.
int send(const Stream& stream)
{
    using namespace std::chrono;
    ReceiverStream receiver(stream.settings, stream.faults);
    const auto interval = duration_cast<steady_clock::duration>(duration<double>(1 / stream.rate));
    auto due = steady_clock::now();
    while (!receiver.atEnd()) {
        const auto now = duration_cast<microseconds>(system_clock::now().time_since_epoch());
        const ReceiverStream::Piece piece = receiver.next(static_cast<quint64>(now.count()));
        std::this_thread::sleep_for(piece.pause);
        const auto size = static_cast<std::size_t>(piece.text.size());
        if (std::fwrite(piece.text.constData(), 1, size, stdout) != size ||
            std::fflush(stdout) != 0) {
            std::perror("bandmonitor-generator");
            return 1;
        }
        // Like a receiver it does not make up for the time that a slow reader cost.
        due = std::max(due + interval, steady_clock::now() - seconds(1));
        std::this_thread::sleep_until(due);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("bandmonitor-generator"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BANDMONITOR_VERSION));
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Writes the sweeps of a receiver that does not exist, in real time:\n"
                       "bandmonitor-generator | bandmonitor -"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions(
        {options.rate, options.span, options.bins, options.seed, options.sweeps, options.faults});
    parser.process(application);
    QString wrong;
    const std::optional<Stream> stream = readValues(parser, options, wrong);
    if (!stream || !parser.positionalArguments().isEmpty()) {
        const QString text =
            stream ? QStringLiteral("it takes options only")
                   : QStringLiteral("the value of --%1 cannot be used; --help tells which can")
                         .arg(wrong);
        std::fprintf(stderr, "bandmonitor-generator: %s\n", qPrintable(text));
        return 1;
    }
    return send(*stream);
}
