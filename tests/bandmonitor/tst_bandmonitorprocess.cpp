// SPDX-License-Identifier: MIT
#include "support/files.h"
#include "support/testrows.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

namespace {

constexpr int processTimeoutMs = 60000;

struct Ended
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

Ended run(const QString& program, const QStringList& arguments, bool withDisplay = true)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!withDisplay) {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QString::fromLatin1(name));
    }
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(processTimeoutMs) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardOutput(), process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

const QString application = QStringLiteral(BANDMONITOR);
const QString helper = QStringLiteral(BANDMONITOR_PROCESS);

} // namespace

class tst_BandmonitorProcess : public QObject
{
    Q_OBJECT
    using Answers = TestRows<QStringList, int>;
    using Ends = TestRows<QString, int>;

private Q_SLOTS:
    void answersWithoutDisplay_data()
    {
        Answers row;
        row("help", {QStringLiteral("--help")}, 0);
        row("missing file", {QStringLiteral("/no/such.csv")}, 1);
        row("no display", {}, 1);
    }

    void answersWithoutDisplay()
    {
        const auto& [arguments, status] = Answers::fetch();
        const Ended ended = run(application, arguments, false);
        QCOMPARE(ended.status, status);
        QCOMPARE(ended.output.isEmpty(), status != 0);
        QCOMPARE(ended.errors.count('\n'), status);
        QCOMPARE(ended.errors.startsWith("bandmonitor: "), status != 0);
    }

    void refusesWhatIsNoRecording()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("notes.txt"));
        QVERIFY(writeFile(file, "nothing to see\n"));
        for (const auto& [input, part] :
             {std::pair(file, "notes.txt"), std::pair(QStringLiteral("-"), "standard input: ")}) {
            const Ended ended =
                run(application, {QStringLiteral("--config"), folder.path(), input});
            QCOMPARE(ended.status, 1);
            QVERIFY2(ended.errors.contains(part), ended.errors.constData());
        }
        const Ended closed = run(QStringLiteral("sh"),
                                 {QStringLiteral("-c"), QStringLiteral("exec $0 --config $1 - <&-"),
                                  application, folder.path()});
        QVERIFY2(closed.status == 1 && closed.errors.contains("standard input: "), closed.errors);
        // In a dialog, which does not keep it from ending in good order.
        for (const QString& input : {file, QStringLiteral("/no/such.csv")}) {
            QProcess process;
            process.setReadChannel(QProcess::StandardError);
            process.start(application, {QStringLiteral("--dialogs"), QStringLiteral("--config"),
                                        folder.path(), input});
            QByteArray told;
            while (!told.contains("bandmonitor: ") && process.waitForReadyRead(processTimeoutMs))
                told += process.readAllStandardError();
            QVERIFY2(told.contains(input.toUtf8()), told.constData());
            process.terminate();
            QVERIFY(process.waitForFinished(processTimeoutMs));
            QCOMPARE(process.exitStatus(), QProcess::NormalExit);
            QCOMPARE(process.exitCode(), 0);
        }
    }

    void stateSurvives_data()
    {
        Ends row;
        row("closed window", "quit", 0);
        row("ordered end", "wait", SIGTERM);
        row("crash", "store", SIGKILL);
    }

    void stateSurvives()
    {
        const auto& [end, signalNumber] = Ends::fetch();
        const QTemporaryDir folder;
        const QString config = folder.filePath(QStringLiteral("config"));
        QVERIFY(QDir().mkpath(config));
        const auto tell = [&] { return run(helper, {config, QStringLiteral("tell")}).output; };
        const QByteArray fresh = tell();
        QVERIFY2(fresh.startsWith("unit 3 resolution 1 zone 1 format 0 hold 1 grid"), fresh);
        const auto stored = [&] { return readFile(config + QStringLiteral("/bandmonitor.json")); };
        const QByteArray freshFile = stored();
        const qsizetype state = freshFile.indexOf("\"State\"");
        QVERIFY(state > 0);
        const QByteArray freshState = freshFile.mid(state, freshFile.indexOf('\n', state) - state);

        QProcess changing;
        changing.start(helper, {config, QStringLiteral("change"), end});
        QVERIFY(changing.waitForReadyRead(processTimeoutMs));
        const QByteArray changed = changing.readAllStandardOutput();
        QVERIFY2(changed.startsWith(
                     "unit 2 resolution 2 zone 0 format 6 hold 0 grid #ff00ff key Shift+F9") &&
                     changed.contains("QSize(777, 555) 2 ") &&
                     changed.contains("\"levels\" hides true") &&
                     changed.contains(",0,123,") && // the columns: one hidden, one widened
                     changed.endsWith(", 98100250.0:-40\n"),
                 changed);
        // It is killed as soon as all of that is on the disk.
        const QByteArray sizes = changed.mid(changed.indexOf("layout")).split(' ').value(4);
        const auto isStored = [&] {
            const QByteArray text = stored();
            return !text.contains(freshState) && text.contains('"' + sizes + '"') &&
                   text.contains("98.100250") && text.contains(";123,4,0;") &&
                   text.contains("own.cst");
        };
        if (signalNumber == SIGKILL)
            QTRY_VERIFY_WITH_TIMEOUT(isStored(), processTimeoutMs);
        if (signalNumber != 0)
            ::kill(static_cast<pid_t>(changing.processId()), signalNumber);
        QVERIFY(changing.waitForFinished(processTimeoutMs));
        QCOMPARE(tell(), changed);
    }

    void picturesNeedNobodyToAnswer()
    {
        const QTemporaryDir folder;
        const QString config = folder.filePath(QStringLiteral("config"));
        QVERIFY(QDir().mkpath(config));
        run(helper, {config, QStringLiteral("change"), QStringLiteral("quit")});
        QVERIFY(QFile::remove(config + QStringLiteral("/own.cst"))); // the start asks for it
        const Ended ended = run(application, {QStringLiteral("--config"), config,
                                              QStringLiteral("--shots"), folder.path()});
        QCOMPARE(ended.status, 0);
        QVERIFY2(ended.errors.contains("Cannot open Color Definition File"), ended.errors);
    }

    void picturesAreTheSameEveryTime()
    {
        const QTemporaryDir folder;
        const QStringList arguments{QStringLiteral("--shots"), folder.path()};
        Ended ended = run(application, arguments, false);
        QVERIFY2(ended.status == 0, ended.errors);
        const QDir pictures(folder.path());
        QCOMPARE(pictures.entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
                 pictures.entryList({QStringLiteral("*.png")}));
        const QImage main(pictures.filePath(QStringLiteral("main.png")));
        const QImage zoom(pictures.filePath(QStringLiteral("zoom.png")));
        QVERIFY(!main.isNull() && !zoom.isNull() && main != zoom);
        ended = run(application, arguments, false);
        QCOMPARE(QImage(pictures.filePath(QStringLiteral("main.png"))), main);
    }
};

QTEST_GUILESS_MAIN(tst_BandmonitorProcess)
#include "tst_bandmonitorprocess.moc"
