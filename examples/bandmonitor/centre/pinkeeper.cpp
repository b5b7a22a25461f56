// SPDX-License-Identifier: MIT
#include "centre/pinkeeper.h"

#include <radiopanes/panes/visibleband.h>

#include <valueframework/undorecording.h>

#include <QLocale>
#include <QScopedValueRollback>
#include <QStringList>

#include <limits>

namespace bandmonitor {

namespace {

QStringList wordsOf(const QString& pins)
{
    return pins.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// In hertz; NaN, which lies in no band, for what is no number.
double pinOf(const QString& word)
{
    bool isNumber = false;
    const double hertz = word.toDouble(&isNumber);
    return isNumber ? hertz : std::numeric_limits<double>::quiet_NaN();
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
    const QStringList words = wordsOf(m_values->pins.GetValue());
    for (const QString& word : words) {
        if (isInBand(pinOf(word)))
            m_band->addPin(pinOf(word));
    }
}

void PinKeeper::takePins()
{
    if (m_isShowing)
        return;
    const QScopedValueRollback showing(m_isShowing, true);
    // What is not shown here stays, even when nobody can read it.
    QStringList words = wordsOf(m_values->pins.GetValue());
    const qsizetype before = words.size();
    words.removeIf([this](const QString& word) { return isInBand(pinOf(word)); });
    for (const double hertz : m_band->pins())
        words << QString::number(hertz, 'g', QLocale::FloatingPointShortest);
    const SessionValues::Step step =
        m_values->step(words.size() < before ? tr("Remove pins") : tr("Set pin"));
    m_values->pins.SetValue(words.join(QLatin1Char(' ')));
}

} // namespace bandmonitor
