// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/records/screenplacement.h>
#include <guibase/records/staterecord.h>

using StateRecord::Layouts;

namespace {

const QString tag = QStringLiteral("DG906NC44LjY=");

QString tagged(const QByteArray& packed)
{
    return tag + QString::fromLatin1(packed.toBase64());
}

QByteArray unpacked(const QString& record)
{
    return qUncompress(QByteArray::fromBase64(record.mid(tag.size()).toLatin1()));
}

std::optional<Layouts> decoded(const QString& record)
{
    const auto reading = StateRecord::decode(record);
    return reading ? std::optional(reading->layouts) : std::nullopt;
}

} // namespace

class tst_LayoutRecords : public GuardedTest
{
    Q_OBJECT
    using Placements = TestRows<QRect, QList<QRect>, QRect>;

private Q_SLOTS:
    void stateFormat()
    {
        const Layouts layouts{{0, QByteArray(1, '\xff')}, {7, {}}, {0xffffffff, "layout"}};
        const QString record = StateRecord::encode(layouts);
        QCOMPARE(unpacked(record).first(16).toHex(' '),
                 QByteArray("00 00 00 03 00 00 00 00 00 00 00 04 00 66 00 66"));
        QVERIFY(decoded(record) == layouts);
        QVERIFY(decoded(StateRecord::encode({})) == Layouts());
    }
    /// What is written must be readable, whatever there is to write, and hold all that it can.
    void tooMuch()
    {
        RandomBytes random("texts");
        Layouts layouts;
        for (quint32 mode = 0; mode < StateRecord::maximumModes + 104; ++mode)
            layouts[mode] = "layout";
        auto read = decoded(StateRecord::encode(layouts));
        QCOMPARE(read ? read->size() : 0, std::size_t(StateRecord::maximumModes));
        for (quint32 mode = 0; mode < 8; ++mode) // too large when packed
            layouts[mode] = random.bytes(80'000);
        read = decoded(StateRecord::encode(layouts));
        QVERIFY(read && read->size() >= 2 && read->contains(0));
        QByteArray packed(StateRecord::maximumPackedBytes + 1, 'x');
        packed.replace(0, 4, QByteArray::fromHex("00000010")); // claims to be small
        QVERIFY(!decoded(tagged(packed)));
        QVERIFY(!decoded(StateRecord::encode({{0, "one"}}) + QChar(0x4e00)));
    }
    /// Texts and streams are damaged in turn; what is read must be written and read as the same.
    void mutatedStates()
    {
        RandomBytes random("state records");
        const QString good = StateRecord::encode({{0, "one"}, {9, "other"}});
        const QByteArray stream = unpacked(good);
        // The toolkit complains about each text that does not inflate.
        const QtMessageHandler former =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        int wrong = 0;
        for (int round = 0; round < RandomBytes::rounds(2000); ++round) {
            const auto layouts =
                decoded(round % 2 == 0 ? QString::fromLatin1(random.mutated(good.toLatin1()))
                                       : tagged(qCompress(random.mutated(stream))));
            wrong += layouts && decoded(StateRecord::encode(*layouts)) != layouts;
        }
        qInstallMessageHandler(former);
        QCOMPARE(wrong, 0);
    }
    void screenPlacement_data()
    {
        // The window, the screens, and where the window goes.
        Placements row;
        const QRect left(0, 0, 1000, 800), right(1000, 0, 1000, 800), across(900, 0, 500, 800);
        const QList<QRect> both{left, right};
        const QRect window(1200, 100, 500, 400), moved(500, 100, 500, 400);
        row("stays", window, both, window);
        row("across both", across, both, across);
        row("whole screen", right, both, right);
        row("screen gone", window, {left}, moved);
        row("nearest of two", QRect(2500, -900, 500, 400), both, QRect(1500, 0, 500, 400));
        row("too large", QRect(-50, -50, 3000, 900), {left}, left);
        row("below the edge", QRect(10, 700, 500, 400), both, QRect(10, 400, 500, 400));
        row("no screen", window, {}, window);
        row("empty screen first", window, {QRect(), left}, moved);
        row("far away", QRect(1 << 20, 1 << 20, 500, 400), both, QRect(1500, 400, 500, 400));
    }
    void screenPlacement()
    {
        const auto& [window, areas, expected] = Placements::fetch();
        QCOMPARE(ScreenPlacement::reachable(window, areas), expected);
        QCOMPARE(ScreenPlacement::reachable(expected, areas), expected);
        QVERIFY(ScreenPlacement::isReachable(expected, areas));
    }
    void windowsThatCanBeTaken()
    {
        const QList<QRect> screens{QRect(0, 0, 1000, 800)};
        const std::pair<QRect, bool> windows[] = {{QRect(900, 700, 500, 400), true},
                                                  {QRect(-450, 700, 500, 400), false},
                                                  {QRect(10, -30, 500, 400), false},
                                                  {QRect(10, 795, 500, 400), false},
                                                  {QRect(970, 10, 30, 400), true}};
        for (const auto& [window, isReachable] : windows)
            QCOMPARE(ScreenPlacement::isReachable(window, screens), isReachable);
    }
};

QTEST_GUILESS_MAIN(tst_LayoutRecords)
#include "tst_layoutrecords.moc"
