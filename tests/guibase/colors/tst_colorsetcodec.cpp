// SPDX-License-Identifier: MIT
#include <guibase/colors/colorsetcodec.h>

#include "support/randombytes.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

class tst_ColorSetCodec : public QObject
{
    Q_OBJECT
private Q_SLOTS:
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
            const ColorSetCodec::Ids ids = ColorSetCodec::decode(bytes);
            QCOMPARE(ColorSetCodec::encode(ids), expected);
            QCOMPARE(ids[1], qFromLittleEndian<qint32>(expected.constData() + 4));
            QBuffer device;
            device.setData(bytes);
            QVERIFY(device.open(QIODevice::ReadOnly));
            QCOMPARE(ColorSetCodec::read(device), ids);
        }
    }
};

QTEST_GUILESS_MAIN(tst_ColorSetCodec)
#include "tst_colorsetcodec.moc"
