// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/radiopanes_export.h>

#include <QString>
#include <QStringList>

#include <vector>

namespace RadioPanes {

/// Named parts of the spectrum, such as the services that share a band, or named frequencies. In
/// order of their starts; parts may overlap.
class RADIOPANES_EXPORT BandPlan
{
public:
    /// In hertz, also below 0. A bookmark where start and stop are the same.
    struct Entry
    {
        double startHz = 0; ///< The lower end.
        double stopHz = 0;  ///< The upper end, not below the other.
        QString name;       ///< One line of at most maximumName characters; may be empty.

        /// Whether this is one frequency, not a part of the band.
        bool isBookmark() const { return startHz == stopHz; }
        bool operator==(const Entry&) const = default;
    };
    static constexpr std::size_t maximumEntries = 10'000; ///< What parse() takes at most.
    static constexpr qint64 maximumBytes = 4 << 20;       ///< Of a file.
    static constexpr qsizetype maximumName = 200;         ///< What is beyond is cut.
    static constexpr double highestHz = 1e15;             ///< Either side of 0.

    /// Empty.
    BandPlan();
    /// Sorts the entries. Those that are no entry of a file are left out: without finite ends, or
    /// with the stop before the start.
    explicit BandPlan(std::vector<Entry> entries);

    /// In order of their starts.
    const std::vector<Entry>& entries() const { return m_entries; }
    bool isEmpty() const { return m_entries.empty(); }
    bool operator==(const BandPlan&) const = default;

    /// The text of a file that parse() reads, in hertz.
    QString text() const;

    struct Reading;
    /// Reads lines of the form `start, stop, name`; a bookmark may be `frequency, name`.
    /// Frequencies are in hertz, or with Hz, kHz, MHz or GHz behind them. Empty lines and those
    /// that begin with # do not count. Lines that cannot be read are left out and reported.
    static Reading parse(const QString& text);
    /// The same for a text file in UTF-8.
    static Reading read(const QString& path);

private:
    std::vector<Entry> m_entries;
};

/// A plan and what was wrong in its text, at most ten lines for the user.
struct BandPlan::Reading
{
    BandPlan plan;      ///< What could be read.
    QStringList errors; ///< Each with the number of its line and the expected form.
};

} // namespace RadioPanes
