// SPDX-License-Identifier: MIT
#include "support/files.h"
#include "support/guardedtest.h"

#include <jtbase/errorhandler.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <thread>
#include <vector>

namespace {

QStringList linesOf(const QString& fileName)
{
    return QString::fromUtf8(readFile(fileName)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void trace(int count)
{
    for (; count > 0; --count)
        ErrorHandler::Trace(ErrorHandler::TracePlatform, "m", 1, QStringLiteral("x"));
}

/// Traces when everything else is gone: static objects made earlier die later.
struct TraceAtExit
{
    ~TraceAtExit() { ErrorHandler::Trace(ErrorHandler::TraceAssertions, "exit", 1, QString()); }
} traceAtExit;

} // namespace

class tst_ErrorHandler : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void maskGatesTraces()
    {
        QVERIFY(ErrorHandler::SetTraceFile(traceFile()));
        ErrorHandler::Trace(ErrorHandler::TraceGuiBase, "module", 1, QStringLiteral("hidden"));
        ErrorHandler::SetTraceFlags(ErrorHandler::TraceGuiBase);
        QTest::ignoreMessage(QtInfoMsg, "a/module(7): two \"lines\"\nof %1 text");
        ErrorHandler::Trace(ErrorHandler::TraceGuiBase, "a/module", 7,
                            QStringLiteral("two \"lines\"\nof %1 text"));
        // Read while the file is still open: every line is written at once.
        const QStringList lines = linesOf(traceFile());
        QCOMPARE(lines.size(), 1);
        const QRegularExpression line(QStringLiteral(
            "^\\d{4}-\\d\\d-\\d\\dT[\\d:.]{12}Z a/module\\(7\\): two \"lines\" of %1 text$"));
        QVERIFY2(line.match(lines.first()).hasMatch(), qPrintable(lines.first()));
    }
    void fileKeepsWhatItHeld()
    {
        QVERIFY(writeFile(traceFile(), "line\n"));
        QVERIFY(ErrorHandler::SetTraceFile(traceFile()));
        trace(1);
        QVERIFY(!ErrorHandler::SetTraceFile(m_dir.filePath(QStringLiteral("none/trace.log"))));
        trace(1);
        QVERIFY(ErrorHandler::SetTraceFile(QString()));
        trace(1);
        QCOMPARE(linesOf(traceFile()).size(), 3);
    }
    void threadsDoNotMixLines()
    {
        QVERIFY(ErrorHandler::SetTraceFile(traceFile()));
        const QtMessageHandler former = qInstallMessageHandler([](auto...) {});
        {
            std::vector<std::jthread> threads;
            for (int thread = 0; thread < 4; ++thread)
                threads.emplace_back([] { trace(2000); });
        }
        qInstallMessageHandler(former);
        const QStringList lines = linesOf(traceFile());
        QCOMPARE(lines.filter(QRegularExpression(QStringLiteral("Z m\\(1\\): x$"))).size(), 8000);
        QCOMPARE(lines.size(), 8000);
    }
    void assertionIsReported()
    {
        const bool holds = false;
        expectTrace("^unit\\(\\d+\\): assertion failed: holds$");
        QVERIFY(!TROV_ASSERT(holds, "unit"));
        QVERIFY(TROV_ASSERT(!holds, "unit"));
    }

private:
    void prepare() override
    {
        QFile::remove(traceFile());
        ErrorHandler::SetTraceFlags(ErrorHandler::defaultTraceFlags);
    }
    void tidy() override { ErrorHandler::SetTraceFile(QString()); }
    QString traceFile() const { return m_dir.filePath(QStringLiteral("trace.log")); }

    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(tst_ErrorHandler)
#include "tst_errorhandler.moc"
