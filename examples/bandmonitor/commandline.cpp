// SPDX-License-Identifier: MIT
#include "commandline.h"

#include "model/replay.h"

#include <jtbase/numberhelpers.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <span>

#include <sys/stat.h>

namespace bandmonitor {

namespace {

constexpr int smallestHistory = 1;
constexpr int largestHistory = 1'000'000;

// Those of QApplication. It takes them with one dash and with two.
constexpr const char* toolkitOptionsWithValue[] = {
    "display",       "geometry", "icon",        "platform",     "platformpluginpath",
    "platformtheme", "plugin",   "qwindowicon", "qwindowtitle", "qwindowgeometry",
    "session",       "style",    "stylesheet",  "title",
};
constexpr const char* toolkitOptionsAlone[] = {"reverse", "widgetcount"};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(bandmonitor::CommandLine)
};

CommandLine printed(const QString& text)
{
    CommandLine result;
    result.action = CommandLine::PrintText;
    result.text = text;
    return result;
}

bool isFifo(const QString& name)
{
    struct stat status
    {};
    return ::stat(QFile::encodeName(name).constData(), &status) == 0 && S_ISFIFO(status.st_mode);
}

/// What is wrong with the file, or nothing.
QString fileProblem(const QString& name)
{
    const QFileInfo file(name);
    if (!file.exists())
        return Texts::tr("There is no file \"%1\".").arg(name);
    if (file.isDir())
        return Texts::tr("\"%1\" is a folder, not a recording.").arg(name);
    if (!file.isFile() && !isFifo(name))
        return Texts::tr("\"%1\" is not a regular file.").arg(name);
    if (!file.isReadable())
        return Texts::tr("The file \"%1\" may not be read.").arg(name);
    return {};
}

/// Nothing for a text that is no number in the range.
std::optional<double> replayFactorOf(const QString& text)
{
    bool ok = false;
    const double factor = NumberHelpers::parse<double>(text, &ok);
    const bool isFine = ok && factor >= Replay::minimumSpeed && factor <= Replay::maximumSpeed;
    return isFine ? std::optional(factor) : std::nullopt;
}

bool isLanguage(const QString& text)
{
    return text == QLatin1String("system") || QLocale(text).language() != QLocale::C;
}

/// Reads where the sweeps come from. Returns what is wrong, or nothing.
QString takeFile(const QStringList& files, bool isFollowed, CommandLine& result)
{
    if (files.size() > 1)
        return Texts::tr("Only one recording can be opened, but %1 were given.").arg(files.size());
    result.file = files.value(0);
    if (!isFollowed && result.file == QLatin1String("-")) {
        result.live = CommandLine::StandardInput;
    } else if (isFollowed || !result.file.isEmpty()) {
        const QFileInfo file(result.file);
        // One that is to be followed may come later.
        const bool mayCome = isFollowed && result.file != QLatin1String("-") && !file.exists() &&
                             file.absoluteDir().exists();
        if (const QString problem = fileProblem(result.file); !mayCome && !problem.isEmpty())
            return problem;
        if (isFifo(result.file))
            result.live = CommandLine::Fifo;
        else if (isFollowed)
            result.live = CommandLine::FollowedFile;
    }
    return result.live != CommandLine::None && result.takesPictures()
               ? Texts::tr("Pictures are taken of recordings, not of live input.")
               : QString();
}

struct Options
{
    // The parser's own help option brings a second one with it, for options that are not offered.
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            Texts::tr("Print this text and end.")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                               Texts::tr("Print the version and end.")};
    QCommandLineOption config{QStringLiteral("config"),
                              Texts::tr("Keep the settings in the folder DIR."),
                              QStringLiteral("DIR")};
    QCommandLineOption screenshots{
        QStringLiteral("shots"),
        Texts::tr("Write pictures of the windows into the folder DIR and end."),
        QStringLiteral("DIR")};
    QCommandLineOption replay{
        QStringLiteral("replay"),
        Texts::tr("Start to replay at once, FACTOR (0.1 to 10000) times as fast as recorded."),
        QStringLiteral("FACTOR")};
    QCommandLineOption follow{
        QStringLiteral("follow"),
        Texts::tr("Show the sweeps of FILE live, while another program writes it; "
                  "it need not be there yet."),
        QStringLiteral("FILE")};
    QCommandLineOption history{
        QStringLiteral("history"),
        Texts::tr("Keep so many megabytes (1 to 1000000) of live sweeps; 512 by default."),
        QStringLiteral("MB")};
    QCommandLineOption language{
        QStringLiteral("language"),
        Texts::tr("Show texts in the language LANG, such as de, or system; only this time."),
        QStringLiteral("LANG")};
    QCommandLineOption dialogs{
        QStringLiteral("dialogs"),
        Texts::tr("Tell of a file that cannot be opened in a dialog instead of ending.")};
};

