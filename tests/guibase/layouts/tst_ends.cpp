// SPDX-License-Identifier: MIT
#include "support/childprocess.h"
#include "support/guardedtest.h"
#include "support/testrows.h"

#include <QRegularExpression>
#include <QTest>

#include <csignal>

/// Whatever way a program ends, its next start looks the same. Whole processes, which write at
/// their end only.
class tst_Ends : public GuardedTest
{
    Q_OBJECT
    using Ways = TestRows<const char*, int>;

private Q_SLOTS:
    void keepsTheLayout_data()
    {
        Ways row;
        row("window closed", "close", 0);
        row("quit", "quit", 0);
        row("return from main", "return", 0);
        row("terminated", "signal", SIGTERM);
        row("interrupted", "signal", SIGINT);
        row("terminal closed", "signal", SIGHUP);
    }
    void keepsTheLayout()
    {
        const auto& [way, signalNumber] = Ways::fetch();
        QStringList arguments{configDir(), QString::fromLatin1(way)};
        // The second start finds what the first one has changed, the third one what the second one
        // has left.
        for (int start = 1; start <= 3; ++start) {
            ChildProcess process(QStringLiteral(ENDS_PROCESS), arguments);
            QVERIFY2(process.waitForLine("told"), process.output());
            if (signalNumber != 0)
                QVERIFY(process.send(signalNumber));
            const int code = process.waitForEnd();
            QVERIFY2(code == 0, process.output());
            const QString looks = m_looks.match(QString::fromUtf8(process.output())).captured();
            QVERIFY2(!looks.isEmpty(), process.output());
            if (start == 1)
                arguments << looks;
            QCOMPARE(looks, arguments.last());
        }
    }

private:
    /// What the program changes at its first start, and where the rest has come to be.
    const QRegularExpression m_looks{QStringLiteral(
        "window maximized, docked right \\d+, open at 300 260 222 188, large "
        "before 310 240 210 170, hidden, hiding, tabbed below, column 77, panes \\d+ \\d+")};
};

QTEST_GUILESS_MAIN(tst_Ends)
#include "tst_ends.moc"
