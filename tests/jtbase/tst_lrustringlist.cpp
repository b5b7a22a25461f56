// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <jtbase/lrustringlist.h>

namespace {

QStringList letters(const char* text)
{
    return QString::fromLatin1(text).split(QString(), Qt::SkipEmptyParts);
}

} // namespace

class tst_LruStringList : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void keepsDistinctStringsInOrder()
    {
        LruStringList list(3);
        for (const char* text : {"a", "b", "c", "d", "a", ""})
            list.Append(QString::fromLatin1(text));
        QCOMPARE(list.GetStrings(), letters("abc"));
        QCOMPARE(list.Select(QStringLiteral("d")), QStringLiteral("d"));
        QCOMPARE(list.Select(2), QStringLiteral("b"));
        QCOMPARE(list.GetStrings(), letters("bda"));
        // The argument may be an entry of the list itself.
        QCOMPARE(list.Select(list.GetStrings().at(2)), QStringLiteral("a"));
        QCOMPARE(list.Select(QStringLiteral("A")), QStringLiteral("A"));
        for (int index : {-1, 3})
            QVERIFY(list.Select(index).isEmpty() && !list.Erase(index) && list.At(index).isEmpty());
        list.Select(QString());
        QCOMPARE(list.GetStrings(), letters("Aab"));
        QVERIFY(list.Erase(0) && list.Erase(QStringLiteral("b")));
        QCOMPARE(list.GetStrings(), letters("a"));
    }
    void staysEmptyWithoutRoom()
    {
        LruStringList list(-1);
        QCOMPARE(list.Select(QStringLiteral("a")), QStringLiteral("a"));
        QVERIFY(!list.Append(QStringLiteral("a")));
        QCOMPARE(list.GetCount(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_LruStringList)
#include "tst_lrustringlist.moc"
