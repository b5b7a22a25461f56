// SPDX-License-Identifier: MIT
#include "geoposition.h"

#include "positionreader.h"
#include "utmgrid_p.h"

#include <QLocale>

#include <cmath>
#include <limits>

namespace {

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();
constexpr GeoPosition nowhere{unknown, unknown};

bool convertFromText(const void* source, void* target)
{
    const QString& text = *static_cast<const QString*>(source);
    GeoPosition& position = *static_cast<GeoPosition*>(target);
    const PositionReading reading = readPosition(text);
    position = text.isEmpty() ? nowhere : reading.position;
    return text.isEmpty() || reading.isRead();
}

void registerConverters()
{
    QMetaType::registerConverter<GeoPosition, QString>(&GeoPosition::text);
    QMetaType::registerConverterFunction(&convertFromText, QMetaType::fromType<QString>(),
                                         QMetaType::fromType<GeoPosition>());
}
Q_CONSTRUCTOR_FUNCTION(registerConverters)

} // namespace

bool GeoPosition::isValid() const
{
    // Written so that NaN is refused too.
    return std::abs(latitude) <= 90.0 && std::abs(longitude) <= 180.0;
}

QString GeoPosition::text() const
{
    if (!isValid())
        return {};
    const auto number = [](double degrees) {
        return QString::number(degrees, 'f', QLocale::FloatingPointShortest);
    };
    return number(latitude) + QLatin1Char(' ') + number(longitude);
}

GeoPosition GeoPosition::movedInGrid(double east, double north) const
{
    const auto point = UtmGrid::fromPosition(*this);
    if (!point)
        return nowhere;
    const GeoPosition moved = UtmGrid::toPosition(point->zone, UtmGrid::isNorthernBand(point->band),
                                                  point->easting + east, point->northing + north);
    return UtmGrid::fromPosition(moved) ? moved : nowhere;
}

bool GeoArea::contains(const GeoPosition& position) const
{
    if (!position.isValid() || position.latitude < south || position.latitude > north)
        return false;
    const bool isEastOfWest = position.longitude >= west;
    const bool isWestOfEast = position.longitude <= east;
    return west <= east ? isEastOfWest && isWestOfEast : isEastOfWest || isWestOfEast;
}
