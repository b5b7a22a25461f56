// SPDX-License-Identifier: MIT
#include "recordings.h"

#include <generator/receiverstream.h>
#include <live/commandsource.h>
#include <live/descriptorsource.h>
#include <live/followedfile.h>
#include <model/liveinput.h>
#include <model/samplegenerator.h>
#include <model/session.h>

#include "support/checked.h"
#include "support/files.h"
#include "support/filesizelimit.h"
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <csignal>
#include <sys/stat.h>

using namespace bandmonitor;

namespace {

/// Gives what the test puts in, in pieces of any size.
class TestSource : public LiveSource
{
public:
    QString name() const override { return QStringLiteral("test"); }
    void start() override {}
    void stop() override { Q_EMIT ended(QStringLiteral("stopped")); }
    qint64 read(char* to, qint64 size) override
    {
        const qint64 count = std::min({size, largestRead, qint64{bytes.size()}});
        std::copy_n(bytes.constData(), count, to);
        bytes.remove(0, count);
        return count;
    }
    void put(const QByteArray& more)
    {
        bytes += more;
        Q_EMIT readyRead();
    }

    QByteArray bytes;
    qint64 largestRead = 1'000'000;
};

/// One sweep of two hops.
QByteArray sweepOf(int second, int lowHz = 100)
{
    QByteArray text;
    for (const int low : {lowHz, lowHz + 20})
        text += QByteArray("2026-01-01, 00:00:%1, %2, %3, 10, 1, -1, -2\n")
                    .replace("%1", QByteArray::number(second).rightJustified(2, '0'))
                    .replace("%2", QByteArray::number(low))
                    .replace("%3", QByteArray::number(low + 20));
    return text;
}

} // namespace

class tst_LiveInput : public GuardedTest
{
    Q_OBJECT
    using Commands = TestRows<QString, QString, QString>;

private Q_SLOTS:
    void cutsAndPausesDoNotMatter()
    {
        RandomBytes random("live input");
        const QByteArray good = sweepOf(1) + sweepOf(1) + "# remark\n" + sweepOf(3, 10);
        for (int round = RandomBytes::rounds(300); round > 0; --round) {
            const bool isGood = round % 2 == 0;
            const QByteArray text = isGood ? good : random.mutated(good);
            const qsizetype cut = isGood ? round % good.size() : random.below(500);
            CHECKED(start());
            m_source->largestRead = random.below(60) + 1;
            m_source->put(text.left(cut));
            if (isGood && random.below(2) == 0)
                QCoreApplication::processEvents();
            m_source->put(text.mid(cut));
            CHECKED(end());
            ReadRecording whole;
            whole.read(text.toStdString());
            QCOMPARE(textOf(*m_input->recording()), whole.text());
        }
    }
    void sweepComesBeforeTheNextOneBegins()
    {
        CHECKED(start());
        m_input->setSettleTime(std::chrono::milliseconds(20));
        m_source->put(sweepOf(1)); // nothing tells how many hops there will be
        QTRY_COMPARE(m_input->recording()->count(), 1);
        m_input->setSettleTime(std::chrono::hours(1));
        m_source->put(sweepOf(2).chopped(1));
        QTRY_VERIFY(m_source->bytes.isEmpty());
        QCOMPARE(m_input->recording()->count(), 1);
        m_source->put("\n");
        QTRY_COMPARE(m_input->recording()->count(), 2);
        QTRY_VERIFY(m_input->state() == LiveInput::State::Running);
    }
    void tellsWhatIsUnusual()
    {
        CHECKED(start());
        m_source->put(sweepOf(1) + "noise\nnoise\n" + sweepOf(2) + sweepOf(1) + sweepOf(3, 500));
        m_source->put(sweepOf(1, 500).replace("2026-01-01", "2026-01-03"));
        Q_EMIT m_source->said(QStringLiteral("tuned"));
        CHECKED(end());
        const QString told = m_told.join(QLatin1Char('|'));
        for (const char* part : {"2 lines were skipped. Line 4: no valid date", "jump back by 1",
                                 "jump ahead by 47 h 59 min", "span is 0.001", "tuned"})
            QVERIFY2(told.contains(QLatin1String(part)), qPrintable(told));
        QCOMPARE(m_input->recording()->count(), 5);
    }
    void generatorMakesFaultsThatAreSurvived()
    {
        SampleSettings settings;
        settings.sweeps = 500;
        settings.binsPerHop = 10;
        const auto all = StreamFaults::fromInt(31);
        for (const auto& [faults, part] : {std::pair(StreamFaults(), ""),
                                           {all, "skipped"},
                                           {all, "jump ahead"},
                                           {all, "jump back"},
                                           {all, "span is"}}) {
            CHECKED(start());
            ReceiverStream stream(settings, faults);
            std::chrono::seconds pauses{0};
            for (quint64 sweep = 1; !stream.atEnd(); ++sweep) {
                const ReceiverStream::Piece piece = stream.next(sweep * 1'000'000);
                m_source->put(piece.text);
                pauses += piece.pause;
            }
            CHECKED(end());
            const QString told = m_told.join(QLatin1Char('|'));
            QCOMPARE(told.isEmpty() && pauses.count() == 0, part[0] == '\0');
            QVERIFY2(told.contains(QLatin1String(part)), qPrintable(told));
            QVERIFY(m_input->recording()->count() > 480);
        }
    }
    void stallsAndGoesOn()
    {
        QStringList remarks;
        LiveWatch watch;
        Recording recording;
        OwnedSegments segments;
        segments.add(0, 1, {1, 2});
        for (int second = 0; second < 20; ++second) { // the receiver's clock is a day off
            recording.append(86'400'000'000U + static_cast<quint64>(second) * 2'000'000,
                             segments.sweep().segments);
            remarks << watch.take(recording, second * 2'000'000 + (second == 19 ? 1'700'000 : 0));
        }
        QCOMPARE(remarks, QStringList());
        QVERIFY(qAbs(*watch.rate() - 0.5) < 0.2);
        QCOMPARE(watch.delayUs(), 1'700'000);
        QVERIFY(watch.stallAfterUs() > 5'000'000 && watch.stallAfterUs() < 12'000'000);
    }
    void floodsAreSummedUp()
    {
        FloodGate gate;
        gate.setWindow(std::chrono::milliseconds(50));
        QSignalSpy passed(&gate, &FloodGate::passed);
        for (int i = 1; i <= 1000; ++i)
            gate.add(QString::number(i));
        QCOMPARE(passed.count(), FloodGate::linesAtOnce);
        QTRY_COMPARE(passed.count(), FloodGate::linesAtOnce + 1);
        QCOMPARE(passed.last().at(0).toString(),
                 QStringLiteral("990 more messages; the last one: 1000"));
        gate.add(QStringLiteral("alone"));
        QCOMPARE(passed.last().at(0).toString(), QStringLiteral("alone"));
    }

