// SPDX-License-Identifier: MIT
#include "commandline.h"
#include "support/files.h"
#include "support/testrows.h"

#include <QTemporaryDir>

using namespace bandmonitor;

class tst_CommandLine : public QObject
{
    Q_OBJECT
    using Lines = TestRows<QString, CommandLine::Action, QString>;
    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase() { QVERIFY(writeFile(m_folder.filePath(QStringLiteral("a.csv")), {})); }

    void parse_data()
    {
        Lines row;
        row.add("bandmonitor", CommandLine::Run, "");
        row.add("bandmonitor --replay 2.5 --config $/new --shots $ $/a.csv", CommandLine::Run, "");
        row.add("bandmonitor -reverse --style fusion -platform=offscreen $/a.csv", CommandLine::Run,
                "");
        row.add("bandmonitor --dialogs $/none.csv", CommandLine::Run, "");
        row.add("bandmonitor --language de_AT $/a.csv", CommandLine::Run, "");
        row.add("bandmonitor --language klingon", CommandLine::Fail, "klingon");
        row.add("bandmonitor -- -reverse", CommandLine::Fail, "-reverse");
        row.add("bandmonitor --help", CommandLine::PrintText, "[FILE]");
        row.add("bandmonitor -v", CommandLine::PrintText, "bandmonitor");
        row.add("bandmonitor --nonsense", CommandLine::Fail, "nonsense");
        row.add("bandmonitor --replay", CommandLine::Fail, "replay");
        row.add("bandmonitor --replay 0.05", CommandLine::Fail, "0.05");
        row.add("bandmonitor --replay 10001", CommandLine::Fail, "10001");
        row.add("bandmonitor --replay nan", CommandLine::Fail, "nan");
        row.add("bandmonitor --replay 2x", CommandLine::Fail, "2x");
        row.add("bandmonitor --history 5 -", CommandLine::Run, "");
        row.add("bandmonitor --follow $/a.csv", CommandLine::Run, "");
        row.add("bandmonitor --follow $/later.csv", CommandLine::Run, "");
        row.add("bandmonitor --follow $/none/later.csv", CommandLine::Fail, "later.csv");
        row.add("bandmonitor --follow -", CommandLine::Fail, "\"-\"");
        row.add("bandmonitor --follow /dev/null", CommandLine::Fail, "regular");
        row.add("bandmonitor --follow $/a.csv -", CommandLine::Fail, "2");
        row.add("bandmonitor --history 0 -", CommandLine::Fail, "0");
        row.add("bandmonitor --dialogs --shots $ -", CommandLine::Fail, "live");
        row.add("bandmonitor $/none.csv", CommandLine::Fail, "none.csv");
        row.add("bandmonitor $", CommandLine::Fail, "folder");
        row.add("bandmonitor $/a.csv $/a.csv", CommandLine::Fail, "2");
        row.add("bandmonitor --config $/a.csv", CommandLine::Fail, "a.csv");
        row.add("bandmonitor --shots $/a.csv", CommandLine::Fail, "a.csv");
    }

    void parse()
    {
        auto [arguments, action, contained] = Lines::fetch();
        arguments.replace(QLatin1Char('$'), m_folder.path());
        const CommandLine result = parseCommandLine(arguments.split(QLatin1Char(' ')));
        QCOMPARE(result.action, action);
        QVERIFY2(result.text.contains(contained), qPrintable(result.text));
        if (action == CommandLine::Fail)
            QCOMPARE(result.text.count(QLatin1Char('\n')), 1);
        if (action == CommandLine::Run && arguments.contains(QLatin1String("--history"))) {
            QVERIFY(result.live == CommandLine::StandardInput);
            QCOMPARE(result.historyMegabytes, 5);
        }
        if (action == CommandLine::Run && arguments.contains(QLatin1String("--follow")))
            QVERIFY(result.live == CommandLine::FollowedFile);
        if (arguments.contains(QLatin1String("2.5"))) {
            QCOMPARE(result.replayFactor, 2.5);
            QVERIFY(result.configFolder.endsWith(QLatin1String("/new")));
            QCOMPARE(result.screenshotsFolder, m_folder.path());
            QVERIFY(result.file.endsWith(QLatin1String("/a.csv")));
        }
    }
};

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
