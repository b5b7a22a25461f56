// SPDX-License-Identifier: MIT
#include "centre/pinkeeper.h"

#include <radiopanes/panes/visibleband.h>

#include <valueframework/undorecording.h>

#include <QLocale>
#include <QScopedValueRollback>
#include <QStringList>

namespace bandmonitor {

namespace {

std::vector<double> pinsOf(const QString& text)
{
    std::vector<double> pins;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        bool isNumber = false;
        const double hertz = word.toDouble(&isNumber);
        if (isNumber)
            pins.push_back(hertz);
    }
    return pins;
}

} // namespace

PinKeeper::PinKeeper(std::shared_ptr<SessionValues> values, VisibleBand* band, QObject* parent)
    : QObject(parent)
    , m_values(std::move(values))
    , m_band(band)
{
    connect(m_band, &VisibleBand::pinsChanged, this, &PinKeeper::takePins);
    m_followers = SessionValues::follow({&m_values->pins}, [this] { showPins(); });
}

PinKeeper::~PinKeeper() = default;

bool PinKeeper::isInBand(double hertz) const
{
    return hertz >= m_band->bandLow() && hertz <= m_band->bandHigh();
}

void PinKeeper::changeBand(const std::function<void()>& change)
{
    {
        const QScopedValueRollback showing(m_isShowing, true);
        change();
    }
    showPins();
}

void PinKeeper::showPins()
{
    if (m_isShowing)
        return;
    const QScopedValueRollback showing(m_isShowing, true);
    m_band->clearPins();
    for (const double hertz : pinsOf(m_values->pins.GetValue())) {
        if (isInBand(hertz))
            m_band->addPin(hertz);
    }
}

void PinKeeper::takePins()
{
    if (m_isShowing)
        return;
    const QScopedValueRollback showing(m_isShowing, true);
    std::vector<double> pins = pinsOf(m_values->pins.GetValue());
    const std::size_t before = pins.size();
    std::erase_if(pins, [this](double hertz) { return isInBand(hertz); });
    pins.insert(pins.end(), m_band->pins().begin(), m_band->pins().end());
    QStringList words;
    for (const double hertz : pins)
        words << QString::number(hertz, 'g', QLocale::FloatingPointShortest);
    const SessionValues::Step step =
        m_values->step(pins.size() < before ? tr("Remove pins") : tr("Set pin"));
    m_values->pins.SetValue(words.join(QLatin1Char(' ')));
}

} // namespace bandmonitor