/// Reads the options and the name of the recording.
CommandLine readValues(const QCommandLineParser& parser, const Options& options)
{
    CommandLine result;
    for (const auto& [option, folder] :
         {std::pair{&options.config, &result.configFolder},
          std::pair{&options.screenshots, &result.screenshotsFolder}}) {
        if (!parser.isSet(*option))
            continue;
        *folder = parser.value(*option);
        if (folder->isEmpty() || (QFileInfo::exists(*folder) && !QFileInfo(*folder).isDir()))
            return failure(Texts::tr("\"%1\" is not a folder.").arg(*folder));
    }
    if (parser.isSet(options.replay)) {
        const QString factor = parser.value(options.replay);
        result.replayFactor = replayFactorOf(factor);
        if (!result.replayFactor)
            return failure(
                Texts::tr("The replay factor must be a number from 0.1 to 10000, not \"%1\".")
                    .arg(factor));
    }
    if (parser.isSet(options.language)) {
        const QString language = parser.value(options.language);
        if (!isLanguage(language))
            return failure(Texts::tr("\"%1\" is no language.").arg(language));
    }
    if (parser.isSet(options.history)) {
        const QString text = parser.value(options.history);
        bool ok = false;
        const int megabytes = NumberHelpers::parse<int>(text, &ok);
        if (!ok || megabytes < smallestHistory || megabytes > largestHistory)
            return failure(
                Texts::tr(
                    "The history must be a number of megabytes from 1 to 1000000, not \"%1\".")
                    .arg(text));
        result.historyMegabytes = megabytes;
    }
    const bool isFollowed = parser.isSet(options.follow);
    const QStringList followed =
        isFollowed ? QStringList(parser.value(options.follow)) : QStringList();
    const QString problem = takeFile(parser.positionalArguments() + followed, isFollowed, result);
    // Nobody looks at the window while pictures are taken.
    result.tellsInWindow = parser.isSet(options.dialogs) && !result.takesPictures();
    if (problem.isEmpty() || !result.tellsInWindow)
        return problem.isEmpty() ? result : failure(problem);
    result.fileProblem = problem;
    result.file.clear();
    return result;
}

bool isOneOf(const QString& name, std::span<const char* const> options)
{
    return std::ranges::any_of(
        options, [&name](const char* option) { return name == QLatin1String(option); });
}

/// Without what QApplication takes out later.
QStringList ownArguments(const QStringList& arguments)
{
    QStringList result;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (i > 0 && argument == QLatin1String("--"))
            return result + arguments.mid(i);
        QString name = argument.section(u'=', 0, 0);
        const qsizetype dashes = name.startsWith(QLatin1String("--")) ? 2 : 1;
        const bool isOption = i > 0 && name.startsWith(u'-');
        name.remove(0, isOption ? dashes : 0);
        if (isOption && isOneOf(name, toolkitOptionsWithValue))
            i += argument.contains(u'=') ? 0 : 1;
        else if (!isOption || !isOneOf(name, toolkitOptionsAlone))
            result << argument;
    }
    return result;
}

CommandLine answer(QCommandLineParser& parser, const Options& options, const QStringList& arguments)
{
    parser.setApplicationDescription(
        Texts::tr("Shows and replays recordings of a band: spectrum, waterfall and hold maximum."));
    parser.addOptions({options.help, options.version, options.config, options.screenshots,
                       options.replay, options.follow, options.history, options.language,
                       options.dialogs});
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        Texts::tr("The recording to open; a FIFO, or - for the standard input, "
                  "is shown live; without it, the built-in sample."),
        QStringLiteral("[FILE]"));
    if (!parser.parse(ownArguments(arguments)))
        return failure(parser.errorText());
    if (parser.isSet(options.help))
        return printed(parser.helpText());
    if (parser.isSet(options.version))
        return printed(
            QStringLiteral("bandmonitor %1\n").arg(QCoreApplication::applicationVersion()));
    return readValues(parser, options);
}

} // namespace

CommandLine failure(const QString& reason)
{
    CommandLine result;
    result.action = CommandLine::Fail;
    result.text = QStringLiteral("bandmonitor: %1\n").arg(reason.simplified());
    return result;
}

CommandLine parseCommandLine(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    CommandLine result = answer(parser, options, arguments);
    // Whatever the answer is, it is given in this language.
    if (const QString language = parser.value(options.language); isLanguage(language))
        result.language = language;
    return result;
}

} // namespace bandmonitor
