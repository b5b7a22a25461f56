// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace bandmonitor {

/// What the user asked for on the command line.
struct CommandLine
{
    enum Action {
        Run,
        PrintText, ///< Print `text` on the standard output and end well: help and version.
        Fail,      ///< Print `text`, one line, on the standard error and end with status 1.
    };

    Action action = Run;
    QString text;
    /// Where live input comes from; with None `file` is a recording.
    enum Live { None, StandardInput, Fifo, FollowedFile };

    QString file; ///< Empty: the built-in sample.
    Live live = None;
    std::optional<int> historyMegabytes;
    QString language;          ///< Of the texts, as a locale name; empty: the configured one.
    QString configFolder;      ///< Empty: the platform's.
    QString screenshotsFolder; ///< Empty: no pictures, a normal run.
    bool takesPictures() const { return !screenshotsFolder.isEmpty(); }
    bool tellsInWindow = false; ///< Of files that cannot be opened; otherwise the program ends.
    QString fileProblem; ///< What is to be told, with `tellsInWindow`; the sample is opened then.
    std::optional<double> replayFactor; ///< See Replay::setSpeed(); without it the replay waits.
};

/// What ends the program, with the reason for the user.
CommandLine failure(const QString& reason);

/// Reads the arguments; the first one is the program. Options of the toolkit are left to
/// QApplication. Needs no application object.
CommandLine parseCommandLine(const QStringList& arguments);

} // namespace bandmonitor
