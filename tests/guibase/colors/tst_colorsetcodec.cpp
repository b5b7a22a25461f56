// SPDX-License-Identifier: MIT
#include <guibase/colors/colorsetcodec.h>

#include "support/randombytes.h"
#include "support/testrows.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

class tst_ColorSetCodec : public QObject
{
    Q_OBJECT
    using Bytes = TestRows<QByteArray, int, int, int>;

private Q_SLOTS:
    void decodesWhatIsThere_data()
    {
        Bytes row; // with the first two entries and the last
        const QByteArray palette = QByteArray::fromHex("e8030000");
        const QByteArray negative = QByteArray::fromHex("ffffffff00000080");
        row("empty", "", 0, 0, 0);
        row("one entry", palette, 1000, 0, 0);
        row("cut inside an entry", palette + QByteArray::fromHex("e903"), 1000, 1001, 0);
        row("negative", negative, -1, std::numeric_limits<int>::min(), 0);
        row("full", palette.repeated(150), 1000, 1000, 1000);
        row("longer", palette.repeated(149) + QByteArray(4, '\0') + palette, 1000, 1000, 0);
    }
    void decodesWhatIsThere()
    {
        auto [bytes, first, second, last] = Bytes::fetch();
        const ColorSetCodec::Ids ids = ColorSetCodec::decode(bytes);
        QCOMPARE(ids.front(), first);
        QCOMPARE(ids[1], second);
        QCOMPARE(ids.back(), last);
        QBuffer device(&bytes);
        QVERIFY(device.open(QIODevice::ReadOnly));
        QCOMPARE(ColorSetCodec::read(device), ids);
    }
    void readsNoMoreThanNeeded()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("huge.cst")));
        QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        QVERIFY(file.resize(Q_INT64_C(1) << 34)); // sparse
        ColorSetCodec::read(file);
        QCOMPARE(file.pos(), 600);
    }
    void everySizeRoundTrips()
    {
        RandomBytes random("colour-set bytes");
        for (int round = RandomBytes::rounds(2000); round > 0; --round) {
            const QByteArray bytes = random.bytes(700);
            const QByteArray expected = bytes.left(600).leftJustified(600, '\0');
            QCOMPARE(ColorSetCodec::encode(ColorSetCodec::decode(bytes)), expected);
        }
    }
};

QTEST_GUILESS_MAIN(tst_ColorSetCodec)
#include "tst_colorsetcodec.moc"
