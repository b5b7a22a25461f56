// SPDX-License-Identifier: MIT
#include "bandplan.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace RadioPanes {

namespace {

constexpr qsizetype maximumErrors = 10;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RadioPanes::BandPlan)
};

bool isEntry(const BandPlan::Entry& entry)
{
    return entry.startHz >= -BandPlan::highestHz && entry.stopHz <= BandPlan::highestHz &&
           entry.startHz <= entry.stopHz;
}

/// "87.5 MHz", "-12e3".
std::optional<double> hertzOf(QStringView text)
{
    constexpr std::array units{std::pair("khz", 1e3), std::pair("mhz", 1e6), std::pair("ghz", 1e9),
                               std::pair("hz", 1.0)};
    text = text.trimmed();
    double factor = 1;
    for (const auto& [unit, hertz] : units) {
        const QLatin1String suffix(unit);
        if (text.endsWith(suffix, Qt::CaseInsensitive)) {
            factor = hertz;
            text = text.chopped(suffix.size()).trimmed();
            break;
        }
    }
    bool isNumber = false;
    const double hertz = QLocale::c().toDouble(text, &isNumber) * factor;
    if (!isNumber || !(std::abs(hertz) <= BandPlan::highestHz))
        return std::nullopt;
    return hertz;
}

/// The entry of a line, or what is wrong with it.
QString readLine(QStringView line, BandPlan::Entry& entry)
{
    const auto next = [&line] {
        const qsizetype comma = line.indexOf(QLatin1Char(','));
        const QStringView field = comma < 0 ? line : line.first(comma);
        line = comma < 0 ? QStringView() : line.sliced(comma + 1);
        return field.trimmed();
    };
    const QStringView first = next();
    const std::optional<double> start = hertzOf(first);
    if (!start)
        return Texts::tr("“%1” is no frequency").arg(first.left(40));
    const QStringView rest = line;
    const std::optional<double> stop = hertzOf(next());
    entry.startHz = *start;
    entry.stopHz = stop.value_or(*start);
    entry.name = (stop ? line : rest).trimmed().toString();
    if (entry.stopHz < entry.startHz)
        return Texts::tr("the stop is below the start");
    return {};
}

} // namespace

BandPlan::BandPlan() = default;

BandPlan::BandPlan(std::vector<Entry> entries)
    : m_entries(std::move(entries))
{
    std::erase_if(m_entries, [](const Entry& entry) { return !isEntry(entry); });
    if (m_entries.size() > maximumEntries)
        m_entries.resize(maximumEntries);
    for (Entry& entry : m_entries)
        entry.name = entry.name.simplified().left(maximumName).trimmed();
    std::ranges::stable_sort(m_entries, {}, &Entry::startHz);
}

QString BandPlan::text() const
{
    const auto number = [](double hertz) {
        return QString::number(hertz, 'f', QLocale::FloatingPointShortest);
    };
    QString result;
    for (const Entry& entry : m_entries)
        result += number(entry.startHz) + QLatin1String(", ") + number(entry.stopHz) +
                  QLatin1String(", ") + entry.name + QLatin1Char('\n');
    return result;
}

BandPlan::Reading BandPlan::parse(const QString& text)
{
    std::vector<Entry> entries;
    QStringList errors;
    int number = 0;
    for (const QStringView raw : QStringView(text).split(QLatin1Char('\n'))) {
        ++number;
        const QStringView line = raw.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        if (entries.size() == maximumEntries) {
            errors << Texts::tr("Line %1: more than %2 entries").arg(number).arg(maximumEntries);
            break;
        }
        Entry entry;
        const QString error = readLine(line, entry);
        if (error.isEmpty())
            entries.push_back(std::move(entry));
        else if (errors.size() < maximumErrors)
            errors << Texts::tr("Line %1: %2. Expected: start, stop, name – as in "
                                "“87.5 MHz, 108 MHz, FM broadcast”.")
                          .arg(number)
                          .arg(error);
    }
    return {BandPlan(std::move(entries)), errors};
}

BandPlan::Reading BandPlan::read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, {Texts::tr("%1 cannot be read: %2").arg(path, file.errorString())}};
    const QByteArray bytes = file.read(maximumBytes + 1);
    if (bytes.size() > maximumBytes)
        return {{}, {Texts::tr("%1 is no band plan: it has more than 4 MB").arg(path)}};
    return parse(QString::fromUtf8(bytes));
}

} // namespace RadioPanes
