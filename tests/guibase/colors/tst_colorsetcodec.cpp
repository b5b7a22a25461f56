// SPDX-License-Identifier: MIT
#include <guibase/colors/colorsetcodec.h>

#include "support/randombytes.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

class tst_ColorSetCodec : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void decodesWhatIsThere_data();
    void decodesWhatIsThere();
    void readsNoMoreThanNeeded();
    void everySizeRoundTrips();
};

void tst_ColorSetCodec::decodesWhatIsThere_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("last");

    const QByteArray palette = QByteArray::fromHex("e8030000");
    QTest::newRow("empty") << QByteArray() << 0 << 0 << 0;
    QTest::newRow("one entry") << palette << 1000 << 0 << 0;
    QTest::newRow("cut inside an entry")
        << palette + QByteArray::fromHex("e903") << 1000 << 1001 << 0;
    QTest::newRow("negative") << QByteArray::fromHex("ffffffff00000080") << -1
                              << std::numeric_limits<int>::min() << 0;
    QTest::newRow("full") << palette.repeated(150) << 1000 << 1000 << 1000;
    QTest::newRow("longer") << palette.repeated(149) + QByteArray(4, '\0') + palette << 1000 << 1000
                            << 0;
}

void tst_ColorSetCodec::decodesWhatIsThere()
{
    QFETCH(QByteArray, bytes);
    const ColorSetCodec::Ids ids = ColorSetCodec::decode(bytes);
    QTEST(ids.front(), "first");
    QTEST(ids[1], "second");
    QTEST(ids.back(), "last");
    QBuffer device(&bytes);
    QVERIFY(device.open(QIODevice::ReadOnly));
    QCOMPARE(ColorSetCodec::read(device), ids);
}

void tst_ColorSetCodec::readsNoMoreThanNeeded()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("huge.cst")));
    QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    QVERIFY(file.resize(Q_INT64_C(1) << 34)); // sparse
    ColorSetCodec::read(file);
    QCOMPARE(file.pos(), 600);
}

void tst_ColorSetCodec::everySizeRoundTrips()
{
    RandomBytes random("colour-set bytes");
    for (int round = RandomBytes::rounds(2000); round > 0; --round) {
        const QByteArray bytes = random.bytes(700);
        const QByteArray expected = bytes.left(600).leftJustified(600, '\0');
        QCOMPARE(ColorSetCodec::encode(ColorSetCodec::decode(bytes)), expected);
    }
}

QTEST_GUILESS_MAIN(tst_ColorSetCodec)
#include "tst_colorsetcodec.moc"
