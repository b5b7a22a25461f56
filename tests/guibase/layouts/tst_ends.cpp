// SPDX-License-Identifier: MIT
#include "support/childprocess.h"
#include "support/files.h"
#include "support/guardedtest.h"

#include <QRegularExpression>

#include <csignal>
#include <memory>

/// Whatever way a program ends, its next start looks the same: one row for each way, and all that
/// is kept in one text. Whole processes, which write at their end only, or, where there is no end,
/// with every change.
class tst_Ends : public GuardedTest
{
    Q_OBJECT
    using Ways = TestRows<const char*, int, int>;
    using Sessions = TestRows<const char*, const char*>;

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
        row("session end", "session", 0, -SIGKILL);
        row("X server gone", "server", 0, 1);
    }
    void keepsEverything()
    {
        const auto& [way, signalNumber, expectedCode] = Ways::fetch();
        QStringList command = {QStringLiteral(ENDS_PROCESS)};
        if (qstrcmp(way, "server") == 0)
            command = inSession("with-window-manager");
        command << configDir() << QString::fromLatin1(way);
        // The second start finds what the first one has changed, the third one what the second one
        // has left.
        for (int start = 1; start <= 3; ++start) {
            ChildProcess process(command.first(), command.sliced(1));
            QVERIFY2(process.waitForLine("told"), process.output());
            if (signalNumber != 0)
                QVERIFY(process.send(signalNumber));
            const int code = process.waitForEnd();
            QVERIFY2(code == expectedCode, process.output());
            const QString looks = m_looks.match(QString::fromUtf8(process.output())).captured();
            QVERIFY2(!looks.isEmpty(), process.output());
            if (start == 1)
                command << looks;
            QCOMPARE(looks, command.last());
            // Where the large dock goes back to; the toolkit forgets it now and then.
            const QByteArray stored = readFile(configDir() + QStringLiteral("/ends_process.json"));
            QVERIFY2(stored.contains("310,240,210,170,"), stored);
        }
    }

    /// Two programs run at once: one changes everything, the other one nothing, and ends last.
    void keepsWhatAnotherProgramChanged()
    {
        const auto program = [this](const char* way, const QStringList& looks) {
            return std::make_unique<ChildProcess>(
                QStringLiteral(ENDS_PROCESS),
                QStringList{configDir(), QString::fromLatin1(way)} + looks);
        };
        const QStringList unchanged{QString()};
        QCOMPARE(program("close", unchanged)->waitForEnd(), 0);
        const auto idle = program("signal", unchanged);
        QVERIFY2(idle->waitForLine("told"), idle->output());
        const auto other = program("close", {});
        QCOMPARE(other->waitForEnd(), 0);
        const QString changed = m_looks.match(QString::fromUtf8(other->output())).captured();
        QVERIFY2(!changed.isEmpty(), other->output());
        QVERIFY(idle->send(SIGTERM));
        QCOMPARE(idle->waitForEnd(), 0);
        const auto next = program("close", {changed});
        QCOMPARE(next->waitForEnd(), 0);
        QVERIFY2(next->output().contains(changed.toUtf8()), next->output());
    }

    /// The X server, or the compositor, ends the program without telling.
    void serverGoes_data()
    {
        Sessions row; // the script that starts it, and what the program chooses
        row("X server", "with-window-manager", "on xcb, handing on \"\"");
        row("compositor", "with-wayland", "on wayland, handing on \"\"");
    }
    void serverGoes()
    {
        const auto& [script, chosen] = Sessions::fetch();
        const QStringList command = inSession(script);
        ChildProcess process(command.first(), command.sliced(1)
                                                  << configDir() << QStringLiteral("server"));
        QCOMPARE(process.waitForEnd(), 1);
        QVERIFY2(process.output().contains(chosen), process.output());
        // Docks that hide at the edge float on one window system, and are docked on the other.
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
    void tidy() override { qunsetenv("GUIBASE_PLACES_WINDOWS"); }

    /// The program in a session of its own, on a desktop with Wayland whose user has chosen
    /// nothing.
    static QStringList inSession(const char* script)
    {
        return {QStringLiteral(SUPPORT_DIR "/") + QString::fromLatin1(script),
                QStringLiteral("env"),
                QStringLiteral("-u"),
                QStringLiteral("QT_QPA_PLATFORM"),
                QStringLiteral("XDG_SESSION_TYPE=wayland"),
                QStringLiteral(ENDS_PROCESS)};
    }

    /// What the program changes at its first start, and where the rest has come to be.
    const QRegularExpression m_looks{
        QStringLiteral("window maximized, docked right \\d+, open at 300 260 222 188, "
                       "large, hidden, hiding, tabbed below, column 77, panes \\d+ \\d+, "
                       "colors \\*\\*\\* Color Blind \\*\\*\\*, zone 0, position 3, unit GHz, "
                       "files &1 .*second.csv &2 .*first.csv")};
};

QTEST_GUILESS_MAIN(tst_Ends)
#include "tst_ends.moc"
