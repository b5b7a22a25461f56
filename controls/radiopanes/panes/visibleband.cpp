// SPDX-License-Identifier: MIT
#include "visibleband.h"

#include <algorithm>
#include <cmath>

namespace RadioPanes {

namespace {
constexpr double binsOfSmallestView = 8;
constexpr int maximumPins = 16;
} // namespace

VisibleBand::VisibleBand(QObject* parent)
    : QObject(parent)
{}

VisibleBand::~VisibleBand() = default;

void VisibleBand::setBand(double low, double high, double resolution)
{
    if (!AxisRange{low, high, 1}.isValid())
        return;
    m_bandLow = low;
    m_bandHigh = high;
    m_smallestSpan = std::clamp(resolution * binsOfSmallestView, (high - low) * 1e-9, high - low);
    m_low = low;
    m_high = high;
    m_cursor = (low + high) / 2;
    m_pins.clear();
    Q_EMIT rangeChanged();
    Q_EMIT cursorChanged();
    Q_EMIT pinsChanged();
}

bool VisibleBand::showsAll() const
{
    return m_low <= m_bandLow && m_high >= m_bandHigh;
}

void VisibleBand::zoom(double factor, double anchor)
{
    if (!(factor > 0) || !std::isfinite(factor) || !std::isfinite(anchor))
        return;
    const double span = m_high - m_low;
    const double newSpan = std::clamp(span / factor, m_smallestSpan, m_bandHigh - m_bandLow);
    const double share = std::clamp((anchor - m_low) / span, 0.0, 1.0);
    const double low = m_low + share * (span - newSpan);
    setVisible(low, low + newSpan);
}

void VisibleBand::zoomAtCursor(double factor)
{
    const bool inside = m_cursor >= m_low && m_cursor <= m_high;
    zoom(factor, inside ? m_cursor : (m_low + m_high) / 2);
}

void VisibleBand::setVisible(double low, double high)
{
    if (!std::isfinite(low) || !std::isfinite(high))
        return;
    if (high < low)
        std::swap(low, high);
    const double span = std::clamp(high - low, m_smallestSpan, m_bandHigh - m_bandLow);
    low = std::clamp((low + high - span) / 2, m_bandLow, m_bandHigh - span);
    high = std::min(low + span, m_bandHigh);
    if (low == m_low && high == m_high)
        return;
    m_low = low;
    m_high = high;
    Q_EMIT rangeChanged();
}

void VisibleBand::pan(double hertz)
{
    const double shift = std::clamp(hertz, m_bandLow - m_low, m_bandHigh - m_high);
    setVisible(m_low + shift, m_high + shift);
}

void VisibleBand::showAll()
{
    setVisible(m_bandLow, m_bandHigh);
}

void VisibleBand::setCursor(double hertz)
{
    if (!std::isfinite(hertz))
        return;
    hertz = std::clamp(hertz, m_bandLow, m_bandHigh);
    if (hertz == m_cursor)
        return;
    m_cursor = hertz;
    Q_EMIT cursorChanged();
}

void VisibleBand::stepCursor(int pixels, int width)
{
    if (width <= 0)
        return;
    setCursor(m_cursor + pixels * (m_high - m_low) / width);
    if (m_cursor < m_low)
        pan(m_cursor - m_low);
    else if (m_cursor > m_high)
        pan(m_cursor - m_high);
}

void VisibleBand::addPin(double hertz)
{
    if (!std::isfinite(hertz))
        return;
    if (m_pins.size() >= maximumPins)
        m_pins.erase(m_pins.begin());
    m_pins.push_back(std::clamp(hertz, m_bandLow, m_bandHigh));
    Q_EMIT pinsChanged();
}

bool VisibleBand::removePinNear(double hertz, double reach)
{
    const auto nearest =
        std::ranges::min_element(m_pins, {}, [hertz](double pin) { return std::abs(pin - hertz); });
    if (nearest == m_pins.end() || std::abs(*nearest - hertz) > reach)
        return false;
    m_pins.erase(nearest);
    Q_EMIT pinsChanged();
    return true;
}

void VisibleBand::clearPins()
{
    if (m_pins.empty())
        return;
    m_pins.clear();
    Q_EMIT pinsChanged();
}

} // namespace RadioPanes
