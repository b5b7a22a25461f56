// SPDX-License-Identifier: MIT
#include <guibase/colors/colorcontrast.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/colorslotgroups.h>

#include "support/guardedtest.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

using enum IColorBase::ECOLOR;
using Slot = IColorBase::ECOLOR;
using Slots = std::vector<Slot>;

namespace {

QColor colorOf(Slot slot)
{
    return ColorSet::Instance().GetColor(slot);
}

double contrast(Slot one, Slot other)
{
    return ColorContrast::ratio(colorOf(one), colorOf(other));
}

/// Distance of two colours in the space CIE 1976 L*a*b* (white point D65).
double distance(const QColor& one, const QColor& other)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const auto lab = [linear](const QColor& color) {
        const double r = linear(color.redF()), g = linear(color.greenF()),
                     b = linear(color.blueF());
        const auto f = [](double t) {
            return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
        };
        const double x = f((0.4124 * r + 0.3576 * g + 0.1805 * b) / 0.9505);
        const double y = f(0.2126 * r + 0.7152 * g + 0.0722 * b);
        const double z = f((0.0193 * r + 0.1192 * g + 0.9505 * b) / 1.089);
        return std::array{116 * y - 16, 500 * (x - y), 200 * (y - z)};
    };
    const auto a = lab(one), b = lab(other);
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

Slots range(Slot first, Slot last)
{
    Slots slotsOfRange;
    for (int slot = first; slot <= last; ++slot)
        slotsOfRange.push_back(static_cast<Slot>(slot));
    return slotsOfRange;
}

constexpr double readable = 4.5; // text
constexpr double visible = ColorContrast::lowest;

struct Screen
{
    const char* name;
    double minimum;
    Slots foregrounds;
    Slots backgrounds;
};

// What ColorContrast::ratioOf() does not know, and texts, which need more contrast than lines. The
// highlights in bandwidth and in job are left out: on their fixed mid-tones no bright curve could
// reach the minimum.
const std::vector<Screen>& screens()
{
    const Slots pane{DrawPaneBackgroundLow, DrawPaneBackgroundHigh};
    // clang-format off
    static const std::vector<Screen> all{
        {"axis", readable, {AxisText}, {Slot66}},
        {"axis out of zoom", visible, {AxisOutOfZoom}, {Slot66}},
        {"frequency axis", readable, {FrequencyAxisText}, range(FrequencyAxisBackgroundHigh, FrequencyAxisBackgroundLow)},
        {"y axis", readable, {YAxisText}, {YAxisBackground}},
        {"result panel", readable, {DrawPaneResultPanelText}, pane},
        {"result panel, filtered", readable, {DrawPaneResultPanelText}, {DrawPaneFilteredBackground}},
        {"curves", visible, range(DrawPaneMinimumPoints, DrawPaneSecondaryCurve), pane},
        {"curves, no factors", visible, range(DrawPaneMinimumPoints, DrawPaneSecondaryCurve), {DrawPaneBackgroundWithoutKFactors}},
        {"curves, filtered", visible, range(DrawPaneMainCurve, DrawPaneSecondaryCurve), {DrawPaneFilteredBackground, DrawPaneBackgroundInAudioBandwidth}},
        {"frozen curves", visible, range(DrawPaneMainCurveFrozen, DrawPaneSecondaryCurveFrozen), pane},
        {"special curves", visible, range(DrawPaneLimitLine, DrawPaneReferenceCurve), pane},
        {"job frame", visible, {JobFrameHighBorder, JobFrameLowBorder}, pane},
        {"markers", visible, range(MarkerAdditionalRed, MarkerGrayed), pane},
        {"signal types", visible, range(SignalTypeA, SignalTypeQ), pane},
        {"caption with focus", readable, {CaptionTextFocussed, CaptionTextHighlighted}, {CaptionBackgroundFocussed}},
        {"caption", readable, {CaptionTextNotFocussed}, {CaptionBackgroundNotFocussed}},
        {"frequency bar", readable, {FrequencyBarText}, range(FrequencyBarBackground, FrequencyBarInBandwidth)},
        {"suppressed", readable, {FrequencyBarText}, {FrequencyBarLocalSuppress, FrequencyBarGlobalSuppress}},
        {"new frequency bar", readable, {NewFrequencyBarText}, range(NewFrequencyBarBackgroundHigh, NewFrequencyBarBackgroundInBandwidth)},
        {"bit stream", readable, {BitStreamText}, {BitStreamBackground, BitStreamBit0, BitStreamBit1, BitStreamBelowThreshold}},
        {"relative bearing", readable, {RelativeBearingText}, range(RelativeBearingStarboard, RelativeBearingZeroAnd180)},
        {"planner", readable, {AxisText}, range(PlannerPlanned, PlannerSkornReceiver)},
    };
    // clang-format on
    return all;
}

} // namespace

