// SPDX-License-Identifier: MIT
#include "panels/referencelevels.h"

#include <guibase/frequencies/suffixeddouble.h>

#include <jtbase/numberhelpers.h>

#include <QRegularExpression>

#include <cmath>

namespace bandmonitor::ReferenceLevels {

namespace {
constexpr double highestHertz = 10e12;
constexpr double largestLevelDb = 1000;
constexpr double megahertz = 1e6;
constexpr int decimals = 9;
} // namespace

std::optional<double> readFrequency(const QString& text)
{
    SuffixedDouble number(QStringLiteral("Hz"), 1000, false);
    number.SetFrequencyString(text);
    const double hertz = number.GetValue();
    return hertz > 0 && hertz <= highestHertz ? std::optional(hertz) : std::nullopt;
}

std::optional<double> readLevel(const QString& text)
{
    static const QRegularExpression unit(QStringLiteral("\\s*dB[\\w/µ]*\\s*$"),
                                         QRegularExpression::CaseInsensitiveOption);
    QString number = text;
    number.remove(unit);
    bool ok = false;
    const double level = Trov::toDoubleEx(number, &ok);
    return ok && std::abs(level) <= largestLevelDb ? std::optional(level) : std::nullopt;
}

QString writeFrequency(double hertz)
{
    return QStringLiteral("%1 MHz").arg(hertz / megahertz, 0, 'f', decimals);
}

} // namespace bandmonitor::ReferenceLevels
