// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <radiopanes/colors/colormap.h>

#include <QColor>

#include <cmath>

using namespace RadioPanes;

class tst_ColorMap : public GuardedTest
{
    Q_OBJECT

    /// Lightness as CIE defines it, 0 to 100.
    static double lightness(QRgb color)
    {
        const auto light = [](int part) {
            const double value = part / 255.0;
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        const double luminance = 0.2126 * light(qRed(color)) + 0.7152 * light(qGreen(color)) +
                                 0.0722 * light(qBlue(color));
        return luminance > 0.008856 ? 116 * std::cbrt(luminance) - 16 : 903.3 * luminance;
    }

private Q_SLOTS:
    void equalStepsLookEqual()
    {
        for (const ColorMap map : {ColorMap::Even, ColorMap::Fire, ColorMap::Gray}) {
            const ColorRamp ramp = colorRamp(map);
            const double low = lightness(ramp.front());
            const double step = (lightness(ramp.back()) - low) / (ramp.size() - 1);
            QVERIFY(step > 0.3);
            for (size_t i = 0; i < ramp.size(); ++i) {
                const double wanted = low + static_cast<double>(i) * step;
                QVERIFY2(std::abs(lightness(ramp[i]) - wanted) < 1, // of 100: bytes are coarse
                         qPrintable(QStringLiteral("%1 %2").arg(colorMapName(map)).arg(i)));
            }
        }
        QVERIFY(colorRamp(ColorMap::Even) != colorRamp(ColorMap::Fire));
    }
};

QTEST_MAIN(tst_ColorMap)
#include "tst_colormap.moc"