class tst_ColorSetFactory : public GuardedTest
{
    Q_OBJECT
    using Alternatives = TestRows<Slots, double>;

private Q_SLOTS:
    void everyEditorRowHasAColor()
    {
        std::array<int, IColorBase::slotCount> rows{};
        for (const ColorSlotGroup& group : ColorSlotGroups::all) {
            for (const ColorSlotRow& row : group.rows) {
                QCOMPARE(row.slot == ColorSlotRow::noSlot, row.note != nullptr);
                if (row.note)
                    continue;
                ++rows.at(static_cast<std::size_t>(row.slot));
                const auto slot = static_cast<Slot>(row.slot);
                QVERIFY2(ColorSet::Instance().GetColorDefinition(slot), group.heading);
            }
        }
        QVERIFY(*std::max_element(rows.begin(), rows.end()) == 1);
        const auto shown = [](quint32 mask) {
            return std::count_if(
                ColorSlotGroups::all.begin(), ColorSlotGroups::all.end(),
                [mask](const ColorSlotGroup& group) { return group.isShown(mask); });
        };
        for (const auto& [mask, count] : {std::pair(0U, 1), {1U, 9}, {0x200U, 1}, {0xfffU, 19}})
            QCOMPARE(shown(mask), count);
    }
    void contrastSuffices()
    {
        QStringList faults;
        for (const Screen& screen : screens()) {
            for (const Slot foreground : screen.foregrounds) {
                for (const Slot background : screen.backgrounds) {
                    const double found = contrast(foreground, background);
                    if (!(found >= screen.minimum))
                        faults << QStringLiteral("%1: %2 on %3, %4")
                                      .arg(QString::fromLatin1(screen.name))
                                      .arg(foreground)
                                      .arg(background)
                                      .arg(found);
                }
            }
        }
        QCOMPARE(faults, QStringList());
    }
    /// Texts and lines of the sets that come with the library stand out from their backgrounds.
    void contrastOfBuiltInSets()
    {
        QCOMPARE(ColorContrast::ratio(Qt::black, Qt::white), 21.0);
        QCOMPARE(ColorContrast::ratio(Qt::red, Qt::red), 1.0);
        for (const char* name :
             {ColorSet::factoryDefaultName, ColorSet::colorBlindName, ColorSet::darkDesktopName}) {
            ColorSet::Instance().Load(nullptr, QString::fromLatin1(name));
            for (int slot = 0; slot < IColorBase::slotCount; ++slot) {
                const auto ratio = ColorContrast::ratioOf(static_cast<Slot>(slot), colorOf);
                QVERIFY2(!ratio || *ratio >= ColorContrast::lowest,
                         qPrintable(QStringLiteral("%1 slot %2: %3")
                                        .arg(QLatin1String(name))
                                        .arg(slot)
                                        .arg(ratio.value_or(0))));
            }
        }
        ColorSet::Instance().slotRestoreFactoryColors();
    }
    void frozenCurvesAreDimmer()
    {
        for (const auto& [frozen, running] :
             {std::pair(DrawPaneMainCurveFrozen, DrawPaneMainCurve),
              {DrawPaneSecondaryCurveFrozen, DrawPaneSecondaryCurve},
              {DrawPaneMainCurveMaximumShadowFrozen, DrawPaneMainCurveMaximumShadow}})
            QVERIFY(ColorContrast::ratio(colorOf(frozen), Qt::black) <
                    ColorContrast::ratio(colorOf(running), Qt::black));
    }
    void alternativesDiffer_data()
    {
        Alternatives row;
        row("signal types", range(SignalTypeA, SignalTypeQ), 20);
        row("planner states", range(PlannerPlanned, PlannerFailed), 20);
        row("planner types", range(PlannerProduction, PlannerSkornReceiver), 15);
        row("traffic lights", range(TrafficLightStop, TrafficLightGo), 60);
        row("results", range(ProductionResultRunning, ProductionResultUnknown), 20);
        row("markers", range(MarkerAdditionalRed, MarkerGrayed), 20);
        row("curves", range(DrawPaneMinimumPoints, DrawPaneSecondaryCurve), 20);
        row("overload steps", range(BarOverload0, BarOverload9), 8);
    }
    void alternativesDiffer()
    {
        const auto& [alternatives, minimum] = Alternatives::fetch();
        for (auto one = alternatives.begin(); one != alternatives.end(); ++one) {
            for (auto other = one + 1; other != alternatives.end(); ++other) {
                const double found = distance(colorOf(*one), colorOf(*other));
                const QString text =
                    QStringLiteral("%1 and %2: %3").arg(*one).arg(*other).arg(found);
                QVERIFY2(found >= minimum, qPrintable(text));
            }
        }
    }
};

QTEST_MAIN(tst_ColorSetFactory)
#include "tst_colorsetfactory.moc"