    void commands_data()
    {
        Commands row; // command; how it ends; what it says
        row("ends", "printf '$'", "it has ended", "");
        row("fails", "printf '$'; exit 3", "status 3", "");
        row("no sweeps", "echo; echo no", "ended. Line 2: no valid date and time. Expected:", "");
        row("missing", "/no/such/command", "no such command", "/no/such/command");
        row("floods", "printf '$'; yes error | head -n 100000 >&2", "it has ended",
            "more messages");
        row("does not listen", "trap '' TERM; printf '$'; while :; do sleep 0.1; done", "stopped",
            "");
        row("leaves others behind", "printf '$'; sleep 1000 & wait", "stopped", "");
    }
    void commands()
    {
        auto [command, ending, said] = Commands::fetch();
        command.replace(
            QLatin1Char('$'),
            QString::fromLatin1(sweepOf(1)).replace(QStringLiteral("\n"), QStringLiteral("\\n")));
        auto source = std::make_unique<CommandSource>(command);
        source->setGrace(std::chrono::milliseconds(100));
        Session session;
        QSignalSpy begun(&session, &Session::begun);
        QSignalSpy ended(&session, &Session::liveEnded);
        QSignalSpy failed(&session, &Session::liveFailed);
        session.openLive(std::move(source));
        if (ending == QLatin1String("stopped")) {
            QTRY_COMPARE(begun.count(), 1);
            session.stopLive();
        }
        QTRY_COMPARE(ended.count() + failed.count(), 1);
        QCOMPARE(failed.count(), begun.isEmpty() ? 1 : 0);
        const QString text = (failed.isEmpty() ? ended : failed).at(0).at(0).toString();
        QVERIFY2(text.contains(ending), qPrintable(text));
        const EventLog& log = session.events();
        QVERIFY(log.size() <= FloodGate::linesAtOnce + 1);
        QVERIFY(said.isEmpty() || (log.size() > 0 && log.event(log.end() - 1).text.contains(said)));
    }
    void commandEndsWithItsSource()
    {
        auto source = std::make_unique<CommandSource>(
            QStringLiteral("trap '' TERM; echo $$ >&2; while :; do sleep 0.1; done"));
        source->setGrace(std::chrono::milliseconds(50));
        QSignalSpy said(source.get(), &LiveSource::said);
        source->start();
        QTRY_COMPARE(said.count(), 1);
        const pid_t process = said.at(0).at(0).toInt();
        QCOMPARE(::kill(process, 0), 0);
        source.reset();
        QCOMPARE(::kill(process, 0), -1);
    }
    void fifoOutlivesItsWriter()
    {
        const QString path = filePath(QStringLiteral("fifo"));
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        start(std::make_unique<DescriptorSource>(path));
        for (int writer = 1; writer <= 3; ++writer) {
            QFile fifo(path);
            QVERIFY(fifo.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            fifo.write(sweepOf(writer));
            fifo.close();
            QTRY_COMPARE(m_input->recording()->count(), writer);
            QTRY_COMPARE(m_told.size(), writer);
        }
        m_input->stop();
        QTRY_VERIFY(m_input->state() == LiveInput::State::Ended);
    }
    void followedFileStartsAnew()
    {
        const QString path = filePath(QStringLiteral("grows.csv"));
        auto source = std::make_unique<FollowedFile>(path);
        source->setPollTime(std::chrono::milliseconds(20));
        start(std::move(source));
        QTRY_COMPARE(m_told, QStringList{QStringLiteral("grows.csv: there is no such file yet")});
        QVERIFY(writeFile(path, sweepOf(1) + sweepOf(2)));
        QTRY_COMPARE(m_input->recording()->count(), 2);
        QFile file(path);
        QVERIFY(file.open(QIODevice::Append));
        file.write(sweepOf(3));
        file.close();
        QTRY_COMPARE(m_input->recording()->count(), 3);
        QVERIFY(writeFile(path, sweepOf(4))); // shorter
        QTRY_COMPARE(m_input->recording()->count(), 4);
        QVERIFY(file.remove());
        QTRY_COMPARE(m_told.constLast(), QStringLiteral("grows.csv: the file is gone"));
        QVERIFY(writeFile(path, sweepOf(5) + sweepOf(6) + sweepOf(7) + sweepOf(8)));
        QTRY_COMPARE(m_input->recording()->count(), 8);
        QVERIFY(m_told.contains(QStringLiteral("grows.csv: the file was truncated")));
    }

    void historyIsBoundedAndSaved()
    {
        Session session;
        auto owned = std::make_unique<TestSource>();
        TestSource* source = owned.get();
        session.openLive(std::move(owned), 100'000);
        SampleSettings settings;
        settings.sweeps = 100;
        source->put(SampleGenerator(settings).remaining());
        QTRY_COMPARE(session.live()->recording()->count(), 100);
        QTRY_VERIFY(session.recording() && session.recording()->first() > 70);
        QVERIFY(session.replay().isFollowing());
        session.replay().pause();
        const QString path = filePath(QStringLiteral("saved.csv"));
        const QByteArray expected = "# head\n" + sweepsOf(*session.recording());
        QSignalSpy saved(&session.saver(), &RecordingSaver::saved);
        QSignalSpy failed(&session.saver(), &RecordingSaver::failed);
        session.save(path, "# head\n");
        settings.seed = 2;
        source->put(SampleGenerator(settings).remaining()); // all that is saved goes meanwhile
        QTRY_COMPARE(saved.count(), 1);
        QTRY_VERIFY(session.recording()->first() > 170);
        QVERIFY(session.replay().position() >= session.recording()->first());
        QCOMPARE(readFile(path), expected);
        {
            const FileSizeLimit full(8192);
            session.save(path, {});
            QTRY_COMPARE(failed.count(), 1);
        }
        QCOMPARE(readFile(path), expected);
        {
            RecordingSaver ending;
            ending.save(session.recording(), path);
        }
        QCOMPARE(readFile(path), sweepsOf(*session.recording()));
    }

private:
    static QByteArray sweepsOf(const Recording& recording)
    {
        QByteArray text;
        for (qsizetype i = recording.first(); i < recording.count(); ++i)
            appendSweepText(text, recording.sweep(i));
        return text;
    }
    static QByteArray textOf(const Recording& recording)
    {
        QByteArray text;
        for (qsizetype i = 0; i < recording.count(); ++i)
            text += sweepText(recording.sweep(i)) + '\n';
        return text;
    }
    void start()
    {
        auto source = std::make_unique<TestSource>();
        m_source = source.get();
        start(std::move(source));
    }
    void start(std::unique_ptr<LiveSource> source)
    {
        m_told.clear();
        m_input = std::make_unique<LiveInput>(std::move(source));
        connect(m_input.get(), &LiveInput::remarked, this,
                [this](const QString& text) { m_told << text; });
        m_input->start();
    }
    /// Lets the source end by itself.
    void end()
    {
        Q_EMIT m_source->ended(QStringLiteral("ended"));
        QTRY_VERIFY(m_input->state() == LiveInput::State::Ended);
    }
    void tidy() override { m_input.reset(); }

    QStringList m_told;
    std::unique_ptr<LiveInput> m_input;
    TestSource* m_source = nullptr;
};

QTEST_GUILESS_MAIN(tst_LiveInput)
#include "tst_liveinput.moc"
