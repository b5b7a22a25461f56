// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <jtbase/geometryarrayparser.h>

#include <limits>

using Rows = QList<QList<int>>;

class tst_GeometryArrayParser : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void rows()
    {
        const std::pair<const char*, std::optional<Rows>> texts[] = {
            {"", Rows{}},
            {" ;; -5 , 6 ; 7", Rows{{-5, 6}, {7}}},
            {"2147483647,-2147483648;", Rows{{2147483647, std::numeric_limits<int>::min()}}},
        };
        for (const auto& [text, expected] : texts) {
            const auto rows = GeometryArrayParser::parseRows(QString::fromLatin1(text));
            QCOMPARE(rows, expected);
            QCOMPARE(GeometryArrayParser::parseRows(GeometryArrayParser::formatRows(*rows)), rows);
        }
        for (const char* broken :
             {"2147483648;", "1,,2;", "1,;", ",;", "1.5;", "0x5;", "1 2;", "a;"})
            QVERIFY2(!GeometryArrayParser::parseRows(QString::fromLatin1(broken)), broken);
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
        const QString text = GeometryArrayParser::formatList(sizes);
        QCOMPARE(text, QStringLiteral("200;-350;"));
        QCOMPARE(GeometryArrayParser::parseList(text), std::optional(sizes));
        QVERIFY(!GeometryArrayParser::parseList(QStringLiteral("200;350,1;")));
        QVERIFY(!GeometryArrayParser::parseList(QStringLiteral("200;x;")));
    }
};

QTEST_GUILESS_MAIN(tst_GeometryArrayParser)
#include "tst_geometryarrayparser.moc"
