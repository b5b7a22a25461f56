// SPDX-License-Identifier: MIT
#include "commandline.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace bandmonitor;

class tst_CommandLine : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(m_folder.filePath(QStringLiteral("a.csv")));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void parse_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<int>("action");
        QTest::addColumn<QString>("contained");
        const auto row = [](const char* arguments, CommandLine::Action action,
                            const char* contained = "") {
            QTest::newRow(*arguments != 0 ? arguments : "none")
                << QString::fromLatin1(arguments) << int(action) << QString::fromLatin1(contained);
        };
        row("", CommandLine::Run);
        row("$/a.csv", CommandLine::Run);
        row("--replay 2.5 --config $/new --shots $ $/a.csv", CommandLine::Run);
        row("--help", CommandLine::PrintText, "[FILE]");
        row("-v", CommandLine::PrintText, "bandmonitor");
        row("--nonsense", CommandLine::Fail, "nonsense");
        row("--replay", CommandLine::Fail, "replay");
        row("--replay 0.05", CommandLine::Fail, "0.05");
        row("--replay 101", CommandLine::Fail, "101");
        row("--replay nan", CommandLine::Fail, "nan");
        row("--replay 2x", CommandLine::Fail, "2x");
        row("$/none.csv", CommandLine::Fail, "none.csv");
        row("$", CommandLine::Fail, "folder");
        row("$/a.csv $/a.csv", CommandLine::Fail, "2");
        row("--config $/a.csv", CommandLine::Fail, "a.csv");
        row("--shots $/a.csv", CommandLine::Fail, "a.csv");
    }

    void parse()
    {
        QFETCH(QString, arguments);
        QFETCH(int, action);
        QFETCH(QString, contained);
        arguments.replace(QLatin1Char('$'), m_folder.path());
        const CommandLine result =
            parseCommandLine(QStringLiteral("bandmonitor ")
                                 .append(arguments)
                                 .split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QCOMPARE(int(result.action), action);
        QVERIFY2(result.text.contains(contained), qPrintable(result.text));
        if (action == CommandLine::Fail)
            QCOMPARE(result.text.count(QLatin1Char('\n')), 1);
        if (arguments.contains(QLatin1String("2.5"))) {
            QCOMPARE(result.replayFactor, 2.5);
            QVERIFY(result.configFolder.endsWith(QLatin1String("/new")));
            QCOMPARE(result.shotsFolder, m_folder.path());
            QVERIFY(result.file.endsWith(QLatin1String("/a.csv")));
        }
    }
};

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
