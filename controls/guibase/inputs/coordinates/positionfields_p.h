// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/coordformat.h>
#include <jtbase/geoposition.h>

#include <QString>

#include <optional>
#include <vector>

/// A part of the text of a position that is stepped by itself: the minutes, the easting, a letter.
struct PositionField
{
    /// What a step moves along; the signs change the hemisphere.
    enum Axis { Latitude, Longitude, LatitudeSign, LongitudeSign, Easting, Northing };

    qsizetype begin;
    qsizetype end;
    Axis axis;
    double unit; ///< What one in the last digit is worth, in degrees or metres.

    /// The field behind the place in the text that formatPosition() has written or, at the end of a
    /// field, that one, else the nearest one before. Nothing for an empty text.
    static std::optional<PositionField> at(CoordFormat format, const QString& text,
                                           qsizetype place);
    /// That many units further; nothing beyond a pole. Longitudes go on behind 180°.
    std::optional<GeoPosition> stepped(const GeoPosition& position, double units) const;
};

/// The shape of the texts for a MaskedLineEdit; empty for texts of any length.
QString positionMask(CoordFormat format);
