// SPDX-License-Identifier: MIT
#include "support/randombytes.h"

#include <radiopanes/panes/spectrumraster_p.h>

#include <QRegion>
#include <QTest>

using namespace RadioPanes;

/// Drawing what changes, by rows, must give what drawing each column by itself gives.
class tst_SpectrumRaster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matchesColumnByColumn()
    {
        constexpr QRgb ground = qRgb(0, 0, 0);
        constexpr QRgb shadow = qRgb(200, 0, 0); // at full opacity, to tell it from the ground
        constexpr QRgb grid = qRgb(0, 0, 90);
        const std::array colors{qRgb(0, 255, 0), qRgb(255, 255, 0)};
        RandomBytes random("raster");
        SpectrumRaster raster; // draws what changes
        QImage before;
        int width = 0;
        int height = 0;
        for (int round = RandomBytes::rounds(200); round > 0; --round) {
            if (width == 0 || random.below(4) == 0) {
                width = 1 + random.below(300);
                height = 1 + random.below(120);
            }
            const auto rows = [&] {
                std::vector<int> result(static_cast<size_t>(width));
                const int first = random.below(height + 20) - 10;
                for (int& row : result)
                    row = first + random.below(1 + height / 4);
                return result;
            };
            const std::vector<int> shadowTop = rows();
            const std::array tops{rows(), rows()};
            const std::array bottoms{rows(), rows()};
            const std::array lines{SpectrumRaster::Line{tops[0], bottoms[0], colors[0]},
                                   SpectrumRaster::Line{tops[1], bottoms[1], colors[1]}};
            const std::vector<int> gridRows{height / 3, height / 2};
            const std::vector<int> gridColumns{width / 3, width - 1};
            SpectrumRaster::Content content{ground, ground, grid, gridRows, gridColumns,
                                            {},     shadow, 1,    lines};
            const bool hasShadow = random.below(8) != 0;
            if (random.below(4) == 0)
                content.lines = {};
            if (hasShadow)
                content.shadowTop = shadowTop;
            const QImage image = raster.draw({width, height}, content);
            QRegion changed;
            for (const QRect& rect : raster.changes())
                changed += rect;
            const bool isSameSize = before.size() == image.size();
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) {
                    const auto column = static_cast<size_t>(x);
                    const bool isDot = (x % 3 == 0 && (y == gridRows[0] || y == gridRows[1])) ||
                                       (y % 3 == 0 && (x == gridColumns[0] || x == gridColumns[1]));
                    QRgb expected = isDot ? grid : ground;
                    if (hasShadow && y >= shadowTop[column])
                        expected = shadow;
                    for (size_t line = 0; line < content.lines.size(); ++line) {
                        if (y >= tops[line][column] && y <= bottoms[line][column])
                            expected = colors[line];
                    }
                    QCOMPARE(image.pixel(x, y), expected);
                    QVERIFY(changed.contains(QPoint(x, y)) ||
                            (isSameSize && before.pixel(x, y) == expected));
                }
            }
            before = image.copy();
        }
    }
};

QTEST_GUILESS_MAIN(tst_SpectrumRaster)
#include "tst_spectrumraster.moc"
