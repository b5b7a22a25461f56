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

    /// The X server, or the compositor, ends the program without telling.
    void serverGoes()
    {
        const int server = qEnvironmentVariableIntValue("GUIBASE_TEST_SERVER");
        if (server == 0)
            QSKIP("Needs a server that may go.");
        // The user has chosen nothing, on a desktop with Wayland.
        const bool isX11 = qEnvironmentVariableIsSet("DISPLAY");
        qunsetenv("QT_QPA_PLATFORM");
        qputenv("XDG_SESSION_TYPE", "wayland");
        ChildProcess process(QStringLiteral(ENDS_PROCESS), {configDir(), QStringLiteral("signal")});
        QVERIFY2(process.waitForLine("told"), process.output());
        const QByteArray chosen = isX11 ? "on xcb, handing on \"\"" : "on wayland, handing on \"\"";
        QVERIFY2(process.output().contains(chosen), process.output());
        QCOMPARE(::kill(server, SIGKILL), 0);
        QCOMPARE(process.waitForEnd(), 1);
        // Docks that hide at the edge float on one window system, and are docked on the other.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        for (const char* isPlacing : {"0", "1", "0"}) {
            qputenv("GUIBASE_PLACES_WINDOWS", isPlacing);
            ChildProcess next(QStringLiteral(ENDS_PROCESS),
                              {configDir(), QStringLiteral("close"), QString()});
            QVERIFY2(next.waitForLine("told"), next.output());
            QVERIFY2(next.output().contains("hidden, hiding, tabbed below, column 77"),
                     next.output());
            QCOMPARE(next.waitForEnd(), 0);
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
