// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <guibase/docks/dockicons.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>

class tst_DockIcons : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void areCrispAndDifferent()
    {
        const QRgb ink = QApplication::palette().color(QPalette::ButtonText).rgba();
        for (const int side : {16, 24, 32}) {
            QList<QImage> seen;
            for (int kind = 0; kind <= int(DockIcon::TileBottom); ++kind) {
                const QImage image = makeDockIcon(DockIcon(kind)).pixmap(side).toImage();
                QCOMPARE(image.size(), QSize(side, side));
                for (int i = 0; i < side * side; ++i) {
                    const QRgb pixel = image.pixel(i % side, i / side);
                    QVERIFY(pixel == ink || qAlpha(pixel) == 0);
                }
                QVERIFY(!seen.contains(image));
                seen << image;
            }
        }
    }
    void followThePaletteAndTheState()
    {
        const QIcon icon = makeDockIcon(DockIcon::TileLeft, DockIcon::TileRight);
        QVERIFY(icon.pixmap(16, QIcon::Normal, QIcon::On).toImage() ==
                makeDockIcon(DockIcon::TileRight).pixmap(16).toImage());
        const QPalette light = QApplication::palette();
        QPalette dark(Qt::black);
        dark.setColor(QPalette::ButtonText, Qt::yellow);
        QApplication::setPalette(dark);
        const QColor frame = icon.pixmap(16).toImage().pixelColor(1, 1);
        QApplication::setPalette(light);
        QCOMPARE(frame, QColor(Qt::yellow));
    }
    void paintOneDevicePixelPerPixel()
    {
        QImage screen(48, 48, QImage::Format_ARGB32_Premultiplied);
        screen.fill(Qt::transparent);
        screen.setDevicePixelRatio(1.5);
        const QIcon icon = makeDockIcon(DockIcon::TabifyTop);
        QPainter painter(&screen);
        icon.paint(&painter, QRect(0, 0, 16, 16));
        painter.end();
        screen.setDevicePixelRatio(1);
        QCOMPARE(screen.copy(0, 0, 24, 24).convertToFormat(QImage::Format_ARGB32),
                 icon.pixmap(24).toImage().convertToFormat(QImage::Format_ARGB32));
    }
};

QTEST_MAIN(tst_DockIcons)
#include "tst_dockicons.moc"
