// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <guibase/notifications/popup/popuplayout.h>

using Heights = QList<quint32>;

class tst_PopupLayout : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void plans_data()
    {
        TestRows<int, Heights, int, qint64> row; // area, newest first, shown, offset of "more"
        row("none", 100, {}, 0, 0);
        row("all fit exactly", 100, {40, 47}, 2, 0);
        row("one pixel too high", 100, {40, 48}, 1, 46);
        row("room for the rest counts", 100, {40, 30, 30}, 1, 46);
        row("newest is too high", 100, {400, 10}, 1, 73);
        row("floods do not overflow", 100, Heights(5000, 0xffffff), 1, 73);
        row("area lower than anything", 5, {10, 10}, 1, 0);
    }
    void plans()
    {
        const auto& [area, heights, shown, more] = TestRows<int, Heights, int, qint64>::fetch();
        const PopupLayout::Plan plan = PopupLayout::plan(area, heights, 20);
        QCOMPARE(plan.shownCount, shown);
        QCOMPARE(plan.moreOffset, more);
        QCOMPARE(plan.offsets.size(), heights.size());
        if (plan.offsets.size() > 1)
            QCOMPARE(plan.offsets.at(1), heights.first() + 6LL);
    }
    void places()
    {
        const QRect area(100, 50, 1000, 800);
        QCOMPARE(PopupLayout::position(area, {400, 100}, 0), QPoint(1099 - 7 - 399, 849 - 106));
        QCOMPARE(PopupLayout::position(area, {400, 100}, 106).y(), 849 - 106 - 106);
        QVERIFY(PopupLayout::position(area, {400, 100}, qint64{1} << 40).y() < 0);
        QCOMPARE(PopupLayout::opacity(800, 100, 106), 1.0);
        QCOMPARE(PopupLayout::opacity(800, 94, 500), 0.5);
        QCOMPARE(PopupLayout::opacity(800, 94, 5000), 0.0);
    }
};

QTEST_MAIN(tst_PopupLayout)
#include "tst_popuplayout.moc"
