// SPDX-License-Identifier: MIT
#include "support/childprocess.h"
#include "support/guardedtest.h"
#include "support/testrows.h"

#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <memory>

/// Whatever way a program ends, its next start looks the same: one row for each way, and all that
/// is kept in one text. Whole processes, which write at their end only, or, where there is no end,
/// with every change.
class tst_Ends : public GuardedTest
{
    Q_OBJECT
    using Ways = TestRows<const char*, int, int>;

private Q_SLOTS:
    void keepsEverything_data()
    {
        Ways row; // the program's way, the signal, the exit code
        row("window closed", "close", 0, 0);
        row("quit", "quit", 0, 0);
        row("return from main", "return", 0, 0);
        row("terminated", "signal", SIGTERM, 0);
        row("interrupted", "signal", SIGINT, 0);
        row("terminal closed", "signal", SIGHUP, 0);
        row("exit", "exit", 0, 0);
        row("killed", "wait", SIGKILL, -SIGKILL);
        row("killed while it saves", "save", SIGKILL, -SIGKILL);
        row("X server gone", "wait", serverDies, 1);
    }
    void keepsEverything()
    {
        const auto& [way, signalNumber, expectedCode] = Ways::fetch();
        QStringList arguments{configDir(), QString::fromLatin1(way)};
        const bool needsServer = signalNumber == serverDies;
        if (needsServer)
            arguments << QStringLiteral("-platform") << QStringLiteral("xcb");
        // The second start finds what the first one has changed, the third one what the second one
        // has left.
        for (int start = 1; start <= 3; ++start) {
            std::unique_ptr<ChildProcess> server;
            if (needsServer)
                server = startServer();
            ChildProcess process(QStringLiteral(ENDS_PROCESS), arguments);
            QVERIFY2(process.waitForLine("told"), process.output());
            if (needsServer)
                QVERIFY(server->send(SIGKILL));
            else if (signalNumber != 0)
                QVERIFY(process.send(signalNumber));
            const int code = process.waitForEnd();
            QVERIFY2(code == expectedCode, process.output());
            const QString looks = (needsServer ? m_looksUnmanaged : m_looks)
                                      .match(QString::fromUtf8(process.output()))
                                      .captured();
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
    static constexpr int serverDies = -1; ///< In the place of a signal.

    /// An X server, which the programs that are started next use.
    static std::unique_ptr<ChildProcess> startServer()
    {
        auto server = std::make_unique<ChildProcess>(
            QStringLiteral("Xvfb"), QStringList{QStringLiteral("-displayfd"), QStringLiteral("1"),
                                                QStringLiteral("-screen"), QStringLiteral("0"),
                                                QStringLiteral("1600x1000x24")});
        QDeadlineTimer patience(30'000);
        while (!server->readAll().contains('\n') && !patience.hasExpired())
            QTest::qWait(10);
        qputenv("DISPLAY", ':' + server->output().split('\n').first());
        return server;
    }

    /// What the program changes at its first start, and where the rest has come to be.
    const QString m_rest = QStringLiteral(
        " before 310 240 210 170, hidden, hiding, tabbed below, column 77, panes \\d+ \\d+, "
        "colors \\*\\*\\* Color Blind \\*\\*\\*, zone 0, position 3, unit GHz, "
        "files &1 .*second.csv &2 .*first.csv");
    const QRegularExpression m_looks{
        QStringLiteral("window maximized, docked right \\d+, open at 300 260 222 188, large") +
        m_rest};
    /// Nobody maximizes anything without a window manager.
    const QRegularExpression m_looksUnmanaged{
        QStringLiteral("window.*, docked right \\d+, open at 300 260 222 188, .*large") + m_rest};
};

QTEST_GUILESS_MAIN(tst_Ends)
#include "tst_ends.moc"
