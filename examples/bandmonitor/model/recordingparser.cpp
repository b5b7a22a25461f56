// SPDX-License-Identifier: MIT
#include "recordingparser.h"

#include "recordingfields.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <utility>

namespace bandmonitor {

namespace {

constexpr double highestFrequencyHz = 1e13;
constexpr double smallestStepHz = 1e-3;
constexpr double largestSampleCount = 1e18;

constexpr std::array<const char*, 8> faultTexts = {
    QT_TRANSLATE_NOOP("bandmonitor::RecordingParser", "no valid date and time"),
    QT_TRANSLATE_NOOP("bandmonitor::RecordingParser", "no valid frequencies and step"),
    QT_TRANSLATE_NOOP("bandmonitor::RecordingParser", "no valid number of samples"),
    QT_TRANSLATE_NOOP("bandmonitor::RecordingParser", "a level is not a number"),
    QT_TRANSLATE_NOOP("bandmonitor::RecordingParser", "no levels"),
    QT_TRANSLATE_NOOP("bandmonitor::RecordingParser",
                      "the number of levels does not fit the frequencies and the step"),
    QT_TRANSLATE_NOOP("bandmonitor::RecordingParser", "the line has no end within 64 MB"),
    QT_TRANSLATE_NOOP("bandmonitor::RecordingParser", "the recording is too large"),
};

QString translated(const char* text, int number = -1)
{
    return QCoreApplication::translate("bandmonitor::RecordingParser", text, nullptr, number);
}

QString textOf(const SkippedLine& line)
{
    return translated(QT_TRANSLATE_NOOP("bandmonitor::RecordingParser", "Line %1: %2."))
        .arg(line.number)
        .arg(translated(faultTexts[static_cast<std::size_t>(line.fault)]));
}

struct Bins
{
    std::size_t count = 0; ///< 0 when the levels do not fit
    double stepHz = 0;
};

/// How many of `count` levels are bins of the hop, and their width.
Bins fitBins(double spanHz, double stepHz, std::size_t count)
{
    const double levels = static_cast<double>(count);
    const double expected = spanHz / stepHz;
    constexpr double tolerance = 0.25;
    Bins bins;
    if (std::abs(levels - expected) <= tolerance) {
        bins.count = count;
    } else if (count > 1 && std::abs(levels - 1 - expected) <= tolerance) {
        bins.count = count - 1;
    } else {
        // The step has two decimals, low and high often none.
        const double slack = (levels * 0.005 + 1) / stepHz;
        if (slack > tolerance && expected - levels <= slack && levels - expected <= slack + 1)
            bins.count = count;
    }
    if (bins.count > 0) {
        const double used = static_cast<double>(bins.count);
        bins.stepHz = std::abs(used - expected) <= 1e-3 ? stepHz : spanHz / used;
    }
    return bins;
}

std::string_view withoutLineEnd(std::string_view line)
{
    while (!line.empty() && (line.back() == '\r' || line.back() == ' ' || line.back() == '\t'))
        line.remove_suffix(1);
    return line;
}

} // namespace

RecordingParser::RecordingParser(std::shared_ptr<Recording> recording)
    : m_recording(std::move(recording))
{}

RecordingParser::~RecordingParser() = default;

void RecordingParser::feed(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t size = bytes.find('\n');
        const std::string_view piece = bytes.substr(0, size);
        const auto partialSize = static_cast<std::size_t>(m_partialLine.size());
        if (partialSize + piece.size() > maximumLineBytes) {
            // At once: the line may never end.
            if (!std::exchange(m_skippingLongLine, true)) {
                ++m_lineCount;
                skipLine(LineFault::TooLong);
            }
            m_partialLine.clear();
        }
        if (size == std::string_view::npos) {
            if (!m_skippingLongLine)
                m_partialLine.append(piece.data(), static_cast<qsizetype>(piece.size()));
            return;
        }
        bytes.remove_prefix(size + 1);
        if (m_partialLine.isEmpty()) {
            readLine(piece);
        } else {
            m_partialLine.append(piece.data(), static_cast<qsizetype>(piece.size()));
            readLine({m_partialLine.constData(), static_cast<std::size_t>(m_partialLine.size())});
            m_partialLine.resize(0); // keeps its memory for the next cut
        }
    }
}

void RecordingParser::finish()
{
    if (!m_partialLine.isEmpty() || m_skippingLongLine)
        readLine({m_partialLine.constData(), static_cast<std::size_t>(m_partialLine.size())});
    m_partialLine.clear();
    closeSweep();
}

void RecordingParser::settle(bool isForced)
{
    if (m_hops.empty() || !m_partialLine.isEmpty() || m_skippingLongLine)
        return;
    if (isForced || (m_hops.size() == m_hopsBefore && m_hops.back().startHz == m_lastStartBefore))
        closeSweep();
}

