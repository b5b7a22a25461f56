// SPDX-License-Identifier: MIT
#include "levelpanestest.h"
#include "support/randombytes.h"

#include <radiopanes/panes/waterfallpane.h>

#include <QBackingStore>
#include <QPainter>

using namespace RadioPanes;
using namespace LevelPanesTesting;

/// Also run with windows that are scaled.
class tst_PanePainting : public LevelPanesTest
{
    Q_OBJECT

private Q_SLOTS:
    void paintsAllThatHasChanged()
    {
        m_panes->resize(700, 500);
        m_panes->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_panes.get()));
        const auto shown = [this] {
            QCoreApplication::sendPostedEvents();
            // The screen would give less of a scaled window.
            const auto* pixels = dynamic_cast<QImage*>(m_panes->backingStore()->paintDevice());
            return pixels != nullptr ? pixels->copy() : QImage();
        };
        RandomBytes random("spectrum");
        QImage before;
        for (int round = 0; round < 40; ++round) {
            std::vector<float> sweep = levels();
            for (float& level : sweep)
                level += static_cast<float>(random.below(random.below(2) ? 60 : 5));
            QVERIFY(add(sweep));
            if (random.below(4) == 0)
                band().setCursor(centreOf(random.below(bins)));
            if (random.below(8) == 0)
                spectrum().setThreshold(-random.below(100));
            if (random.below(8) == 0)
                spectrum().setTraceVisible(Trace::Average, random.below(2) == 0);
            if (random.below(8) == 0)
                spectrum().setCaption(QString::number(random.below(1000)));
            if (random.below(8) == 0)
                spectrum().grab(); // draws the picture, but not on the screen
            const QImage image = shown();
            QVERIFY(!image.isNull() && image != before);
            before = image;
            spectrum().update();
            QCOMPARE(shown(), image);
        }
        for (int trace = 0; trace < traceCount; ++trace)
            spectrum().setTraceVisible(static_cast<Trace>(trace), false);
        m_panes->waterfall().setFocus();     // a frame would hide the line at the edge
        for (const int width : {700, 701}) { // scaled, the edge is between pixels
            m_panes->resize(width, 500);
            band().setCursor(band().bandHigh());
            before = shown();
            band().setCursor(centreOf(bins / 2));
            const QImage image = shown();
            spectrum().update();
            QCOMPARE(shown(), image);
        }
        QVERIFY(add(levels(-77)));
        before = shown();
        QVERIFY(add(levels(-55))); // only the read-out tells of it
        const QRect top(0, 0, before.width(), 100);
        QVERIFY(shown().copy(top) != before.copy(top));
    }
    void waterfallIsTheSameOnEveryCanvas()
    {
        for (int i = 0; i < 500; ++i) // the ring of lines goes round
            QVERIFY(add(levels(static_cast<float>(i % 50 - 100))));
        WaterfallPane& pane = m_panes->waterfall();
        const QRegion part = QRegion(10, 11, 300, 30) + QRegion(50, 60, 20, 80);
        const QPoint offset(7, 5);
        for (const int zoom : {0, 1}) {
            pane.setTimeZoom(zoom);
            const QImage picture = pane.grab().toImage(); // of a pixmap: the toolkit scales
            for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied,
                                      QImage::Format_RGB888}) {
                QImage wanted(pane.size(), format);
                wanted.fill(Qt::magenta);
                QImage canvas = wanted;
                pane.render(&canvas, offset, part);
                const QPoint move = offset - part.boundingRect().topLeft();
                QPainter painter(&wanted);
                painter.setClipRegion(part.translated(move));
                painter.drawImage(move, picture);
                painter.end();
                QVERIFY(canvas == wanted);
            }
        }
    }
};

QTEST_MAIN(tst_PanePainting)
#include "tst_panepainting.moc"
