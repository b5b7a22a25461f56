// SPDX-License-Identifier: MIT
#include "colormap.h"

#include "panecolors.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace RadioPanes {

namespace {

/// A ramp of even lightness in the colour space CIE LCh: hue and chroma change along it.
struct Path
{
    double firstHue; ///< In degrees.
    double lastHue;
    double firstChroma;
    double middleChroma;
    double lastChroma;
};

constexpr double darkest = 6; // of 100
constexpr double brightest = 95;
constexpr Path evenPath{295, 100, 40, 55, 75};
constexpr Path firePath{310, 460, 30, 80, 70};
constexpr Path grayPath{0, 0, 0, 0, 0};

using Light = std::array<double, 3>; ///< Red, green and blue, 0 to 1, in proportion to the light.

/// From CIE LCh with the white of daylight (D65).
Light lightOf(double lightness, double chroma, double hue)
{
    const double angle = hue * std::numbers::pi / 180;
    const double y = (lightness + 16) / 116;
    const auto cubed = [](double value) {
        return value > 6.0 / 29 ? value * value * value : (value - 16.0 / 116) * 108 / 841;
    };
    const double redGreen = chroma * std::cos(angle);
    const double yellowBlue = chroma * std::sin(angle);
    const double bigX = 0.95047 * cubed(y + redGreen / 500);
    const double bigY = cubed(y);
    const double bigZ = 1.08883 * cubed(y - yellowBlue / 200);
    return {3.2404542 * bigX - 1.5371385 * bigY - 0.4985314 * bigZ,
            -0.9692660 * bigX + 1.8760108 * bigY + 0.0415560 * bigZ,
            0.0556434 * bigX - 0.2040259 * bigY + 1.0572252 * bigZ};
}

bool isShowable(const Light& light)
{
    return std::ranges::all_of(light, [](double part) { return part >= 0 && part <= 1; });
}

int byteOf(double light)
{
    const double part = std::clamp(light, 0.0, 1.0);
    const double value = part <= 0.0031308 ? 12.92 * part : 1.055 * std::pow(part, 1 / 2.4) - 0.055;
    return static_cast<int>(std::lround(255 * value));
}

/// With less chroma where the screen cannot show the colour: the lightness stays.
QRgb shownColor(double lightness, double chroma, double hue)
{
    constexpr double chromaStep = 0.98;
    constexpr double leastChroma = 0.5;
    Light light = lightOf(lightness, chroma, hue);
    while (!isShowable(light) && chroma > leastChroma) {
        chroma *= chromaStep;
        light = lightOf(lightness, chroma, hue);
    }
    return qRgb(byteOf(light[0]), byteOf(light[1]), byteOf(light[2]));
}

ColorRamp rampAlong(const Path& path)
{
    ColorRamp ramp{};
    for (size_t i = 0; i < ramp.size(); ++i) {
        const double share = static_cast<double>(i) / (ramp.size() - 1);
        const double chroma = share < 0.5
                                  ? std::lerp(path.firstChroma, path.middleChroma, 2 * share)
                                  : std::lerp(path.middleChroma, path.lastChroma, 2 * share - 1);
        ramp[i] = shownColor(std::lerp(darkest, brightest, share), chroma,
                             std::lerp(path.firstHue, path.lastHue, share));
    }
    return ramp;
}

/// Through the colours of the draw pane: from its background over the hold and the main curve to
/// the colour of maximum points, from the darkest to the brightest of them.
ColorRamp colorSetRamp()
{
    const QColor background = paneColor(PaneSlot::BackgroundLow);
    std::array stops{background, paneColor(PaneSlot::Hold), paneColor(PaneSlot::Curve),
                     paneColor(PaneSlot::Peak)};
    // The nearer to the background, the lower the level: also right for a bright background.
    std::stable_sort(stops.begin() + 1, stops.end(), [&](const QColor& left, const QColor& right) {
        const auto distance = [&](const QColor& color) {
            return std::abs(qGray(color.rgb()) - qGray(background.rgb()));
        };
        return distance(left) < distance(right);
    });
    ColorRamp ramp{};
    constexpr int sections = static_cast<int>(stops.size()) - 1;
    for (size_t i = 0; i < ramp.size(); ++i) {
        const float place = static_cast<float>(i) / (ramp.size() - 1) * sections;
        const int section = std::min(static_cast<int>(place), sections - 1);
        const float share = place - static_cast<float>(section);
        const QColor& from = stops[static_cast<size_t>(section)];
        const QColor& to = stops[static_cast<size_t>(section) + 1];
        const auto mix = [share](float a, float b) { return a + share * (b - a); };
        ramp[i] = QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                                   mix(from.blueF(), to.blueF()))
                      .rgb();
    }
    return ramp;
}

} // namespace

ColorRamp colorRamp(ColorMap map)
{
    switch (map) {
    case ColorMap::Even:
        return rampAlong(evenPath);
    case ColorMap::Fire:
        return rampAlong(firePath);
    case ColorMap::Gray:
        return rampAlong(grayPath);
    case ColorMap::ColorSet:
        break;
    }
    return colorSetRamp();
}

QString colorMapName(ColorMap map)
{
    const auto text = [](const char* name) {
        return QCoreApplication::translate("RadioPanes::ColorMap", name);
    };
    switch (map) {
    case ColorMap::Even:
        return text(QT_TRANSLATE_NOOP("RadioPanes::ColorMap", "Blue to yellow"));
    case ColorMap::Fire:
        return text(QT_TRANSLATE_NOOP("RadioPanes::ColorMap", "Fire"));
    case ColorMap::Gray:
        return text(QT_TRANSLATE_NOOP("RadioPanes::ColorMap", "Gray"));
    case ColorMap::ColorSet:
        break;
    }
    return text(QT_TRANSLATE_NOOP("RadioPanes::ColorMap", "Colour set"));
}

} // namespace RadioPanes
