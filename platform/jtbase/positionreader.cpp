// SPDX-License-Identifier: MIT
#include "positionreader.h"

#include "anglereader_p.h"
#include "numbercharacters.h"
#include "utmgrid_p.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <cmath>

namespace {

constexpr qsizetype longestText = 100;
const QString gridLetters = QStringLiteral("ABCDEFGHJKLMNPQRSTUVWXYZ");

/// The same text in capital letters, with one character for each sign.
QString plainText(QStringView text)
{
    QString plain;
    for (const QChar c : text) {
        const char meaning = NumberCharacters::meaningOf(c.unicode());
        if (QStringView(u"°º˚").contains(c))
            plain += u'°';
        else if (QStringView(u"'′’´`").contains(c))
            plain += u'\'';
        else if (QStringView(u"\"″”“").contains(c))
            plain += u'"';
        else if (c.isSpace() || c == u':')
            plain += u' ';
        else if (c.isLetter())
            plain += c.toUpper();
        else if (meaning != '\0')
            plain += QLatin1Char(meaning);
        else if (!NumberCharacters::isDirectionMark(c.unicode()))
            plain += c;
    }
    return plain.replace(QStringLiteral("''"), QStringLiteral("\"")).trimmed();
}

PositionReading found(const GeoPosition& position, CoordFormat format)
{
    return {position, format, PositionReading::None};
}

PositionReading noSuchSquare(CoordFormat format)
{
    return {{}, format, PositionReading::NoSuchSquare};
}

double metres(QString digits)
{
    return digits.replace(u',', u'.').toDouble();
}

/// The square that formatPosition() has rounded to; else, where eastings of a neighbouring zone are
/// in use, the point itself.
PositionReading readUtm(const QString& plain)
{
    static const QRegularExpression shape(
        QStringLiteral(R"(^(\d{1,2}) *([C-HJ-NP-X])[ ,;]*(\d{6}(?:[.,]\d{1,9})?) *M? *E?)"
                       R"((?:[ ,;]+|(?=\d{7}$))(\d{1,8}(?:[.,]\d{1,9})?) *M? *N?$)"));
    const QRegularExpressionMatch match = shape.match(plain);
    if (!match.hasMatch())
        return {};
    const int zone = match.captured(1).toInt();
    const QChar band = match.captured(2).front();
    const double easting = metres(match.captured(3));
    const double northing = metres(match.captured(4));
    if (zone < 1 || zone > 60 || northing > UtmGrid::falseNorthing)
        return noSuchSquare(CoordFormat::Utm);
    if (const auto position = UtmGrid::insideOfSquare({zone, band, easting, northing}, 1.0))
        return found(*position, CoordFormat::Utm);
    for (const bool isHemisphere : {false, true}) {
        if (isHemisphere && band != u'N' && band != u'S')
            break;
        const bool isNorthern = isHemisphere ? band == u'N' : UtmGrid::isNorthernBand(band);
        const GeoPosition position = UtmGrid::toPosition(zone, isNorthern, easting, northing);
        const auto point = UtmGrid::fromPosition(position);
        if (point && (isHemisphere ? UtmGrid::isNorthernBand(point->band) == isNorthern
                                   : point->band == band))
            return found(position, CoordFormat::Utm);
    }
    return noSuchSquare(CoordFormat::Utm);
}

PositionReading readMgrs(const QString& plain)
{
    static const QRegularExpression shape(QStringLiteral(
        R"(^(\d{1,2}) *([C-HJ-NP-X]) *([A-HJ-NP-Z]) *([A-HJ-NP-V])((?: *\d){0,10})$)"));
    const QRegularExpressionMatch match = shape.match(plain);
    const QString digits = match.captured(5).remove(u' ');
    if (!match.hasMatch() || digits.size() % 2 != 0)
        return {};
    constexpr double squareSize = 100'000;
    constexpr int rowsInCycle = 20;
    const int zone = match.captured(1).toInt();
    const auto column = gridLetters.indexOf(match.captured(3)) - qsizetype{(zone - 1) % 3} * 8;
    const auto row = gridLetters.indexOf(match.captured(4)) + (zone % 2 == 0 ? rowsInCycle - 5 : 0);
    if (zone < 1 || zone > 60 || column < 0 || column > 7)
        return noSuchSquare(CoordFormat::Mgrs);
    const auto half = digits.size() / 2;
    const double size = squareSize / std::pow(10.0, half);
    const double easting = (static_cast<double>(column) + 1) * squareSize +
                           (digits.first(half).toDouble() + 0.5) * size;
    const double northing = static_cast<double>(row % rowsInCycle) * squareSize +
                            (digits.last(half).toDouble() + 0.5) * size;
    // The letters of the rows begin again every 2,000 km; the band tells where.
    constexpr double cycleSize = rowsInCycle * squareSize;
    for (int cycle = 0; cycle * cycleSize < UtmGrid::falseNorthing; ++cycle) {
        const UtmGrid::Point centre{zone, match.captured(2).front(), easting,
                                    northing + cycle * cycleSize};
        if (const auto position = UtmGrid::insideOfSquare(centre, size))
            return found(*position, CoordFormat::Mgrs);
    }
    return noSuchSquare(CoordFormat::Mgrs);
}

/// Pairs of letters and digits in turn, each finer than the one before.
PositionReading readMaidenhead(const QString& plain)
{
    static const QRegularExpression shape(
        QStringLiteral(R"(^[A-R]{2}\d{2}(?:[A-X]{2}(?:\d{2}(?:[A-X]{2})?)?)?$)"));
    if (!shape.match(plain).hasMatch())
        return {};
    double cell = 10; // in degrees of latitude; those of longitude are twice as wide
    GeoPosition corner{-90, -180};
    for (qsizetype i = 0; i < plain.size(); i += 2) {
        const bool isLetters = i % 4 == 0;
        if (i > 0)
            cell /= isLetters ? 24 : 10;
        const char16_t first = isLetters ? u'A' : u'0';
        corner.longitude += 2 * cell * (plain[i].unicode() - first);
        corner.latitude += cell * (plain[i + 1].unicode() - first);
    }
    return found({corner.latitude + cell / 2, corner.longitude + cell},
                 CoordFormat::MaidenheadLocator);
}

PositionReading readGeoref(const QString& plain)
{
    static const QRegularExpression shape(
        QStringLiteral(R"(^([A-HJ-NP-Z])([A-HJ-M])([A-HJ-NP-Q])([A-HJ-NP-Q])((?:\d\d){0,5})$)"));
    const QRegularExpressionMatch match = shape.match(plain);
    if (!match.hasMatch())
        return {};
    const auto index = [&](int capture) {
        return static_cast<double>(gridLetters.indexOf(match.captured(capture)));
    };
    const QString digits = match.captured(5);
    const auto half = digits.size() / 2;
    const double cell = half == 0 ? 60 : std::pow(10.0, 2 - half); // in minutes
    const auto minutes = [cell](const QString& part) { return (part.toDouble() + 0.5) * cell; };
    const double east = minutes(digits.first(half));
    const double north = minutes(digits.last(half));
    if (east > 60 || north > 60)
        return {{}, CoordFormat::Georef, PositionReading::BeyondSixty};
    return found(
        {index(2) * 15 + index(4) + north / 60 - 90, index(1) * 15 + index(3) + east / 60 - 180},
        CoordFormat::Georef);
}

QString translated(const char* text)
{
    return QCoreApplication::translate("PositionReader", text);
}

} // namespace

