// SPDX-License-Identifier: MIT
#include "recordings.h"

#include <model/samplegenerator.h>

#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <cmath>

using namespace bandmonitor;

class tst_RecordingParser : public GuardedTest
{
    Q_OBJECT
    using Lines = TestRows<QByteArray, int, double>;
    using Hops = QList<std::pair<int, int>>;
    using HopRows = TestRows<Hops, QByteArray>;

private Q_SLOTS:
    void lines_data()
    {
        Lines row; // text, bins, step in hertz
        const QByteArray head = "2018-11-18, 12:48:15, ";
        row("CRLF", head + "100, 400, 100.00, 7, -1, -2, -3\r\n\r\n", 3, 100);
        row("blanks", " \n\t " + head + "\t100 ,400,100.00 ,7,-1 ,-2\t, -3, \n", 3, 100);
        row("byte order mark", "\xEF\xBB\xBF" + head + "100, 400, 100, 7, 1, 2, 3\n", 3, 100);
        row("last bin repeated", head + "100, 400, 100, 7, -1, -2, -3, -3\n", 3, 100);
        row("exponent", head + "1e6, 1.3e6, 1e5, 7e0, -1, -2, -3", 3, 1e5);
        row("baseband", head + "-200, 100, 100, 7, -1, -2, -3", 3, 100);
        // 1000 / 4096 Hz is written as 0.24
        const QByteArray rounded = head + "0, 1000, 0.24, 7" + QByteArray(", -1").repeated(4096);
        row("rounded step", rounded, 4096, 1000.0 / 4096);
    }
    void lines()
    {
        const auto& [text, bins, stepHz] = Lines::fetch();
        ReadRecording reader;
        reader.read(text.toStdString());
        QCOMPARE(reader.parser.report(), QString());
        QCOMPARE(reader.recording->count(), 1);
        const Sweep sweep = reader.recording->sweep(0);
        QCOMPARE(sweep.binCount, static_cast<std::size_t>(bins));
        QCOMPARE(sweep.segments[0].stepHz, stepHz);
        QCOMPARE(sweep.segments[0].samples, 7U);
        QCOMPARE(reader.recording->levelCount(), static_cast<std::size_t>(bins));
    }
    void badLines()
    {
        const std::pair<LineFault, QByteArrayList> groups[] = {
            {LineFault::BadTime,
             {"garbage", "2018-11-18", "2018-02-30, 12:48:15, 100, 300, 100, 7, 1, 2",
              "1969-12-31, 23:59:59, 100, 300, 100, 7, 1, 2",
              "2018-11-18, 24:00:00, 100, 300, 100, 7, 1, 2"}},
            {LineFault::BadFrequency,
             {"@", "@, -1e18, 100, 100, 7, 1, 2", "@, 300, 100, 100, 7, 1, 2",
              "@, 100, 300, 0, 7, 1, 2", "@, 100, 300, -100, 7, 1, 2", "@, nan, 300, 100, 7, 1, 2",
              "@, 100, inf, 100, 7, 1, 2", "@, 0, 1e18, 1, 7, 1, 2", "@, 1x, 300, 100, 7, 1, 2"}},
            {LineFault::BadSamples, {"@, 100, 300, 100, -7, 1, 2", "@, 100, 300, 100"}},
            {LineFault::NoLevels, {"@, 100, 300, 100, 7"}},
            {LineFault::BadLevel,
             {"@, 100, 300, 100, 7, 1, x", "@, 100, 300, 100, 7, 1, , 2",
              "@, 100, 300, 100, 7, 1, -", "@, 100, 300, 100, 7, 1 2",
              "@, 100, 300, 100, 7, 1, +-2"}},
            {LineFault::CountMismatch,
             {"@, 100, 300, 100, 7, 1", "@, 100, 300, 100, 7, 1, 2, 3, 4",
              "@, 0, 1e13, 0.001, 7, 1, 2"}},
        };
        for (const auto& [fault, lines] : groups) {
            for (const QByteArray& line : lines) {
                QByteArray text = '\n' + line + "\n@, 500, 700, 100, 7, 1, 2\n";
                ReadRecording reader;
                reader.read(text.replace("@", "2018-11-18, 12:48:15").toStdString());
                QCOMPARE(reader.parser.skippedCount(), 1);
                QCOMPARE(reader.parser.skippedLines().at(0).number, 2);
                QVERIFY2(reader.parser.skippedLines().at(0).fault == fault, line.constData());
                QCOMPARE(reader.recording->sweep(0).lowHz, 500.0);
            }
        }
    }
    void times()
    {
        ReadRecording reader;
        reader.read("1970-01-01, 00:00:00, 1, 2, 1, 1, 0\n"
                    "2018-11-18, 12:48:15.0000419, 1, 2, 1, 1, 0\n"
                    "2000-02-29, 23:59:60.5, 1, 2, 1, 1, 0\n");
        QCOMPARE(reader.recording->sweep(0).timeUs, 0U);
        QCOMPARE(reader.recording->sweep(1).timeUs, 1'542'545'295'000'041U);
        QCOMPARE(reader.recording->sweep(2).timeUs, 951'868'800'500'000U);
    }
    void levels()
    {
        ReadRecording reader;
        reader.read("2018-11-18, 12:48:15, 0, 15, 1, 7, -28.02, .5, -7., +3.25, -1.5e1, "
                    "-123.456789012345678901234567890, 0.00000000000000000000000012, 1000, "
                    "-1000.01, 1e9999, 99999999999999999999999999, -nan, NaN, inf, -Infinity");
        QCOMPARE(reader.parser.report(), QString());
        const float expected[] = {-28.02F, 0.5F, -7, 3.25F, -15, -123.45679F, 1.2e-25F, 1000};
        const Sweep sweep = reader.recording->sweep(0);
        for (std::size_t i = 0; i < 15; ++i) {
            const float level = sweep.segments[0].levels[i];
            QVERIFY2(i < std::size(expected) ? level == expected[i] : std::isnan(level),
                     qPrintable(QString::number(level)));
        }
        QCOMPARE(reader.recording->maximumLevel(), std::optional(1000.0F));
        QCOMPARE(reader.recording->minimumLevel(), std::optional(-123.45679F));
    }
    void sweepsFromHops_data()
    {
        HopRows row; // second and start of each hop; the starts in each sweep
        row("three a sweep", {{1, 0}, {1, 10}, {1, 20}, {2, 0}, {2, 10}}, "0 10 20 | 0 10 | ");
        row("out of order", {{1, 10}, {1, 0}, {1, 10}, {1, 0}, {1, 0}}, "0 10 | 0 10 | 0 | ");
        row("overlapping", {{1, 0}, {1, 3}, {1, 1}}, "0 1 3 | ");
        row("backward in time", {{5, 0}, {4, 0}, {5, 10}}, "0 | 0 | 10 | ");
    }
    void sweepsFromHops()
    {
        const auto& [hops, sweeps] = HopRows::fetch();
        QString text;
        for (const auto& [second, start] : hops)
            text += QStringLiteral("2018-11-18, 12:48:0%1, %2, %3, 1, 1, %2, %2, %2, %2, %2\n")
                        .arg(second)
                        .arg(start)
                        .arg(start + 5);
        ReadRecording reader;
        reader.read(text.toStdString());
        QByteArray read;
        for (qsizetype i = 0; i < reader.recording->count(); ++i) {
            for (const Segment& segment : reader.recording->sweep(i).segments) {
                read += QByteArray::number(segment.startHz) + ' ';
                QCOMPARE(segment.levels[4], static_cast<float>(segment.startHz));
            }
            read += "| ";
        }
        QCOMPARE(read, sweeps);
    }
    void reportNamesFirstLines()
    {
        ReadRecording reader;
        reader.read("\nbad\n" + std::string(40, '\n') + "2018-11-18, 12:48:15, 0, 1, 0, 1, 0\n");
        QCOMPARE(reader.parser.report(),
                 QStringLiteral("Skipped lines: 2.\nLine 2: no valid date and time.\n"
                                "Line 43: no valid frequencies and step."));
        for (int i = 0; i < 1000; ++i)
            reader.parser.feed("x\n");
        QCOMPARE(reader.parser.skippedCount(), 1002);
        QCOMPARE(reader.parser.skippedLines().size(), RecordingParser::keptSkippedLines);
        QVERIFY(reader.parser.report().endsWith(QStringLiteral("\n...")));
    }
    void longestLine()
    {
        ReadRecording reader;
        const std::string piece(std::size_t{1} << 20, ' ');
        for (std::size_t size = 0; size <= RecordingParser::maximumLineBytes; size += piece.size())
            reader.parser.feed(piece);
        QCOMPARE(reader.parser.lastFault(),
                 QStringLiteral("Line 1: the line has no end within 64 MB."));
        reader.read("\n2018-11-18, 12:48:15, 0, 1, 1, 1, 0");
        QCOMPARE(reader.parser.skippedCount(), 1);
        QCOMPARE(reader.parser.skippedLines().at(0).fault, LineFault::TooLong);
        QCOMPARE(reader.recording->count(), 1);
    }
    void limitOfLevels()
    {
        ReadRecording reader;
        reader.parser.setMaximumLevels(5);
        for (int line = 0; line < 3; ++line)
            reader.read("2018-11-18, 12:48:15, 0, 2, 1, 1, 0, 0\n");
        QCOMPARE(reader.recording->levelCount(), 4U);
        QVERIFY(reader.parser.isFull());
    }
    void wideGapsCostNothing()
    {
        ReadRecording reader;
        std::string text;
        // Downward, so that each hop comes out of order.
        for (int hop = 20'000; hop > 0; --hop)
            text += "2018-11-18, 12:48:15, " + std::to_string(hop * 1e8) + ", " +
                    std::to_string(hop * 1e8 + 1) + ", 1, 1, 5\n";
        reader.read(text);
        QCOMPARE(reader.recording->count(), 1);
        const Sweep sweep = reader.recording->sweep(0);
        QCOMPARE(sweep.highHz, 2e12 + 1);
        QVERIFY(reader.recording->reservedBytes() < 4 * sweep.segments.size() * sizeof(Segment));
    }
    void writtenSweepReadsBack()
    {
        const QByteArray text = "1970-01-01, 00:00:00.250000, 1, 3.50, 0.50, 1, nan, "
                                "0.00000000000000000001, -28.50, 100.00, -28.12345\n";
        OwnedSegments odd;
        odd.add(1, 0.5, {noLevel, 1e-20F, -28.5F, 100, -28.12345F});
        QCOMPARE(sweepText(odd.sweep(250'000)), text);
        ReadRecording reader;
        reader.read((receiverRemark(QStringLiteral("0x1F")) + text).toStdString());
        QCOMPARE(reader.text(), text + '\n');
    }
    void cutsDoNotMatter()
    {
        RandomBytes random("recording");
        SampleSettings settings;
        settings.sweeps = 3;
        settings.hops = 2;
        settings.binsPerHop = 6;
        const QByteArray good = SampleGenerator(settings).remaining() +
                                "2026-01-01, 00:00:09, 5, 7, 1, 1, nan, -inf\r\n\n1e5, , -nan";
        for (int round = RandomBytes::rounds(2000); round > 0; --round) {
            const QByteArray text =
                random.below(20) == 0 ? random.bytes(300) : random.mutated(good);
            ReadRecording whole;
            whole.read(text.toStdString());
            ReadRecording cut;
            for (qsizetype at = 0; at < text.size();) {
                const qsizetype size = std::min<qsizetype>(random.below(80), text.size() - at);
                cut.parser.feed({text.constData() + at, static_cast<std::size_t>(size)});
                at += size;
            }
            cut.parser.finish();
            QCOMPARE(cut.text(), whole.text());
            QCOMPARE(cut.parser.report(), whole.parser.report());
            // What was understood can be written and understood again.
            ReadRecording again;
            again.read(whole.text().toStdString());
            QCOMPARE(again.parser.report(), QString());
            QCOMPARE(again.text(), whole.text());
        }
    }
};

QTEST_GUILESS_MAIN(tst_RecordingParser)
#include "tst_recordingparser.moc"
