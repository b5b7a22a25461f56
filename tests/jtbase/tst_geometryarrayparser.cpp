// SPDX-License-Identifier: MIT
#include "support/randombytes.h"
#include "support/testguard.h"

#include <jtbase/geometryarrayparser.h>

#include <QTest>

#include <limits>
#include <memory>

using Rows = QList<QList<int>>;

class GeometryArrayParserTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_guard = std::make_unique<TestGuard>(); }
    void cleanup()
    {
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }
    void rows_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<Rows>>("expected");
        const auto row = [](const char* text, const std::optional<Rows>& expected) {
            QTest::addRow("<%s>", text) << QString::fromLatin1(text) << expected;
        };
        row("", Rows{});
        row("120,0,0;80,1,1;", Rows{{120, 0, 0}, {80, 1, 1}});
        row(" ;; -5 , 6 ; 7", Rows{{-5, 6}, {7}});
        row("2147483647,-2147483648;", Rows{{2147483647, std::numeric_limits<int>::min()}});
        for (const char* broken :
             {"2147483648;", "1,,2;", "1,;", ",;", "1.5;", "0x5;", "1 2;", "a;"})
            row(broken, std::nullopt);
    }
    void rows()
    {
        QFETCH(QString, text);
        QFETCH(std::optional<Rows>, expected);
        const std::optional<Rows> rows = GeometryArrayParser::parseRows(text);
        QCOMPARE(rows, expected);
        if (rows)
            QCOMPARE(GeometryArrayParser::parseRows(GeometryArrayParser::formatRows(*rows)), rows);
    }
    void limits()
    {
        const QString row = QStringLiteral("1;");
        QVERIFY(GeometryArrayParser::parseRows(row.repeated(GeometryArrayParser::maximumRows)));
        QVERIFY(
            !GeometryArrayParser::parseRows(row.repeated(GeometryArrayParser::maximumRows + 1)));
        const QString more = QStringLiteral(",1");
        const int extra = GeometryArrayParser::maximumNumbersPerRow - 1;
        QVERIFY(GeometryArrayParser::parseRows(QLatin1Char('1') + more.repeated(extra)));
        QVERIFY(!GeometryArrayParser::parseRows(QLatin1Char('1') + more.repeated(extra + 1)));
    }
    void lists()
    {
        const QList<int> sizes{200, -350};
        QCOMPARE(GeometryArrayParser::formatList(sizes), QStringLiteral("200;-350;"));
        QCOMPARE(GeometryArrayParser::parseList(QStringLiteral("200;-350;")), std::optional(sizes));
        QVERIFY(!GeometryArrayParser::parseList(QStringLiteral("200;350,1;")));
        QVERIFY(!GeometryArrayParser::parseList(QStringLiteral("200;x;")));
    }
    void hostileTexts()
    {
        RandomBytes random("geometry texts");
        const QByteArray valid("120,0,0;80,1,1;-2147483648,2147483647,0;");
        for (int round = RandomBytes::rounds(2000); round > 0; --round) {
            const QByteArray bytes = round % 4 == 0 ? random.bytes(64) : random.mutated(valid);
            const auto rows = GeometryArrayParser::parseRows(QString::fromUtf8(bytes));
            if (!rows)
                continue;
            for (const QList<int>& row : *rows)
                QVERIFY(!row.isEmpty() && row.size() <= GeometryArrayParser::maximumNumbersPerRow);
            QCOMPARE(GeometryArrayParser::parseRows(GeometryArrayParser::formatRows(*rows)), rows);
        }
    }

private:
    std::unique_ptr<TestGuard> m_guard;
};

QTEST_GUILESS_MAIN(GeometryArrayParserTest)
#include "tst_geometryarrayparser.moc"
