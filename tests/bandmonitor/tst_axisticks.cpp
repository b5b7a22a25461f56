// SPDX-License-Identifier: MIT
#include "panes/axisticks.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace bandmonitor;

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
private Q_SLOTS:
    void step_data()
    {
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("step");
        QTest::newRow("one stays") << 1.0 << 1.0;
        QTest::newRow("up to two") << 1.01 << 2.0;
        QTest::newRow("up to five") << 2.5 << 5.0;
        QTest::newRow("up to ten") << 5.1 << 10.0;
        QTest::newRow("reached but for rounding") << 0.1 + 0.2 - 0.1 << 0.2;
        QTest::newRow("small") << 3e-7 << 5e-7;
        QTest::newRow("large") << 1.9e9 << 2e9;
        QTest::newRow("zero") << 0.0 << 0.0;
        QTest::newRow("negative") << -1.0 << 0.0;
        QTest::newRow("no number") << std::nan("") << 0.0;
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 0.0;
    }

    void step()
    {
        QFETCH(double, minimum);
        QFETCH(double, step);
        QVERIFY(std::abs(niceStep(minimum) - step) <= step * 1e-12);
    }

    void layout_data()
    {
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<int>("pixels");
        QTest::addColumn<double>("smallestStep");
        QTest::addColumn<bool>("anyTick");
        QTest::newRow("band") << 80e6 << 110e6 << 900 << 1.0 << true;
        QTest::newRow("narrow pane") << 80e6 << 110e6 << 120 << 1.0 << true;
        QTest::newRow("deep zoom, coarse texts") << 88.1e6 << 88.1035e6 << 900 << 1000.0 << true;
        QTest::newRow("below the resolution") << 88.1001e6 << 88.1002e6 << 900 << 1000.0 << false;
        QTest::newRow("across zero") << -75.0 << 20.0 << 300 << 1.0 << true;
        QTest::newRow("wider than the axis") << 1e12 << 2e12 << 20 << 1.0 << false;
        QTest::newRow("reversed") << 2.0 << 1.0 << 300 << 1.0 << false;
        QTest::newRow("empty") << 2.0 << 2.0 << 300 << 1.0 << false;
        QTest::newRow("no pixels") << 1.0 << 2.0 << 0 << 1.0 << false;
        QTest::newRow("no number") << std::nan("") << 2.0 << 300 << 1.0 << false;
        QTest::newRow("endless") << -1e308 << 1.7e308 << 300 << 1.0 << false;
    }

    void layout()
    {
        QFETCH(double, low);
        QFETCH(double, high);
        QFETCH(int, pixels);
        QFETCH(double, smallestStep);
        QFETCH(bool, anyTick);
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
