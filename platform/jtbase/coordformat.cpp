// SPDX-License-Identifier: MIT
#include "coordformat.h"

#include "utmgrid_p.h"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace {

constexpr const char* translationContext = "CoordFormat";

constexpr std::array<const char*, coordFormatCount> formatNames = {
    QT_TRANSLATE_NOOP("CoordFormat", "Degrees, minutes, seconds"),
    QT_TRANSLATE_NOOP("CoordFormat", "Degrees, minutes"),
    QT_TRANSLATE_NOOP("CoordFormat", "Degrees"),
    QT_TRANSLATE_NOOP("CoordFormat", "Degrees with sign"),
    QT_TRANSLATE_NOOP("CoordFormat", "UTM"),
    QT_TRANSLATE_NOOP("CoordFormat", "MGRS"),
    QT_TRANSLATE_NOOP("CoordFormat", "Maidenhead locator"),
    QT_TRANSLATE_NOOP("CoordFormat", "GEOREF"),
};

QString padded(qint64 number, int digits)
{
    return QStringLiteral("%1").arg(number, digits, 10, QLatin1Char('0'));
}

QChar letter(const char* alphabet, qint64 index)
{
    return QLatin1Char(alphabet[index]);
}

/// The number of whole units in `value`. What computing in binary takes away from a value on the
/// border between two units is given back.
qint64 wholeUnits(double value)
{
    constexpr double computingError = 1e-8;
    return static_cast<qint64>(std::floor(value + computingError));
}

/// One angle as a hemisphere letter and a fixed number of decimals of the smallest unit.
struct AngleStyle
{
    qint64 unitsPerDegree; ///< 1, 60 or 3600: degrees, minutes or seconds come last.
    int decimals;
};

QString formatAngle(double angle, QLatin1String hemispheres, int degreeDigits, AngleStyle style)
{
    const auto scale = static_cast<qint64>(std::llround(std::pow(10.0, style.decimals)));
    const double unit = static_cast<double>(style.unitsPerDegree * scale);
    // Rounded before it is taken apart, so that 59.99' carries over to the next degree.
    const qint64 total = std::llround(std::abs(angle) * unit);
    const QChar hemisphere = hemispheres[angle < 0 && total != 0 ? 1 : 0];
    const QString fraction = QLatin1Char('.') + padded(total % scale, style.decimals);
    qint64 whole = total / scale;
    QString text;
    if (style.unitsPerDegree == 3600) {
        text = padded(whole % 60, 2) + fraction + QLatin1Char('"');
        whole /= 60;
    }
    if (style.unitsPerDegree >= 60) {
        const QString minutes = padded(whole % 60, 2);
        text = minutes + (text.isEmpty() ? fraction : QString()) + QLatin1Char('\'') + text;
        whole /= 60;
    }
    const QString degrees = padded(whole, degreeDigits);
    text = degrees + (text.isEmpty() ? fraction : QString()) + QChar(u'°') + text;
    return hemisphere + QLatin1Char(' ') + text;
}

QString formatAngles(double latitude, double longitude, AngleStyle style)
{
    return formatAngle(latitude, QLatin1String("NS"), 2, style) + QLatin1Char(' ') +
           formatAngle(longitude, QLatin1String("EW"), 3, style);
}

QString formatSignedDegrees(double latitude, double longitude)
{
    const auto number = [](double angle) {
        constexpr int decimals = 5;
        const QString text = QString::number(angle, 'f', decimals);
        return text == QLatin1String("-0.00000") ? text.mid(1) : text;
    };
    return number(latitude) + QLatin1Char(' ') + number(longitude);
}

QString formatUtm(const UtmGrid::Point& position)
{
    return QStringLiteral("%1%2 %3 %4")
        .arg(padded(position.zone, 2), position.band, padded(std::llround(position.easting), 6),
             padded(std::llround(position.northing), 7));
}