void RecordingParser::readLine(std::string_view line)
{
    if (std::exchange(m_skippingLongLine, false))
        return; // it counts since it became too long
    ++m_lineCount;
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (m_lineCount == 1 && line.starts_with(byteOrderMark))
        line.remove_prefix(byteOrderMark.size());
    line = withoutLineEnd(line);
    if (line.empty() || line.front() == '#')
        return;

    RecordingFields fields(line);
    const std::optional<quint64> time = fields.readTime();
    if (!time)
        return skipLine(LineFault::BadTime);
    const std::optional<double> low = fields.readNumber();
    const std::optional<double> high = low ? fields.readNumber() : std::nullopt;
    const std::optional<double> step = high ? fields.readNumber() : std::nullopt;
    if (!step || !(*low >= -highestFrequencyHz && *low < *high && *high <= highestFrequencyHz) ||
        !(*step >= smallestStepHz))
        return skipLine(LineFault::BadFrequency);
    const std::optional<double> samples = fields.readNumber();
    if (!samples || !(*samples >= 0 && *samples <= largestSampleCount))
        return skipLine(LineFault::BadSamples);
    const std::optional<std::size_t> levels = readLevels(fields, line.size());
    if (!levels)
        return skipLine(LineFault::BadLevel);
    if (*levels == 0)
        return skipLine(LineFault::NoLevels);
    const Bins bins = fitBins(*high - *low, *step, *levels);
    if (bins.count == 0)
        return skipLine(LineFault::CountMismatch);
    addHop(*time, {*low, bins.stepHz, static_cast<quint64>(*samples), 0, bins.count});
}

std::optional<std::size_t> RecordingParser::readLevels(RecordingFields& fields, std::size_t bytes)
{
    // A level takes two bytes at least, its comma included.
    const std::size_t needed = m_levelsUsed + bytes / 2 + 1;
    if (m_levels.size() < needed)
        m_levels.resize(std::max(needed, m_levels.size() + m_levels.size() / 2));
    float* next = m_levels.data() + m_levelsUsed;
    const float* const first = next;
    while (!fields.atEnd()) {
        if (!fields.readLevel(*next++))
            return std::nullopt;
    }
    return static_cast<std::size_t>(next - first);
}

void RecordingParser::skipLine(LineFault fault)
{
    ++m_skippedCount;
    m_full = m_full || fault == LineFault::RecordingFull;
    m_lastSkipped = {m_lineCount, fault};
    if (m_skippedLines.size() < keptSkippedLines)
        m_skippedLines.push_back(m_lastSkipped);
}

void RecordingParser::addHop(quint64 timeUs, Hop hop)
{
    if (m_recording->levelCount() + m_levelsUsed + hop.count > m_maximumLevels)
        return skipLine(LineFault::RecordingFull);
    // The levels of this line lie behind those of the sweep so far.
    const std::size_t offset = m_levelsUsed;
    if (startsNewSweep(timeUs, hop)) {
        closeSweep();
        std::copy_n(m_levels.begin() + static_cast<std::ptrdiff_t>(offset), hop.count,
                    m_levels.begin());
    }
    hop.offset = m_levelsUsed;
    m_levelsUsed += hop.count;
    m_sweepTimeUs = timeUs;
    m_hops.push_back(hop);
}

bool RecordingParser::startsNewSweep(quint64 timeUs, const Hop& hop)
{
    if (m_hops.empty())
        return false;
    if (timeUs != m_sweepTimeUs || m_levelsUsed + hop.count > m_maximumSweep)
        return true;
    const double startHz = hop.startHz;
    if (m_starts.empty()) {
        if (startHz > m_hops.back().startHz)
            return false;
        for (const Hop& earlier : m_hops)
            m_starts.insert(earlier.startHz);
    }
    return !m_starts.insert(startHz).second;
}

void RecordingParser::closeSweep()
{
    m_segments.clear();
    for (const Hop& hop : m_hops) {
        m_segments.push_back({hop.startHz, hop.stepHz, hop.samples,
                              std::span(m_levels).subspan(hop.offset, hop.count)});
    }
    m_recording->append(m_sweepTimeUs, m_segments);
    if (!m_hops.empty()) {
        m_hopsBefore = m_hops.size();
        m_lastStartBefore = m_hops.back().startHz;
    }
    m_hops.clear();
    m_starts.clear();
    m_levelsUsed = 0;
}

QString RecordingParser::lastFault() const
{
    return m_skippedCount > 0 ? textOf(m_lastSkipped) : QString();
}

QString RecordingParser::expectedForm()
{
    return translated(QT_TRANSLATE_NOOP(
        "bandmonitor::RecordingParser",
        "Expected: date, time, lowest Hz, highest Hz, step in Hz, samples, levels in dB, as in "
        "\"2026-05-04, 12:00:00, 88000000, 89000000, 250000, 100, -70.1, -69.8, -45, -71.3\"."));
}

QString RecordingParser::reasonForNoSweep() const
{
    QString reason = m_skippedLines.empty() ? QString() : textOf(m_skippedLines.front()) + u' ';
    return (reason + expectedForm()).simplified();
}

QString RecordingParser::report() const
{
    if (m_skippedCount == 0)
        return {};
    const int shown = static_cast<int>(std::min<qint64>(m_skippedCount, 1'000'000'000));
    QStringList lines{
        translated(QT_TRANSLATE_NOOP("bandmonitor::RecordingParser", "Skipped lines: %n."), shown)};
    for (const SkippedLine& line : m_skippedLines)
        lines << textOf(line);
    if (m_skippedCount > static_cast<qint64>(m_skippedLines.size()))
        lines << QStringLiteral("...");
    return lines.join(QLatin1Char('\n'));
}

} // namespace bandmonitor
