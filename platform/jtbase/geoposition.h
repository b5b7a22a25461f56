// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QMetaType>
#include <QString>

/// A WGS 84 position in degrees, north and east positive. Variants convert it to text(), and from
/// that or whatever else readPosition() reads.
struct JTBASE_EXPORT GeoPosition
{
    /// In degrees.
    double latitude = 0;
    double longitude = 0;

    /// Latitude -90 to 90 and longitude -180 to 180.
    bool isValid() const;
    /// "48.13731 11.57528", with as many digits as it takes to read the same position again. Empty
    /// for one that is not valid.
    QString text() const;

    /// So many metres further in the UTM grid of its zone. Not valid outside the grid, which ends
    /// at 80° S and 84° N.
    GeoPosition movedInGrid(double east, double north) const;

    /// To the last digit; all that are not valid are the same.
    friend bool operator==(const GeoPosition& a, const GeoPosition& b)
    {
        return (a.latitude == b.latitude && a.longitude == b.longitude) ||
               (!a.isValid() && !b.isValid());
    }
};

Q_DECLARE_METATYPE(GeoPosition)

/// A part of the globe between two parallels and two meridians, in degrees; at first the globe.
/// With `west` greater than `east` it goes across 180°.
struct JTBASE_EXPORT GeoArea
{
    /// The parallels and meridians at its borders.
    double south = -90;
    double west = -180;
    double north = 90;
    double east = 180;

    /// The borders belong to it. Never for a position that is not valid.
    bool contains(const GeoPosition& position) const;

    /// To the last digit.
    friend bool operator==(const GeoArea&, const GeoArea&) = default;
};
