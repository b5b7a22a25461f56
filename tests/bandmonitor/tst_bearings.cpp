// SPDX-License-Identifier: MIT
#include "settings/sessionvalues.h"
#include "support/guardedtest.h"

#include "panels/bearingspanel.h"
#include "panels/headingspinbox.h"

#include <model/bearings.h>
#include <radiopanes/bearings/bearingrose.h>

#include <QAction>
#include <QLineEdit>

using namespace bandmonitor;

class tst_Bearings : public GuardedTest
{
    Q_OBJECT
    using Angles = TestRows<double, double, double, BearingSide>;

    static std::vector<SignalTrack> tracks(std::initializer_list<double> hertz)
    {
        std::vector<SignalTrack> result;
        for (const double centre : hertz) {
            SignalTrack track;
            track.id = static_cast<std::uint32_t>(result.size() + 1);
            track.signal.centreHz = centre;
            track.signal.peakDb = -60;
            track.signal.floorDb = -80;
            track.presence = 1;
            result.push_back(track);
        }
        return result;
    }

private Q_SLOTS:
    void anglesWrapAtTheFullCircle_data()
    {
        Angles row; // bearing, heading, relative bearing, side
        row("over north to starboard", 10, 350, 20, BearingSide::Starboard);
        row("over north to portside", 350, 10, 340, BearingSide::Portside);
        row("astern", 10, 190, 180, BearingSide::Astern);
        row("many turns", 725, -720, 5, BearingSide::Starboard);
        row("rounded up to ahead", 359.6, 0, 359.6, BearingSide::Ahead);
        row("just below the circle", -1e-18, 0, 0, BearingSide::Ahead);
        row("no number", qQNaN(), 7, 0, BearingSide::Ahead);
    }

    void anglesWrapAtTheFullCircle()
    {
        const auto& [bearing, heading, relative, side] = Angles::fetch();
        const double found = relativeBearing(bearing, heading);
        QVERIFY(found >= 0 && found < 360);
        QVERIFY(qAbs(found - relative) < 1e-9);
        QCOMPARE(sideOf(found), side);
        QVERIFY(qAbs(angleBetween(relative, 0) - angleBetween(0, relative)) < 1e-9);
    }

    void bearingsStayWithTheirSignals()
    {
        Bearings bearings;
        std::vector<SignalTrack> shown = tracks({98e6, 104e6});
        bearings.update(shown);
        const double first = bearings.find(1)->degrees;
        const double spread = bearings.find(1)->spread;
        QVERIFY(angleBetween(first, bearings.find(2)->degrees) > 1);
        shown[0].signal.centreHz += 300e3; // it drifts, and becomes weaker
        shown[0].signal.peakDb -= 15;
        bearings.update(shown);
        QCOMPARE(bearings.find(1)->degrees, first);
        QVERIFY(bearings.find(1)->spread > 3 * spread);
        QVERIFY(bearings.find(3) == nullptr);
    }

    void headingsGoOnPastNorth()
    {
        HeadingSpinBox box;
        box.stepBy(-1);
        QCOMPARE(box.value(), 359);
        for (const auto& [typed, heading] :
             {std::pair("370", 10), std::pair("-10", 350), std::pair("360 °", 0)}) {
            box.inputLineEdit()->selectAll();
            QTest::keyClicks(box.inputLineEdit(), QString::fromUtf8(typed));
            QTest::keyClick(&box, Qt::Key_Return);
            QCOMPARE(box.value(), heading);
            QVERIFY(box.inputRefusal().isEmpty());
        }
    }

    void signalsAreChosenByMouseAndKeys()
    {
        Bearings bearings;
        const SessionValues values;
        BearingsPanel panel(&bearings, values);
        panel.resize(400, 500);
        panel.show();
        BearingRose& rose = panel.rose();
        bearings.update(tracks({98e6, 98.3e6, 104e6}));
        QSignalSpy chosen(&panel, &Panel::frequencyWanted);
        for (const int heading : {0, 250}) {
            panel.heading().setValue(heading);
            panel.keyActions().constFirst()->setChecked(heading != 0);
            const QPointF centre = QRectF(rose.rect()).center();
            for (const Bearing& bearing : bearings.all()) {
                const QPointF end = rose.lineEnd(bearing.degrees);
                QTest::mouseClick(&rose, Qt::LeftButton, {},
                                  (centre + 0.8 * (end - centre)).toPoint());
                QCOMPARE(rose.selected(), bearing.id);
                QCOMPARE(chosen.takeFirst().first().toDouble(), bearing.hertz);
            }
            // One turn of the right arrow meets each signal in the order of the angles.
            QTest::keyClick(&rose, Qt::Key_Home);
            double before = -1;
            for (int i = 0; i < 3; ++i) {
                const double degrees = bearings.find(rose.selected())->degrees;
                QVERIFY(relativeBearing(degrees, heading) > before);
                before = relativeBearing(degrees, heading);
                QTest::keyClick(&rose, Qt::Key_Right);
            }
        }
        QVERIFY(chosen.isEmpty());
        QTest::keyClick(&rose, Qt::Key_Return);
        QCOMPARE(chosen.size(), 1);
        bearings.update({}); // the selected one is gone
        QCOMPARE(rose.selected(), 0U);
    }

    void bearingsMayGoBeforeTheirPanel()
    {
        auto bearings = std::make_unique<Bearings>();
        bearings->update(tracks({98e6}));
        const SessionValues values;
        BearingsPanel panel(bearings.get(), values);
        panel.show();
        panel.rose().select(1);
        bearings.reset();
        QCOMPARE(panel.rose().selected(), 0U);
        QTest::keyClick(&panel.rose(), Qt::Key_Right);
        QTest::keyClick(&panel.rose(), Qt::Key_Return);
        QVERIFY(!panel.grab().isNull());
    }
};

QTEST_MAIN(tst_Bearings)
#include "tst_bearings.moc"
