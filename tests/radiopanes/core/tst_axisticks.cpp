// SPDX-License-Identifier: MIT
#include "support/testrows.h"
#include <radiopanes/core/axisticks.h>

#include <cmath>

using namespace RadioPanes;

namespace {

constexpr int characterWidth = 7;

QString plain(double value)
{
    return QString::number(value, 'f', 0);
}

int extentOf(const QString& label)
{
    return static_cast<int>(label.size()) * characterWidth;
}

} // namespace

class tst_AxisTicks : public QObject
{
    Q_OBJECT
    using Axes = TestRows<double, double, int, double, bool>;

private Q_SLOTS:
    void steps()
    {
        const std::vector<std::pair<double, double>> expected{
            {1, 1},       {1.01, 2},    {2.5, 5},   {5.1, 10}, {0.1 + 0.2 - 0.1, 0.2},
            {3e-7, 5e-7}, {1.9e9, 2e9}, {0.0, 0.0}, {-1, 0},   {qQNaN(), 0.0},
            {qInf(), 0.0}};
        for (const auto& [minimum, step] : expected)
            QVERIFY2(std::abs(niceStep(minimum) - step) <= step * 1e-12,
                     qPrintable(QString::number(minimum)));
    }

    void layout_data()
    {
        Axes row; // low, high, pixels, smallest step, whether there is a tick
        row("band", 80e6, 110e6, 900, 1, true);
        row("narrow pane", 80e6, 110e6, 120, 1, true);
        row("deep zoom, coarse texts", 88.1e6, 88.1035e6, 900, 1000, true);
        row("below the resolution", 88.1001e6, 88.1002e6, 900, 1000, false);
        row("across zero", -75, 20, 300, 1, true);
        row("wider than the axis", 1e12, 2e12, 20, 1, false);
        row("multiples as coarse as numbers", 1e17, 1e17 + 64, 900, 1, true);
        row("empty", 2, 2, 300, 1, false);
        row("no pixels", 1, 2, 0, 1, false);
        row("no number", qQNaN(), 2, 300, 1, false);
        row("step too large for a number", 1e39, 1e308, 23, 1, false);
        row("endless", -1e308, 1.7e308, 300, 1, false);
    }

    void layout()
    {
        const auto& [low, high, pixels, smallestStep, anyTick] = Axes::fetch();
        constexpr int gap = 5;
        const auto ticks = layoutTicks({low, high, pixels}, smallestStep, gap, 0, plain, extentOf);
        QCOMPARE(!ticks.empty(), anyTick);
        double end = -gap;
        for (const AxisTick& tick : ticks) {
            const double half = extentOf(tick.label) / 2.0;
            QVERIFY2(tick.position - half >= end + gap - 1, "labels overlap");
            QVERIFY(tick.position - half >= 0);
            end = tick.position + half;
            QVERIFY(end <= pixels);
            QCOMPARE(tick.label, plain(tick.value));
            // Two ticks never have the same text.
            QVERIFY(std::abs(std::remainder(tick.value, smallestStep)) < 1e-6);
        }
    }
};

QTEST_GUILESS_MAIN(tst_AxisTicks)
#include "tst_axisticks.moc"
