// SPDX-License-Identifier: MIT
#include "visibleband.h"

#include <algorithm>
#include <cmath>

namespace RadioPanes {

namespace {
constexpr double binsOfSmallestView = 8;
constexpr int maximumPins = 16;
constexpr int maximumName = 40;

QString pinName(const QString& name)
{
    return name.simplified().left(maximumName);
}
} // namespace

class VisibleBandPrivate
{
public:
    bool hasBand = false;
    double bandLow = 0;
    double bandHigh = 1;
    double low = 0;
    double high = 1;
    double smallestSpan = 1;
    double cursor = 0.5;
    std::vector<Pin> pins;
};

VisibleBand::VisibleBand(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<VisibleBandPrivate>())
{}

VisibleBand::~VisibleBand() = default;

void VisibleBand::setBand(double low, double high, double resolution)
{
    if (!AxisRange{low, high, 1}.isValid())
        return;
    d->hasBand = true;
    d->bandLow = low;
    d->bandHigh = high;
    d->smallestSpan = std::clamp(resolution * binsOfSmallestView, (high - low) * 1e-9, high - low);
    d->low = low;
    d->high = high;
    d->cursor = (low + high) / 2;
    d->pins.clear();
    Q_EMIT rangeChanged();
    Q_EMIT cursorChanged();
    Q_EMIT pinsChanged();
}

bool VisibleBand::hasBand() const
{
    return d->hasBand;
}

double VisibleBand::bandLow() const
{
    return d->bandLow;
}

double VisibleBand::bandHigh() const
{
    return d->bandHigh;
}

double VisibleBand::low() const
{
    return d->low;
}

double VisibleBand::high() const
{
    return d->high;
}

AxisRange VisibleBand::range(int pixels) const
{
    return {d->low, d->high, pixels};
}

double VisibleBand::cursor() const
{
    return d->cursor;
}

const std::vector<Pin>& VisibleBand::pins() const
{
    return d->pins;
}

bool VisibleBand::showsAll() const
{
    return d->low <= d->bandLow && d->high >= d->bandHigh;
}

void VisibleBand::zoom(double factor, double anchor)
{
    if (!(factor > 0) || !std::isfinite(factor) || !std::isfinite(anchor))
        return;
    const double span = d->high - d->low;
    const double newSpan = std::clamp(span / factor, d->smallestSpan, d->bandHigh - d->bandLow);
    const double share = std::clamp((anchor - d->low) / span, 0.0, 1.0);
    const double low = d->low + share * (span - newSpan);
    setVisible(low, low + newSpan);
}

void VisibleBand::zoomAtCursor(double factor)
{
    const bool inside = d->cursor >= d->low && d->cursor <= d->high;
    zoom(factor, inside ? d->cursor : (d->low + d->high) / 2);
}

void VisibleBand::setVisible(double low, double high)
{
    if (!std::isfinite(low) || !std::isfinite(high))
        return;
    if (high < low)
        std::swap(low, high);
    const double span = std::clamp(high - low, d->smallestSpan, d->bandHigh - d->bandLow);
    low = std::clamp((low + high - span) / 2, d->bandLow, d->bandHigh - span);
    high = std::min(low + span, d->bandHigh);
    if (low == d->low && high == d->high)
        return;
    d->low = low;
    d->high = high;
    Q_EMIT rangeChanged();
}

void VisibleBand::pan(double hertz)
{
    const double shift = std::clamp(hertz, d->bandLow - d->low, d->bandHigh - d->high);
    setVisible(d->low + shift, d->high + shift);
}

void VisibleBand::showAll()
{
    setVisible(d->bandLow, d->bandHigh);
}

void VisibleBand::setCursor(double hertz)
{
    if (!std::isfinite(hertz))
        return;
    hertz = std::clamp(hertz, d->bandLow, d->bandHigh);
    if (hertz == d->cursor)
        return;
    d->cursor = hertz;
    Q_EMIT cursorChanged();
}

void VisibleBand::stepCursor(int pixels, int width)
{
    if (width <= 0)
        return;
    setCursor(d->cursor + pixels * (d->high - d->low) / width);
    if (d->cursor < d->low)
        pan(d->cursor - d->low);
    else if (d->cursor > d->high)
        pan(d->cursor - d->high);
}

void VisibleBand::showAt(double hertz)
{
    if (hertz < d->low || hertz > d->high)
        pan(hertz - (d->low + d->high) / 2);
    setCursor(hertz);
}

void VisibleBand::addPin(double hertz)
{
    addPin(hertz, QString());
}

void VisibleBand::addPin(double hertz, const QString& name)
{
    if (!std::isfinite(hertz))
        return;
    if (d->pins.size() >= maximumPins)
        d->pins.erase(d->pins.begin());
    if (d->hasBand)
        hertz = std::clamp(hertz, d->bandLow, d->bandHigh);
    d->pins.push_back({hertz, pinName(name)});
    Q_EMIT pinsChanged();
}

std::optional<std::size_t> VisibleBand::pinNear(double hertz, double reach) const
{
    const auto nearest = std::ranges::min_element(
        d->pins, {}, [hertz](const Pin& pin) { return std::abs(pin.hertz - hertz); });
    if (nearest == d->pins.end() || !(std::abs(nearest->hertz - hertz) <= reach))
        return std::nullopt;
    return static_cast<std::size_t>(nearest - d->pins.begin());
}

void VisibleBand::movePin(std::size_t number, double hertz)
{
    if (number >= d->pins.size() || !std::isfinite(hertz))
        return;
    d->pins[number].hertz = std::clamp(hertz, d->bandLow, d->bandHigh);
    Q_EMIT pinsChanged();
}

void VisibleBand::namePin(std::size_t number, const QString& name)
{
    if (number >= d->pins.size() || d->pins[number].name == pinName(name))
        return;
    d->pins[number].name = pinName(name);
    Q_EMIT pinsChanged();
}

void VisibleBand::removePin(std::size_t number)
{
    if (number >= d->pins.size())
        return;
    d->pins.erase(d->pins.begin() + static_cast<std::ptrdiff_t>(number));
    Q_EMIT pinsChanged();
}

bool VisibleBand::removePinNear(double hertz, double reach)
{
    const std::optional<std::size_t> number = pinNear(hertz, reach);
    if (number)
        removePin(*number);
    return number.has_value();
}

void VisibleBand::clearPins()
{
    if (d->pins.empty())
        return;
    d->pins.clear();
    Q_EMIT pinsChanged();
}

} // namespace RadioPanes