PositionReading readPosition(QStringView text)
{
    if (text.size() > longestText)
        return {};
    const QString plain = plainText(text);
    const QString code = QString(plain).remove(u' ');
    PositionReading reading = readUtm(plain);
    if (reading.fault == PositionReading::Unreadable)
        reading = readMgrs(plain);
    if (reading.fault == PositionReading::Unreadable)
        reading = readMaidenhead(code);
    if (reading.fault == PositionReading::Unreadable)
        reading = readGeoref(code);
    return reading.fault == PositionReading::Unreadable ? readAngles(plain) : reading;
}

QString positionRefusal(const PositionReading& reading, CoordFormat wanted)
{
    switch (reading.fault) {
    case PositionReading::None:
        return {};
    case PositionReading::BeyondPole:
        return translated(QT_TRANSLATE_NOOP("PositionReader", "A latitude is at most 90°."));
    case PositionReading::BeyondMeridian:
        return translated(QT_TRANSLATE_NOOP("PositionReader", "A longitude is at most 180°."));
    case PositionReading::BeyondSixty:
        return translated(
            QT_TRANSLATE_NOOP("PositionReader", "Minutes and seconds are less than 60."));
    case PositionReading::NoSuchSquare:
        return translated(
            QT_TRANSLATE_NOOP("PositionReader", "The grid has no such place in this zone."));
    case PositionReading::Unreadable:
        break;
    }
    constexpr GeoPosition sample{48.13731, 11.57528};
    return translated(QT_TRANSLATE_NOOP("PositionReader", "Type a position such as %1."))
        .arg(formatPosition(sample.latitude, sample.longitude, wanted));
}
