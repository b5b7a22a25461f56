// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <geometryrecord_p.h>
#include <screenplacement_p.h>
#include <staterecord_p.h>

#include <QTest>
#include <QtEndian>

using StateRecord::Layouts;

namespace {

const QString tag = QStringLiteral("DG906NC44LjY=");

QString recordOf(const QByteArray& stream)
{
    return tag + QString::fromLatin1(qCompress(stream).toBase64());
}

QByteArray unpacked(const QString& record)
{
    return qUncompress(QByteArray::fromBase64(record.mid(tag.size()).toLatin1()));
}

QByteArray withLengthHeader(QByteArray packed, quint32 length)
{
    qToBigEndian(length, packed.data());
    return packed;
}

/// The toolkit complains about each text that does not inflate.
class Silence
{
public:
    Silence()
        : m_former(
              qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}))
    {}
    ~Silence() { qInstallMessageHandler(m_former); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    QtMessageHandler m_former;
};

} // namespace

class TestLayoutRecords : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void stateFormat();
    void refusedStates_data();
    void refusedStates();
    void mutatedStates();
    void mutatedGeometries();
    void screenPlacement_data();
    void screenPlacement();
};

void TestLayoutRecords::stateFormat()
{
    const Layouts layouts{{0, QStringLiteral("00ff")}, {7, QString()}, {0xffffffff, tag}};
    const QString record = StateRecord::encode(layouts);
    QVERIFY(record.startsWith(tag));
    QCOMPARE(unpacked(record).first(20).toHex(' '),
             QByteArray("00 00 00 03 00 00 00 00 00 00 00 08 00 30 00 30 00 66 00 66"));
    QVERIFY(StateRecord::decode(record) == layouts);
    QVERIFY(StateRecord::decode(StateRecord::encode({})) == Layouts());
}

void TestLayoutRecords::refusedStates_data()
{
    QTest::addColumn<QString>("text");
    const QString good = StateRecord::encode({{0, QStringLiteral("00ff")}, {1, tag}});
    const QByteArray stream = unpacked(good);
    const QByteArray packed = qCompress(stream);
    const auto base64 = [](const QByteArray& bytes) {
        return tag + QString::fromLatin1(bytes.toBase64());
    };
    QTest::newRow("no tag") << good.mid(1);
    QTest::newRow("tag only") << tag;
    QTest::newRow("not Base64") << tag + QStringLiteral("*") + good.mid(tag.size());
    QTest::newRow("not Latin") << good + QChar(0x4e00);
    QTest::newRow("bytes after the stream") << recordOf(stream + '\0');
    QTest::newRow("cut stream") << recordOf(stream.chopped(1));
    QTest::newRow("many modes") << recordOf(QByteArray::fromHex("7fffffff") + stream.mid(4));
    QTest::newRow("long text") << recordOf(QByteArray::fromHex("00000001"
                                                               "00000000"
                                                               "7ffffff0"
                                                               "0041"));
    QTest::newRow("claims to be huge") << base64(withLengthHeader(packed, 0xfffffff0));
    QTest::newRow("claims to be shorter")
        << base64(withLengthHeader(packed, static_cast<quint32>(stream.size()) - 1));
    QTest::newRow("claims to be empty") << base64(withLengthHeader(packed, 0));
    QTest::newRow("inflates to much more")
        << base64(withLengthHeader(qCompress(QByteArray(1 << 20, '\0')), 16));
    QTest::newRow("packed too large")
        << base64(withLengthHeader(QByteArray(StateRecord::maximumPackedBytes + 1, 'x'), 16));
}

void TestLayoutRecords::refusedStates()
{
    QFETCH(QString, text);
    QVERIFY(!StateRecord::decode(text));
}

/// Texts and streams are damaged in turn; what is read must be written and read as the same.
void TestLayoutRecords::mutatedStates()
{
    RandomBytes random("state records");
    const QString good = StateRecord::encode({{0, QStringLiteral("00ff")}, {9, tag}});
    const QByteArray stream = unpacked(good);
    const Silence silence;
    for (int round = 0; round < RandomBytes::rounds(2000); ++round) {
        const QString text = round % 2 == 0 ? QString::fromLatin1(random.mutated(good.toLatin1()))
                                            : recordOf(random.mutated(stream));
        if (const auto layouts = StateRecord::decode(text))
            QVERIFY(StateRecord::decode(StateRecord::encode(*layouts)) == layouts);
    }
}

void TestLayoutRecords::mutatedGeometries()
{
    RandomBytes random("geometry records");
    for (quint16 version = 1; version <= 3; ++version) {
        GeometryRecord record;
        record.version = version;
        record.frame = QRect(-5, 0, 810, 630);
        record.normal = QRect(0, 25, 800, 600);
        record.geometry = record.normal;
        record.screenWidth = version >= 2 ? 1920 : 0;
        const QByteArray good = record.toBytes();
        QVERIFY(GeometryRecord::fromBytes(good) == record);
        for (qsizetype size = 0; size < good.size(); ++size)
            QVERIFY(!GeometryRecord::fromBytes(good.first(size)));
        for (int round = 0; round < RandomBytes::rounds(500); ++round) {
            const QByteArray bytes = random.mutated(good);
            const auto read = GeometryRecord::fromBytes(bytes);
            QVERIFY(!read || read->toBytes() == bytes);
        }
    }
}

void TestLayoutRecords::screenPlacement_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QList<QRect>>("areas");
    QTest::addColumn<QRect>("expected");
    const QRect left(0, 0, 1000, 800);
    const QRect right(1000, 0, 1000, 800);
    const QList<QRect> both{left, right};
    const QRect window(1200, 100, 500, 400);
    QTest::newRow("stays") << window << both << window;
    QTest::newRow("across both") << QRect(900, 0, 500, 800) << both << QRect(900, 0, 500, 800);
    QTest::newRow("whole screen") << right << both << right;
    QTest::newRow("screen gone") << window << QList{left} << QRect(500, 100, 500, 400);
    QTest::newRow("nearest of two")
        << QRect(2500, -900, 500, 400) << both << QRect(1500, 0, 500, 400);
    QTest::newRow("too large") << QRect(-50, -50, 3000, 900) << QList{left} << left;
    QTest::newRow("below the edge") << QRect(10, 700, 500, 400) << both << QRect(10, 400, 500, 400);
    QTest::newRow("no screen") << window << QList<QRect>() << window;
    QTest::newRow("empty screen first")
        << window << QList{QRect(), left} << QRect(500, 100, 500, 400);
    QTest::newRow("far away") << QRect(QPoint(1 << 20, 1 << 20), QSize(500, 400)) << both
                              << QRect(1500, 400, 500, 400);
}

void TestLayoutRecords::screenPlacement()
{
    QFETCH(QRect, window);
    QFETCH(QList<QRect>, areas);
    const QRect placed = ScreenPlacement::reachable(window, areas);
    QTEST(placed, "expected");
    QCOMPARE(ScreenPlacement::reachable(placed, areas), placed);
}

QTEST_GUILESS_MAIN(TestLayoutRecords)
#include "tst_layoutrecords.moc"
