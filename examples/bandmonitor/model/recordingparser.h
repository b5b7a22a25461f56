// SPDX-License-Identifier: MIT
#pragma once

#include "recording.h"

#include <QByteArray>
#include <QString>

#include <limits>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

namespace bandmonitor {

class RecordingFields;

/// Why a line of a recording was skipped.
enum class LineFault {
    BadTime,       ///< date or time missing, impossible, or before 1970
    BadFrequency,  ///< low, high or step missing, not 0 <= low < high <= 10 THz, step below 1 mHz
    BadSamples,    ///< the number of samples is missing or no number
    BadLevel,      ///< a field among the levels is no number
    NoLevels,      ///< the line ends before the first level
    CountMismatch, ///< the number of levels does not fit (high - low) / step
    TooLong,       ///< the line is longer than RecordingParser::maximumLineBytes
    RecordingFull  ///< the recording holds as many levels as it may
};

/// A line that was skipped.
struct SkippedLine
{
    qint64 number = 0; ///< from 1
    LineFault fault = LineFault::BadTime;
};

/// Reads the text of a band-scan recording in pieces cut anywhere, and appends its sweeps to a
/// Recording. Bad lines are skipped, counted and kept in mind for the report. What counts as a good
/// line, and which lines make a sweep, stands in docs/decisions/0060-text-of-recordings.md.
class RecordingParser
{
public:
    static constexpr std::size_t maximumLineBytes = std::size_t{64} << 20;
    static constexpr std::size_t defaultMaximumLevels = std::size_t{512} << 20;
    /// How many skipped lines are kept with number and reason.
    static constexpr std::size_t keptSkippedLines = 10;

    /// Appends to `recording`, which must not be null.
    explicit RecordingParser(std::shared_ptr<Recording> recording);
    ~RecordingParser();
    Q_DISABLE_COPY_MOVE(RecordingParser)

    /// Reads the next bytes. A sweep reaches the recording when the first line of the next one,
    /// or finish(), shows that it is complete.
    void feed(std::string_view bytes);
    /// Completes the sweep that was read last when no part of a line stands behind it, and when it
    /// has the hops of the one before or `isForced`: for a stream that has fallen silent, where the
    /// first line of the next sweep may be far off.
    void settle(bool isForced);
    /// Reads what is left as the last line, and completes the last sweep. Afterwards feed() would
    /// begin with a new line.
    void finish();

    /// Lines of the text so far, empty ones included.
    qint64 lineCount() const { return m_lineCount; }
    /// All lines that were skipped.
    qint64 skippedCount() const { return m_skippedCount; }
    /// The first skipped lines.
    const std::vector<SkippedLine>& skippedLines() const { return m_skippedLines; }
    /// What is wrong with the line that was skipped last, as a text for the user; empty when none
    /// was.
    QString lastFault() const;
    /// True once a line was skipped because the recording holds the most levels that it may;
    /// reading on is of no use then.
    bool isFull() const { return m_full; }
    /// The most levels that the recording may hold; 512 Mi (2 GiB of memory) by default.
    void setMaximumLevels(std::size_t levels) { m_maximumLevels = levels; }
    /// A sweep that would hold more levels is parted; by default none is.
    void setMaximumSweep(std::size_t levels) { m_maximumSweep = levels; }

    /// What a line should look like, as a text for the user.
    static QString expectedForm();
    /// What is wrong with the first skipped line, if any, and what one should look like: for the
    /// user whose text has no sweep. One line.
    QString reasonForNoSweep() const;
    /// The skipped lines as a text for the user, one a line; empty without any.
    QString report() const;

private:
    struct Hop
    {
        double startHz = 0;
        double stepHz = 0;
        quint64 samples = 0;
        std::size_t offset = 0; ///< of its first level in m_levels
        std::size_t count = 0;
    };

    void readLine(std::string_view line);
    std::optional<std::size_t> readLevels(RecordingFields& fields, std::size_t bytes);
    void skipLine(LineFault fault);
    void addHop(quint64 timeUs, Hop hop);
    bool startsNewSweep(quint64 timeUs, const Hop& hop);
    void closeSweep();

    std::shared_ptr<Recording> m_recording;
    QByteArray m_partialLine;
    bool m_skippingLongLine = false;
    bool m_full = false;
    qint64 m_lineCount = 0;
    qint64 m_skippedCount = 0;
    std::vector<SkippedLine> m_skippedLines;
    SkippedLine m_lastSkipped;
    std::size_t m_maximumLevels = defaultMaximumLevels;
    std::size_t m_maximumSweep = std::numeric_limits<std::size_t>::max();

    quint64 m_sweepTimeUs = 0;
    std::vector<float> m_levels;
    std::size_t m_levelsUsed = 0;
    std::vector<Hop> m_hops;
    std::size_t m_hopsBefore = 0; ///< of the sweep before
    double m_lastStartBefore = 0; ///< of its last hop, in Hz
    std::set<double> m_starts;    ///< of m_hops, once one came out of order
    std::vector<Segment> m_segments;
};

} // namespace bandmonitor
