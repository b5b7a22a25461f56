// SPDX-License-Identifier: MIT
#include "levelpanestest.h"
#include "support/mouse.h"

#include <radiopanes/colors/panecolors.h>
#include <radiopanes/panes/axes.h>
#include <radiopanes/panes/bandplanrow.h>
#include <radiopanes/panes/overviewpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QScopeGuard>

#include <algorithm>
#include <cmath>

using namespace RadioPanes;
using namespace LevelPanesTesting;

class tst_LevelPanes : public LevelPanesTest
{
    Q_OBJECT

    QPoint placeOf(double hertz) { return {static_cast<int>(spectrum().positionOf(hertz)), 90}; }
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers)
    {
        QTest::mousePress(&spectrum(), Qt::LeftButton, modifiers, from);
        dragMouse(spectrum(), to, modifiers);
        QTest::mouseRelease(&spectrum(), Qt::LeftButton, modifiers, to);
    }

private Q_SLOTS:
    void levelsAndBandAreThoseOfTheSweeps()
    {
        QCOMPARE(band().bandLow(), startHz);
        QCOMPARE(band().bandHigh(), startHz + bins * stepHz);
        QVERIFY(spectrum().lowLevel() < -100 && spectrum().highLevel() > -40);
        QVERIFY(!m_panes->addSweep(5, 0, 0, levels()));
        QVERIFY(!m_panes->addSweep(5, 0, 1, std::span<const float>()));
        spectrum().setLevelRange(-77, -33);
        for (int i = 0; i < 20; ++i)
            QVERIFY(add(levels()));
        QCOMPARE(spectrum().lowLevel(), -77.0); // the operator's own
        spectrum().setLevelRange(-1e308, 1e308);
        QCOMPARE(std::pair(spectrum().lowLevel(), spectrum().highLevel()),
                 std::pair(-1000.0, 1000.0));
        QVERIFY(!spectrum().grab().isNull());
        LevelPanes other;
        other.spectrum().setReferenceLevel(-20); // before the first sweep
        QVERIFY(other.addSweep(1, startHz, stepHz, levels()));
        QCOMPARE(other.spectrum().highLevel(), -20.0);
        QVERIFY(m_panes->addSweep(6, 1e6, 1e3, levels()));
        QCOMPARE(band().bandLow(), 1e6);
    }
    void pinsComeBackWithTheirBand()
    {
        LevelPanes panes;
        VisibleBand& band = panes.visibleBand();
        band.addPin(startHz + stepHz, QStringLiteral("early")); // before the first sweep
        band.addPin(startHz - 1e6);
        const auto shows = [&band](double hertz) {
            return std::ranges::count(band.pins(), hertz, &Pin::hertz) == 1;
        };
        QVERIFY(panes.addSweep(1, startHz, stepHz, levels()));
        QVERIFY(shows(startHz + stepHz) && band.pins().size() == 1);
        QVERIFY(panes.addSweep(2, startHz - 2e6, stepHz, levels()));
        QVERIFY(panes.addSweep(3, startHz, stepHz, levels()));
        QCOMPARE(band.pins(), (std::vector<Pin>{{startHz + stepHz, QStringLiteral("early")}}));
        QVERIFY(panes.addSweep(4, startHz - 2e6, 10 * stepHz, levels()));
        QVERIFY(shows(startHz + stepHz) && shows(startHz - 1e6));
    }

    void oldSweepsGoAndThePicturesStay()
    {
        m_panes->clear(10 * bins * sizeof(float));
        constexpr int count = 300; // more than the pane has lines
        for (int i = 0; i < count; ++i)
            QVERIFY(add(levels()));
        QVERIFY(m_panes->history().first() > count - 20);
        const auto picture = [this] { return m_panes->waterfall().grab().toImage(); };
        const int x = placeOf(centreOf(300)).x();
        const QRgb loud = m_panes->waterfall().colorOf(-40);
        QCOMPARE(picture().pixel(x, 100), loud); // line 50, of a sweep that is gone
        WaterfallPane& pane = m_panes->waterfall();
        const quint64 begin = m_timeUs - (count - 1);
        const auto place = pane.placeAt({x, 100});
        QVERIFY(place && place->timeUs == m_timeUs - 50 && !place->levelDb);
        QCOMPARE(pane.sweepAt(100), -1);
        const auto areTimesTrue = [&] {
            const auto ticks =
                pane.timeTicks(pane.height(), [](quint64 time) { return QString::number(time); });
            return ticks.size() > 3 && std::ranges::all_of(ticks, [&](const AxisTick& tick) {
                       return tick.label.toULongLong() == begin + static_cast<quint64>(tick.value);
                   });
        };
        QVERIFY(areTimesTrue());
        pane.setPosition(m_panes->history().first()); // as in a pause
        QVERIFY(areTimesTrue());
        pane.setPosition(count - 1);
        const QSignalSpy times(&pane, &WaterfallPane::timesChanged);
        band().zoom(2, centreOf(300));
        QCOMPARE(times.count(), 1); // those of lines that are gone
        const int zoomed = placeOf(centreOf(300)).x();
        QCOMPARE(picture().pixel(zoomed, 2), loud);
        QVERIFY(picture().pixel(zoomed, 100) != loud);
        QVERIFY(!m_panes->waterfall().placeAt({zoomed, 100}));
        m_panes->waterfall().setPosition(count - 4); // the lines below are those of no newer sweep
        const QImage back = picture();
        QCOMPARE(back.pixel(zoomed, 2), loud);
        QVERIFY(back.pixel(zoomed, back.height() - 2) != loud);
        m_panes->resize(700, 500);
        QVERIFY(add(levels()));
        m_panes->clear();
        QVERIFY(spectrum().readOut().first().contains(QStringLiteral("– dB")));
        QCOMPARE(LevelPanes().spectrum().readOut(), QStringList()); // no band, no cursor
    }

    void tracesAreToldApart_data()
    {
        TestRows<int> row;
        for (int trace = 0; trace < traceCount; ++trace)
            row.add(trace);
    }

    void tracesAreToldApart()
    {
        const auto trace = static_cast<Trace>(std::get<0>(TestRows<int>::fetch()));
        spectrum().setLegendVisible(false);
        for (int other = 0; other < traceCount; ++other)
            spectrum().setTraceVisible(static_cast<Trace>(other), false);
        const QColor color = paneColor(traceSlot(trace));
        const auto isDrawn = [&] {
            const QImage image = spectrum().grab().toImage();
            const int x = placeOf(centreOf(600)).x();
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixelColor(x, y) == color)
                    return true;
            }
            return false;
        };
        QVERIFY(!isDrawn());
        spectrum().setTraceVisible(trace, true);
        for (const float noise : {-95.0F, -90.0F, -92.0F})
            QVERIFY(add(levels(noise)));
        QVERIFY(isDrawn());
        spectrum().setLevelRange(0, 50);
        QVERIFY(!isDrawn());
        for (int other = 0; other < traceCount; ++other)
            QVERIFY(other == static_cast<int>(trace) ||
                    paneColor(traceSlot(static_cast<Trace>(other))) != color);
    }

    void levelsFollowWheelAndKeys()
    {
        QSignalSpy changed(&spectrum(), &SpectrumPane::levelRangeChanged);
        spectrum().setLevelRange(-120, -20);
        QCOMPARE(spectrum().decibelsPerDivision(), 10.0);
        QTest::keyClick(&spectrum(), Qt::Key_Up);
        QCOMPARE(spectrum().highLevel(), -10.0);
        QTest::keyClick(&spectrum(), Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(spectrum().decibelsPerDivision(), 5.0);
        for (const int part : {-60, 0, -60}) // of a notch, as touchpads report it
            turnWheel(spectrum(), part, Qt::ControlModifier);
        turnWheel(spectrum(), -120, Qt::ShiftModifier);
        QCOMPARE(spectrum().highLevel(), -20.0);
        QCOMPARE(spectrum().lowLevel(), -120.0);
        QCOMPARE(changed.count(), 5);
        spectrum().stepDecibelsPerDivision(99);
        QCOMPARE(spectrum().decibelsPerDivision(), 50.0);
        spectrum().stepDecibelsPerDivision(-99);
        QCOMPARE(spectrum().decibelsPerDivision(), 1.0);
        spectrum().stepReferenceLevel(1e9);
        QVERIFY(spectrum().highLevel() <= 1000);
        QVERIFY(band().showsAll());
    }

    void markersFindPeaks()
    {
        band().setCursor(centreOf(0));
        QTest::keyClick(&spectrum(), Qt::Key_PageDown);
        QCOMPARE(band().cursor(), centreOf(200));
        band().setVisible(startHz, centreOf(250));
        QVERIFY(spectrum().moveToPeak(Direction::Up)); // out of the view, which follows
        QVERIFY(band().low() < centreOf(300) && band().high() > centreOf(300));
        QTest::keyClick(&spectrum(), Qt::Key_PageUp);
        QCOMPARE(band().cursor(), centreOf(200));
        QVERIFY(!spectrum().moveToPeak(Direction::Down));
        band().showAll();
        // Dragged near a carrier: it snaps on request.
        band().addPin(centreOf(700));
        const QPoint nearby = placeOf(centreOf(800)) + QPoint(3, 0);
        drag(placeOf(centreOf(700)), nearby, {});
        QVERIFY(band().pins().front().hertz > centreOf(801));
        drag(nearby, placeOf(centreOf(798)) + QPoint(0, 40), Qt::ControlModifier);
        QCOMPARE(band().pins(), (std::vector<Pin>{{centreOf(800), {}}}));
        spectrum().setSnapping(true);
        QTest::mouseClick(&spectrum(), Qt::LeftButton, {}, placeOf(centreOf(202)));
        QCOMPARE(band().pins().size(), 2u);
        QCOMPARE(band().pins().back().hertz, centreOf(200));
        // In the waterfall to what is shown below the mouse.
        std::vector<float> other = levels();
        std::swap(other[300], other[302]);
        QVERIFY(add(other));
        m_panes->setSnapping(true);
        for (const auto& [line, bin] : {std::pair(0, 302), std::pair(1, 300)}) {
            band().clearPins();
            const QPoint place(placeOf(centreOf(301)).x(), line * WaterfallPane::linePixels);
            QTest::mouseClick(&m_panes->waterfall(), Qt::LeftButton, {}, place);
            QCOMPARE(band().pins().back().hertz, centreOf(bin));
            band().movePin(0, centreOf(301));
            QTest::ignoreMessage(QtWarningMsg,
                                 "This plugin does not support grabbing the keyboard");
            QTest::mouseClick(&m_panes->waterfall(), Qt::RightButton, {}, place);
            const QList<QAction*> entries = QApplication::activePopupWidget()->actions();
            const auto toPeak = std::ranges::find(entries, QStringLiteral("To the peak nearby"),
                                                  [](QAction* entry) { return entry->text(); });
            QVERIFY(toPeak != entries.end());
            (*toPeak)->trigger();
            QCOMPARE(band().pins().back().hertz, centreOf(bin));
            QApplication::activePopupWidget()->close();
        }
    }

    void pinsHaveNames()
    {
        band().addPin(centreOf(300), QStringLiteral(" Harbour \n radio "));
        const auto nameField = [this] { return spectrum().findChild<QLineEdit*>(); };
        QTest::mouseDClick(&spectrum(), Qt::LeftButton, {}, placeOf(centreOf(300)));
        QVERIFY(nameField() != nullptr);
        QCOMPARE(nameField()->text(), QStringLiteral("Harbour radio"));
        QTest::keyClicks(nameField(), QStringLiteral("Port"));
        QTest::keyClick(nameField(), Qt::Key_Return);
        QTRY_VERIFY(nameField() == nullptr);
        QVERIFY(spectrum().readOut().last().startsWith(QStringLiteral("Pin 1 Port")));
        band().setCursor(centreOf(300));
        QTest::keyClick(&spectrum(), Qt::Key_F2);
        QTest::keyClicks(nameField(), QStringLiteral("Other"));
        band().clearPins(); // while its name is being typed
        QTest::keyClick(nameField(), Qt::Key_Return);
        QTRY_VERIFY(nameField() == nullptr);
        QVERIFY(band().pins().empty());
        for (const int carrier : {200, 800})
            band().addPin(centreOf(carrier));
        for (const int carrier : {200, 800}) // faster than a double click
            QTest::mouseClick(&spectrum(), Qt::LeftButton, {}, placeOf(centreOf(carrier)));
        QTRY_VERIFY(band().pins().empty());
        band().addPin(0);
        spectrum().editPinName(0);
        m_panes.reset(); // while its name is being typed
    }

    void waterfallScrollsAndZoomsInTime()
    {
        WaterfallPane& pane = m_panes->waterfall();
        pane.setLegendVisible(false);
        for (int i = 1; i < 1000; ++i)
            QVERIFY(add(levels(i % 64 == 0 ? -50.0F : -100.0F)));
        const int lines =
            static_cast<int>(pane.shownSweeps().second - pane.shownSweeps().first + 1);
        QTest::keyClick(&pane, Qt::Key_PageDown);
        QVERIFY(!pane.isFollowing());
        const qsizetype held = pane.shownSweeps().second;
        QCOMPARE(held, 999 - (lines - 1));
        QVERIFY(add(levels()));
        QCOMPARE(pane.shownSweeps().second, held); // what is looked at stays
        const QImage before = pane.grab().toImage();
        QTest::keyClick(&pane, Qt::Key_End);
        QVERIFY(pane.isFollowing());
        QCOMPARE(pane.shownSweeps().second, 1000);
        QTest::keyClick(&pane, Qt::Key_PageDown);
        QTest::keyClick(&pane, Qt::Key_Down);
        QTest::keyClick(&pane, Qt::Key_Up);
        pane.scrollTime(1); // the sweep that has come since
        QCOMPARE(pane.shownSweeps().second, held);
        QCOMPARE(pane.grab().toImage(), before);
        pane.scrollTime(1'000'000); // not beyond the oldest
        QCOMPARE(pane.shownSweeps().second, 0);
        pane.followNewest();
        for (int step = 0; step < 6; ++step)
            QTest::keyClick(&pane, Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(pane.timeZoom(), -6);
        // Each line of 64 sweeps shows its only loud one, also the one that grows.
        const int x = placeOf(centreOf(600)).x();
        QTRY_COMPARE(pane.grab().toImage().pixel(x, 1), pane.colorOf(-50));
        QCOMPARE(pane.grab().toImage().pixel(x, 2 * 15), pane.colorOf(-100)); // no sweep 0 is loud
        QVERIFY(add(levels(-45)));
        QCOMPARE(pane.grab().toImage().pixel(x, 1), pane.colorOf(-45));
        pane.zoomTime(100);
        QCOMPARE(pane.timeZoom(), 4);
        QCOMPARE(pane.sweepAt(33), pane.shownSweeps().second - 1);
        const auto place = pane.placeAt({x, 1});
        QVERIFY(place && place->timeUs == m_timeUs && place->levelDb == -45.0F);
    }

    void timesAreAsFineAsTheyMustBe_data()
    {
        TestRows<quint64, QString> row; // microseconds from sweep to sweep, the label of the newest
        row("too fine to tell apart", 1, QStringLiteral("00:00:00"));
        row("short", 1'100, QStringLiteral("00:00.110"));
        row("long", 1'000'000, QStringLiteral("00:01:40"));
        row("days", 3'600'000'000, QStringLiteral("01-05\n04:00"));
    }

    void timesAreAsFineAsTheyMustBe()
    {
        const auto& [step, newest] = TestRows<quint64, QString>::fetch();
        m_panes->clear();
        for (quint64 i = 0; i <= 100; ++i)
            QVERIFY(m_panes->addSweep(i * step, startHz, stepHz, levels()));
        const auto* axis = m_panes->waterfallRow()->findChild<SideAxis*>();
        QCOMPARE(axis->ticks(axis->height()).front().label, newest);
    }

    void overviewShowsAllSweepsAndAsksForJumps()
    {
        OverviewPane& strip = m_panes->overview();
        QSignalSpy jumps(m_panes.get(), &BandPanes::jumpRequested);
        constexpr int count = 5000; // more than the strip keeps apart
        m_panes->clear(100 * bins * sizeof(float));
        for (int i = 0; i < count; ++i)
            QVERIFY(add(levels(i == 3000 || i == count - 50 ? -50.0F : -100.0F)));
        QCOMPARE(strip.takenSweeps(), count);
        strip.setTimeText({});
        const qsizetype first = m_panes->history().first(); // The whole strip is for what is left.
        QVERIFY(first > count - 200);
        QCOMPARE(strip.sweepAt(0), first);
        QCOMPARE(strip.sweepAt(strip.width()), count - 1);
        QCOMPARE(strip.positionOf(first), 0);
        const QRgb loud = m_panes->waterfall().colorOf(-50);
        const auto columns = [&] {
            const QImage image = strip.grab().toImage();
            std::vector<int> found;
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, image.height() / 3 * 2 - 2) == loud)
                    found.push_back(x);
            }
            return found;
        };
        QTRY_VERIFY(!columns().empty());
        QVERIFY(std::abs(columns().front() - strip.positionOf(count - 50)) <= 1);
        QVERIFY(std::abs(columns().back() - strip.positionOf(count - 49)) <= 1);
        strip.setHistory(nullptr);
        QVERIFY(columns().empty());
        const auto history = std::make_shared<LevelHistory>(std::size_t{1} << 30);
        for (quint64 i = 0; i < count; ++i) {
            const std::vector<float> sweep = levels(i == 3000 ? -50.0F : -100.0F);
            const Segment segment{startHz, stepHz, 0, sweep};
            QVERIFY(history->append(i, {&segment, 1}));
        }
        strip.setHistory(history);
        QTRY_COMPARE(strip.takenSweeps(), count);
        QTRY_VERIFY(!columns().empty());
        QVERIFY(std::abs(columns().front() - strip.positionOf(3000)) <= 1);
        QTest::mouseClick(&strip, Qt::LeftButton, {}, {strip.positionOf(3000), 5});
        QCOMPARE(jumps.count(), 1);
        QVERIFY(std::abs(jumps.takeFirst().at(0).toLongLong() - 3000) <= count / strip.width() + 1);
        const auto place = strip.placeAt({columns().front(), 0});
        QVERIFY(place && place->levelDb == -50.0F && place->hertz > 400e3);
    }

    void axesAreTrueFromRightToLeft()
    {
        const auto axes = [](LevelPanes& panes) {
            panes.resize(900, 600);
            panes.show();
            const bool isShown = QTest::qWaitForWindowExposed(&panes);
            QCoreApplication::processEvents();
            QList<QImage> images;
            for (QWidget* axis : panes.findChildren<QWidget*>()) {
                if (qobject_cast<FrequencyAxis*>(axis) || qobject_cast<SideAxis*>(axis) ||
                    qobject_cast<BandPlanRow*>(axis))
                    images << axis->grab().toImage();
            }
            return std::tuple(isShown, images, panes.spectrum().mapTo(&panes, QPoint()));
        };
        const auto fill = [](LevelPanes& panes) {
            panes.addBookmark(centreOf(300), QStringLiteral("x"));
            return panes.addSweep(1, startHz, stepHz, levels());
        };
        LevelPanes plain;
        QVERIFY(fill(plain));
        const auto expected = axes(plain);
        QVERIFY(std::get<bool>(expected));
        const auto restore =
            qScopeGuard([] { QApplication::setLayoutDirection(Qt::LayoutDirectionAuto); });
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(axes(plain) == expected); // also when it changes while they are shown
        LevelPanes other;
        QVERIFY(fill(other));
        QVERIFY(axes(other) == expected);
    }

    void figuresAreNoFinerThanTheBins()
    {
        band().setCursor(centreOf(200) + 123.4); // -299.4 kHz
        QVERIFY2(spectrum().readOut().first().contains(QStringLiteral("-299 kHz  -40.0 dB")),
                 qPrintable(spectrum().readOut().first()));
        band().addPin(centreOf(300));
        band().addPin(centreOf(250));
        QVERIFY2(spectrum().readOut().last().contains(QStringLiteral("-50 kHz  -60.0 dB")),
                 qPrintable(spectrum().readOut().last()));
        spectrum().setWidthsVisible(true);
        QVERIFY2(spectrum().readOut().at(1).contains(QStringLiteral("1 kHz,")),
                 qPrintable(spectrum().readOut().at(1)));
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Mega);
        QVERIFY(spectrum().readOut().first().contains(QStringLiteral("-0.299 MHz")));
    }
};

QTEST_MAIN(tst_LevelPanes)
#include "tst_levelpanes.moc"