/// The square of one metre in which the position lies: as grid references do, digits are cut.
QString formatMgrs(const UtmGrid::Point& position)
{
    constexpr std::array<const char*, 3> columns = {"ABCDEFGH", "JKLMNPQR", "STUVWXYZ"};
    constexpr char rows[] = "ABCDEFGHJKLMNPQRSTUV";
    constexpr qint64 squareSize = 100'000;
    const qint64 easting = wholeUnits(position.easting);
    const qint64 northing = wholeUnits(position.northing);
    const auto columnSet = static_cast<std::size_t>((position.zone - 1) % 3);
    const QChar column = letter(columns[columnSet], easting / squareSize - 1);
    const qint64 rowOffset = position.zone % 2 == 0 ? 5 : 0;
    const QChar row = letter(rows, (northing / squareSize + rowOffset) % 20);
    return QStringLiteral("%1%2 %3%4 %5 %6")
        .arg(padded(position.zone, 2), position.band, column, row, padded(easting % squareSize, 5),
             padded(northing % squareSize, 5));
}

/// Counts the cells of a grid over the globe: from 90° S or 180° W, the poles in the last cell.
qint64 latitudeCells(double latitude, int cellsPerDegree)
{
    return qMin(wholeUnits((latitude + 90.0) * cellsPerDegree), 180LL * cellsPerDegree - 1);
}

qint64 longitudeCells(double longitude, int cellsPerDegree)
{
    return wholeUnits((longitude + 180.0) * cellsPerDegree) % (360LL * cellsPerDegree);
}

/// Field (20° x 10°), square (2° x 1°) and subsquare (5' x 2.5').
QString formatMaidenhead(double latitude, double longitude)
{
    constexpr char letters[] = "ABCDEFGHIJKLMNOPQRSTUVWX";
    const qint64 east = longitudeCells(longitude, 12);
    const qint64 north = latitudeCells(latitude, 24);
    return QString(letter(letters, east / 240)) + letter(letters, north / 240) +
           QString::number(east / 24 % 10) + QString::number(north / 24 % 10) +
           letter(letters, east % 24) + letter(letters, north % 24);
}

/// Quadrangle of 15°, degree, and minutes with two decimals, each time first east, then north.
QString formatGeoref(double latitude, double longitude)
{
    constexpr char letters[] = "ABCDEFGHJKLMNPQRSTUVWXYZ";
    constexpr int cellsPerDegree = 6000;
    const qint64 east = longitudeCells(longitude, cellsPerDegree);
    const qint64 north = latitudeCells(latitude, cellsPerDegree);
    const qint64 eastDegree = east / cellsPerDegree;
    const qint64 northDegree = north / cellsPerDegree;
    return QString(letter(letters, eastDegree / 15)) + letter(letters, northDegree / 15) +
           letter(letters, eastDegree % 15) + letter(letters, northDegree % 15) +
           padded(east % cellsPerDegree, 4) + padded(north % cellsPerDegree, 4);
}

} // namespace

QString getTranslatedCoordFormatName(CoordFormat format)
{
    const int index = static_cast<int>(format);
    if (index < 0 || index >= coordFormatCount)
        return QString();
    return QCoreApplication::translate(translationContext,
                                       formatNames[static_cast<std::size_t>(index)]);
}

QString formatPosition(double latitude, double longitude, CoordFormat format)
{
    if (!GeoPosition{latitude, longitude}.isValid())
        return QString();
    switch (format) {
    case CoordFormat::DegreesMinutesSeconds:
        return formatAngles(latitude, longitude, {3600, 1});
    case CoordFormat::DegreesMinutes:
        return formatAngles(latitude, longitude, {60, 3});
    case CoordFormat::Degrees:
        return formatAngles(latitude, longitude, {1, 5});
    case CoordFormat::SignedDegrees:
        return formatSignedDegrees(latitude, longitude);
    case CoordFormat::Utm:
    case CoordFormat::Mgrs: {
        const auto position = UtmGrid::fromPosition({latitude, longitude});
        if (!position)
            return QString();
        return format == CoordFormat::Utm ? formatUtm(*position) : formatMgrs(*position);
    }
    case CoordFormat::MaidenheadLocator:
        return formatMaidenhead(latitude, longitude);
    case CoordFormat::Georef:
        return formatGeoref(latitude, longitude);
    }
    return QString();
}
