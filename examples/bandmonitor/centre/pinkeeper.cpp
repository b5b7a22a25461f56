// SPDX-License-Identifier: MIT
#include "centre/pinkeeper.h"

#include <radiopanes/panes/visibleband.h>

#include <valueframework/undorecording.h>

#include <QLocale>
#include <QScopedValueRollback>
#include <QStringList>
#include <QUrl>

#include <limits>

namespace bandmonitor {

namespace {

// A pin is a word: its frequency in hertz and, where it has a name, "=" and the name in percent
// encoding.

QStringList wordsOf(const QString& pins)
{
    return pins.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString wordOf(const Pin& pin)
{
    const QString hertz = QString::number(pin.hertz, 'g', QLocale::FloatingPointShortest);
    if (pin.name.isEmpty())
        return hertz;
    return hertz + QLatin1Char('=') + QString::fromLatin1(QUrl::toPercentEncoding(pin.name));
}

/// At NaN, which lies in no band, for what is no pin.
Pin pinOf(const QString& word)
{
    bool isNumber = false;
    const double hertz = word.section(QLatin1Char('='), 0, 0).toDouble(&isNumber);
    const QByteArray name = word.section(QLatin1Char('='), 1).toUtf8();
    return {isNumber ? hertz : std::numeric_limits<double>::quiet_NaN(),
            QUrl::fromPercentEncoding(name)};
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
        const Pin pin = pinOf(word);
        if (isInBand(pin.hertz))
            m_band->addPin(pin.hertz, pin.name);
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
    words.removeIf([this](const QString& word) { return isInBand(pinOf(word).hertz); });
    for (const Pin& pin : m_band->pins())
        words << wordOf(pin);
    const SessionValues::Step step = m_values->step(words.size() < before   ? tr("Remove pins")
                                                    : words.size() > before ? tr("Set pin")
                                                                            : tr("Change pin"));
    m_values->pins.SetValue(words.join(QLatin1Char(' ')));
}

} // namespace bandmonitor
