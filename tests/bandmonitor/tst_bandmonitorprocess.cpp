// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

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
private Q_SLOTS:
    void answersWithoutDisplay_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::newRow("help") << QStringList{QStringLiteral("--help")} << 0;
        QTest::newRow("version") << QStringList{QStringLiteral("--version")} << 0;
        QTest::newRow("unknown option") << QStringList{QStringLiteral("--nonsense")} << 1;
        QTest::newRow("missing file") << QStringList{QStringLiteral("/no/such.csv")} << 1;
        QTest::newRow("no display") << QStringList() << 1;
    }

    void answersWithoutDisplay()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        const Ended ended = run(application, arguments, false);
        QCOMPARE(ended.status, status);
        QCOMPARE(ended.output.isEmpty(), status != 0);
        QCOMPARE(ended.errors.count('\n'), status);
        if (status != 0)
            QVERIFY2(ended.errors.startsWith("bandmonitor: "), ended.errors.constData());
    }

    void refusesWhatIsNoRecording()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("notes.txt")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("nothing to see\n") > 0);
        file.close();
        const Ended ended =
            run(application, {QStringLiteral("--config"), folder.path(), file.fileName()});
        QCOMPARE(ended.status, 1);
        QVERIFY2(ended.errors.contains("notes.txt"), ended.errors.constData());
    }

    void settingsSurviveARestart_data()
    {
        QTest::addColumn<QString>("end");
        QTest::newRow("window closed") << QStringLiteral("quit");
        QTest::newRow("SIGTERM") << QStringLiteral("wait");
    }

    void settingsSurviveARestart()
    {
        QFETCH(QString, end);
        const QTemporaryDir folder;
        const QString config = folder.filePath(QStringLiteral("config"));
        QVERIFY(QDir().mkpath(config));
        const Ended fresh = run(helper, {config, QStringLiteral("tell")});
        QVERIFY2(fresh.output.startsWith("unit 3 resolution 1 zone 1 format 0 hold 1 "),
                 fresh.errors + fresh.output);

        QProcess changing;
        changing.start(helper, {config, QStringLiteral("change"), end});
        QVERIFY(changing.waitForReadyRead(processTimeoutMs));
        if (end == QLatin1String("wait"))
            changing.terminate();
        QVERIFY(changing.waitForFinished(processTimeoutMs));
        const QByteArray changed = changing.readAllStandardOutput();
        QCOMPARE(
            changed.trimmed(),
            QByteArray("unit 4 resolution 2 zone 0 format 6 hold 0 grid #ff00ff size 777x555"));
        QCOMPARE(run(helper, {config, QStringLiteral("tell")}).output, changed);
    }

    void layoutSurvivesAKill()
    {
        const QTemporaryDir folder;
        const QString config = folder.filePath(QStringLiteral("config"));
        const auto layout = [&] { return run(helper, {config, QStringLiteral("layout")}).output; };
        const QByteArray fresh = layout();
        QVERIFY2(fresh.startsWith("mode 0 waterfall 1 ") && fresh.contains(" signals shown ") &&
                     fresh.contains(" levels closed "),
                 fresh);

        const auto stored = [&] {
            QFile file(config + QStringLiteral("/bandmonitor.json"));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        const QByteArray freshFile = stored();
        const qsizetype state = freshFile.indexOf("\"State\"");
        QVERIFY(state > 0);
        const QByteArray freshState = freshFile.mid(state, freshFile.indexOf('\n', state) - state);

        QProcess changing;
        changing.start(helper, {config, QStringLiteral("arrange")});
        QVERIFY(changing.waitForReadyRead(processTimeoutMs));
        const QByteArray changed = changing.readAllStandardOutput();
        QVERIFY2(changed.startsWith("mode 2 ") && changed.contains(" levels hides "), changed);
        QVERIFY2(changed.contains(" 0 123 ") && changed.endsWith(" 98100250.0:-40\n"), changed);
        // It is killed as soon as all of that is on the disk.
        const QByteArray sizes = changed.split(' ').value(5);
        const auto isStored = [&] {
            const QByteArray text = stored();
            return !text.contains(freshState) && text.contains('"' + sizes + '"') &&
                   text.contains("98.100250") && text.contains(";123,4,0;");
        };
        QTRY_VERIFY_WITH_TIMEOUT(isStored(), processTimeoutMs);
        changing.kill();
        QVERIFY(changing.waitForFinished(processTimeoutMs));
        QCOMPARE(layout(), changed);
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
        const QImage colors(pictures.filePath(QStringLiteral("colors.png")));
        QVERIFY(!main.isNull() && !zoom.isNull() && !colors.isNull());
        QVERIFY(main != zoom && main != colors);
        ended = run(application, arguments, false);
        QCOMPARE(QImage(pictures.filePath(QStringLiteral("main.png"))), main);
    }
};

QTEST_GUILESS_MAIN(tst_BandmonitorProcess)
#include "tst_bandmonitorprocess.moc"
