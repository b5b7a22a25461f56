// SPDX-License-Identifier: MIT
#include "centre/bandview.h"
#include "support/checked.h"
#include "support/guardedtest.h"

#include <radiopanes/colors/panecolors.h>
#include <radiopanes/panes/spectrumpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <guibase/colors/colorset.h>
#include <guibase/services/guibase.h>

#include <cmath>

using namespace bandmonitor;

namespace {

constexpr double bandLow = 100e6;
constexpr double binHz = 1e3;
constexpr int bins = 1000;
constexpr int sweeps = 40;

/// Noise at -100 dB and one line at -20 dB, which moves up by one bin with each sweep.
std::shared_ptr<const Recording> movingLine()
{
    auto recording = std::make_shared<Recording>();
    for (int sweep = 0; sweep < sweeps; ++sweep) {
        std::vector<float> levels(bins, -100.0F);
        levels[static_cast<size_t>(500 + sweep)] = -20.0F;
        const Segment segment{bandLow, binHz, 1, levels};
        recording->append(static_cast<quint64>(sweep) * 1'000'000, {&segment, 1});
    }
    return recording;
}

double centreOfBin(int bin)
{
    return bandLow + (bin + 0.5) * binHz;
}

} // namespace

class tst_BandView : public GuardedTest
{
    Q_OBJECT
    using MegaHertz = std::pair<double, double>;
    using Spans = TestRows<MegaHertz, std::vector<MegaHertz>, MegaHertz>;
    std::unique_ptr<BandView> m_pane;

    VisibleBand& visibleBand() { return m_pane->visibleBand(); }
    int spectrumX(double hertz) { return int(m_pane->spectrum().positionOf(hertz)); }
    QRgb waterfallPixel(double hertz, int line)
    {
        const int x = int(m_pane->waterfall().positionOf(hertz));
        return m_pane->waterfall().grab().toImage().pixel(x, line * WaterfallPane::linePixels);
    }

    void prepare() override
    {
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Mega);
        m_pane = std::make_unique<BandView>();
        m_pane->resize(1100, 500);
        m_pane->setRecording(movingLine());
        m_pane->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pane.get()));
        for (int sweep = 0; sweep < sweeps; ++sweep)
            m_pane->showSweep(sweep, sweep - 1);
        visibleBand().setCursor(bandLow);
    }

    void tidy() override { m_pane.reset(); }

    void drag(Qt::MouseButton button, int from, int to)
    {
        QTest::mousePress(&m_pane->spectrum(), button, {}, QPoint(from, 50));
        QTest::mouseMove(&m_pane->spectrum(), QPoint(to, 50));
        QTest::mouseRelease(&m_pane->spectrum(), button, {}, QPoint(to, 50));
    }

