// SPDX-License-Identifier: MIT
#include "positionfields_p.h"

#include <cmath>
#include <span>

namespace {

using Fields = std::vector<PositionField>;
using enum PositionField::Axis;

constexpr double minute = 1.0 / 60;
constexpr double second = 1.0 / 3600;
constexpr double zoneWidth = 6;
constexpr double bandHeight = 8;
constexpr double squareSize = 100'000;

constexpr PositionField secondFields[] = {
    {0, 1, LatitudeSign, 0},         {2, 4, Latitude, 1},
    {5, 7, Latitude, minute},        {8, 10, Latitude, second},
    {11, 12, Latitude, second / 10}, {14, 15, LongitudeSign, 0},
    {16, 19, Longitude, 1},          {20, 22, Longitude, minute},
    {23, 25, Longitude, second},     {26, 27, Longitude, second / 10},
};
constexpr PositionField minuteFields[] = {
    {0, 1, LatitudeSign, 0},     {2, 4, Latitude, 1},
    {5, 7, Latitude, minute},    {8, 11, Latitude, minute / 1000},
    {13, 14, LongitudeSign, 0},  {15, 18, Longitude, 1},
    {19, 21, Longitude, minute}, {22, 25, Longitude, minute / 1000},
};
constexpr PositionField degreeFields[] = {
    {0, 1, LatitudeSign, 0},    {2, 4, Latitude, 1},    {5, 10, Latitude, 1e-5},
    {12, 13, LongitudeSign, 0}, {14, 17, Longitude, 1}, {18, 23, Longitude, 1e-5},
};
constexpr PositionField utmFields[] = {
    {0, 2, Longitude, zoneWidth},
    {2, 3, Latitude, bandHeight},
    {4, 10, Easting, 1},
    {11, 18, Northing, 1},
};
constexpr PositionField mgrsFields[] = {
    {0, 2, Longitude, zoneWidth}, {2, 3, Latitude, bandHeight}, {4, 5, Easting, squareSize},
    {5, 6, Northing, squareSize}, {7, 12, Easting, 1},          {13, 18, Northing, 1},
};
constexpr PositionField locatorFields[] = {
    {0, 1, Longitude, 20}, {1, 2, Latitude, 10},          {2, 3, Longitude, 2},
    {3, 4, Latitude, 1},   {4, 5, Longitude, 5 * minute}, {5, 6, Latitude, 2.5 * minute},
};
constexpr PositionField georefFields[] = {
    {0, 1, Longitude, 15},     {1, 2, Latitude, 15},
    {2, 3, Longitude, 1},      {3, 4, Latitude, 1},
    {4, 6, Longitude, minute}, {6, 8, Longitude, minute / 100},
    {8, 10, Latitude, minute}, {10, 12, Latitude, minute / 100},
};

struct Layout
{
    const char16_t* mask;
    std::span<const PositionField> fields;
};

#define GUIBASE_BANDS u"[C-HJ-NP-X]"
/// In the order of CoordFormat; the numbers with a sign have texts of any length.
constexpr Layout layouts[coordFormatCount] = {
    {u"[NS] 99°99'99.9\" [EW] 999°99'99.9\"", secondFields},
    {u"[NS] 99°99.999' [EW] 999°99.999'", minuteFields},
    {u"[NS] 99.99999° [EW] 999.99999°", degreeFields},
    {u"", {}},
    {u"99" GUIBASE_BANDS u" 999999 9999999", utmFields},
    {u"99" GUIBASE_BANDS u" [A-HJ-NP-Z][A-HJ-NP-V] 99999 99999", mgrsFields},
    {u"[A-R][A-R]99[A-X][A-X]", locatorFields},
    {u"[A-HJ-NP-Z][A-HJ-M][A-HJ-NP-Q][A-HJ-NP-Q]99999999", georefFields},
};
#undef GUIBASE_BANDS

const Layout& layoutOf(CoordFormat format)
{
    return layouts[static_cast<std::size_t>(format)];
}

/// Degrees and their decimals, twice.
Fields signedFields(const QString& text)
{
    Fields fields;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!text[i].isDigit())
            continue;
        const qsizetype begin = i;
        while (i < text.size() && text[i].isDigit())
            ++i;
        const bool isDecimals = begin > 0 && text[begin - 1] == u'.';
        const auto digits = static_cast<double>(i - begin);
        fields.push_back({begin, i, fields.size() < 2 ? Latitude : Longitude,
                          isDecimals ? std::pow(10.0, -digits) : 1.0});
    }
    return fields;
}

} // namespace

std::optional<PositionField> PositionField::at(CoordFormat format, const QString& text,
                                               qsizetype place)
{
    const auto& table = layoutOf(format).fields;
    const Fields fields = format == CoordFormat::SignedDegrees ? signedFields(text)
                                                               : Fields(table.begin(), table.end());
    std::optional<PositionField> found;
    for (const PositionField& field : fields) {
        if (field.end <= text.size() && (!found || field.begin <= place))
            found = field;
    }
    return found;
}

std::optional<GeoPosition> PositionField::stepped(const GeoPosition& position, double units) const
{
    GeoPosition result = position;
    switch (axis) {
    case Latitude:
        result.latitude += units * unit;
        break;
    case Longitude:
        result.longitude = std::remainder(position.longitude + units * unit, 360.0);
        break;
    case LatitudeSign:
        result.latitude = std::copysign(position.latitude, units);
        break;
    case LongitudeSign:
        result.longitude = std::copysign(position.longitude, units);
        break;
    case Easting:
        result = position.movedInGrid(units * unit, 0);
        break;
    case Northing:
        result = position.movedInGrid(0, units * unit);
        break;
    }
    return result.isValid() ? std::optional(result) : std::nullopt;
}

QString positionMask(CoordFormat format)
{
    return QString::fromUtf16(layoutOf(format).mask);
}