private Q_SLOTS:
    void readOutFollowsMouseAndKeys()
    {
        SpectrumPane& pane = m_pane->spectrum();
        const double line = centreOfBin(500 + sweeps - 1);
        visibleBand().zoom(12, line); // several pixels for each bin
        QTest::mouseMove(&pane, QPoint(spectrumX(line), 50));
        QVERIFY(pane.readOut().first().contains(QLatin1String("-20.0 dB")));
        QTest::keyClick(&pane, Qt::Key_Right, Qt::ControlModifier);
        QVERIFY(visibleBand().cursor() > line);
        // The line of an earlier sweep is in the hold maximum only.
        visibleBand().setCursor(centreOfBin(510));
        QVERIFY(pane.readOut().first().contains(QLatin1String("-100.0 dB")));
        QVERIFY(pane.readOut().first().contains(QLatin1String("hold -20.0 dB")));
        m_pane->resetHold();
        QVERIFY(!pane.readOut().first().contains(QLatin1String("-20.0 dB")));
        m_pane->showSweep(sweeps - 1, 9);
        QVERIFY(pane.readOut().first().contains(QLatin1String("hold -20.0 dB")));
        m_pane->showSweep(5, -1); // back to a time when it was still to come
        QVERIFY(!pane.readOut().first().contains(QLatin1String("-20.0 dB")));
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Kilo);
        QVERIFY(pane.readOut().first().contains(QLatin1String(" kHz")));
    }

    void clicksSetAndRemovePins()
    {
        SpectrumPane& pane = m_pane->spectrum();
        QTest::mouseClick(&pane, Qt::LeftButton, {}, QPoint(300, 50));
        QTest::mouseClick(&m_pane->waterfall(), Qt::LeftButton, {}, QPoint(600, 50));
        QCOMPARE(visibleBand().pins().size(), 2u);
        QCOMPARE(pane.readOut().size(), 3);
        QTest::mouseClick(&pane, Qt::LeftButton, {}, QPoint(300 + BandPane::pinReach - 1, 50));
        QTRY_COMPARE(visibleBand().pins().size(), 1u); // no double click has followed
        QVERIFY(std::abs(pane.positionOf(visibleBand().pins().front().hertz) - 600) < 1);
        // A drag moves the view and sets no pin.
        visibleBand().zoom(4, centreOfBin(500));
        const double low = visibleBand().low();
        drag(Qt::LeftButton, 300, 400);
        QVERIFY(visibleBand().low() < low);
        QCOMPARE(visibleBand().pins().size(), 1u);
    }

    void viewStaysInTheBand()
    {
        const double span = visibleBand().bandHigh() - visibleBand().bandLow();
        visibleBand().zoom(1e9, bandLow);
        QVERIFY(visibleBand().high() - visibleBand().low() >= binHz);
        visibleBand().pan(-1e9);
        QCOMPARE(visibleBand().low(), bandLow);
        visibleBand().pan(1e12);
        QCOMPARE(visibleBand().high(), visibleBand().bandHigh());
        visibleBand().stepCursor(-100000, 10);
        QVERIFY(visibleBand().cursor() >= visibleBand().low() &&
                visibleBand().cursor() <= visibleBand().high());
        visibleBand().zoom(std::nan(""), 0);
        visibleBand().setVisible(visibleBand().bandHigh() + 1, visibleBand().bandHigh() + 2);
        QVERIFY(visibleBand().high() <= visibleBand().bandHigh());
        visibleBand().zoom(1e-9, bandLow);
        QCOMPARE(visibleBand().high() - visibleBand().low(), span);
        drag(Qt::RightButton, 200, 100);
        QVERIFY(visibleBand().high() - visibleBand().low() < span / 2);
    }

    void waterfallShowsTheSweepsUpToTheCurrentOne()
    {
        WaterfallPane& pane = m_pane->waterfall();
        const QRgb loud = pane.colorOf(-20);
        const auto lineAtTop = [&](int newest) {
            visibleBand().setVisible(centreOfBin(470), centreOfBin(560));
            for (int line = 0; line < 20; ++line) {
                QCOMPARE(waterfallPixel(centreOfBin(500 + newest - line), line), loud);
                QVERIFY(waterfallPixel(centreOfBin(505 + newest - line), line) != loud);
            }
        };
        CHECKED(lineAtTop(sweeps - 1));
        QCOMPARE(pane.sweepAt(sweeps * WaterfallPane::linePixels), -1);
        m_pane->showSweep(24, -1);
        CHECKED(lineAtTop(24));
        m_pane->showSweep(30, 24);
        CHECKED(lineAtTop(30));
        // Resizing keeps what was shown; a pane lower than its history wraps around.
        m_pane->resize(800, 200);
        CHECKED(lineAtTop(30));
        for (int sweep = 31; sweep < sweeps; ++sweep)
            m_pane->showSweep(sweep, sweep - 1);
        m_pane->resize(1200, 600);
        CHECKED(lineAtTop(sweeps - 1));
    }

    void viewFollowsTheSpan_data()
    {
        Spans row; // what the user shows of 100 to 110, two more sweeps, what is shown then; in MHz
        row("there and back", {}, {{105, 115}, {100, 110}}, {100, 110});
        row("a longer one", {}, {{100, 110}, {95, 112}}, {95, 112});
        row("one that was cut", {}, {{100, 104}, {100, 110}}, {100, 110});
        row("the user's part stays", {101, 103}, {{98, 111}, {102, 112}}, {101, 103});
        row("but not without sweeps", {101, 103}, {{104, 114}, {104, 114}}, {104, 114});
        row("and not for ever", {101, 103}, {{104, 114}, {100, 110}}, {100, 110});
    }

    void viewFollowsTheSpan()
    {
        const auto& [chosen, spans, expected] = Spans::fetch();
        constexpr double mega = 1e6;
        const auto recording = std::make_shared<Recording>();
        const auto take = [&](const MegaHertz& span) {
            const std::vector<float> levels(100, -100.0F);
            const Segment segment{span.first * mega, (span.second - span.first) * mega / 100, 1,
                                  levels};
            recording->append(static_cast<quint64>(recording->count()), {&segment, 1});
            if (recording->count() == 1)
                m_pane->setRecording(recording);
            m_pane->showSweep(recording->count() - 1, recording->count() - 2);
            m_pane->recordingGrown();
        };
        const auto shown = [this] {
            return MegaHertz(std::round(visibleBand().low() / 1e3) / 1e3,
                             std::round(visibleBand().high() / 1e3) / 1e3);
        };
        take({100, 110});
        if (chosen.second > 0)
            visibleBand().setVisible(chosen.first * mega, chosen.second * mega);
        for (const MegaHertz& span : spans)
            take(span);
        QCOMPARE(shown(), expected);
        QVERIFY(visibleBand().cursor() >= visibleBand().low());
        // A look back stays where it is.
        m_pane->showSweep(0, -1);
        const std::vector<float> levels(100, -100.0F);
        const Segment segment{200 * mega, mega, 1, levels};
        recording->append(9, {&segment, 1});
        m_pane->recordingGrown();
        QVERIFY(visibleBand().low() < 105 * mega && !m_pane->isFollowingSpan());
    }

    void coloursAreTakenAnew()
    {
        const QRgb before = m_pane->waterfall().colorOf(-100);
        ColorSet& colors = ColorSet::Instance();
        colors.SetColor(IColorBase::DrawPaneBackgroundLow, QColor(Qt::blue), true);
        QVERIFY(m_pane->waterfall().colorOf(-100) != before);
        QCOMPARE(waterfallPixel(centreOfBin(10), 3), QColor(Qt::blue).rgb());
        m_pane->spectrum().setTraceVisible(Trace::Maximum, false);
        const QImage spectrum = m_pane->spectrum().grab().toImage();
        QVERIFY(spectrum.pixelColor(20, spectrum.height() - 3).blue() > 240); // end of a gradient
        const auto corner = [this] { return m_pane->grab().toImage().pixelColor(0, 0); };
        const QColor dark(40, 40, 40);
        m_pane->setPalette(QPalette(dark, dark));
        QCOMPARE(corner(), paneColor(PaneSlot::LevelAxisBackground)); // the user's set
        colors.slotRestoreFactoryColors();
        QCOMPARE(corner(), dark);
        m_pane->setPalette(QPalette());
        QCOMPARE(corner(), paneColor(PaneSlot::LevelAxisBackground));
        GuiBase::Instance().emit_signalColorsChanged();
        QCOMPARE(m_pane->waterfall().colorOf(-100), before);
    }
};

QTEST_MAIN(tst_BandView)
#include "tst_bandview.moc"
