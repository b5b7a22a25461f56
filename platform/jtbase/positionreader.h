// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/coordformat.h>
#include <jtbase/geoposition.h>
#include <jtbase/jtbase_export.h>

#include <QStringView>

/// What a text says about a position.
struct PositionReading
{
    /// Why a text is no position.
    enum Fault {
        None,
        Unreadable,     ///< It has the shape of no format.
        BeyondPole,     ///< Its latitude is above 90°.
        BeyondMeridian, ///< Its longitude is above 180°.
        BeyondSixty,    ///< It has 60 minutes or seconds, or more.
        NoSuchSquare,   ///< The grid has no such place.
    };

    /// What the text says, unless there is a fault.
    GeoPosition position;
    CoordFormat format = CoordFormat::SignedDegrees; ///< The one that is nearest to the text.
    /// None for a text that was read.
    Fault fault = Unreadable;
    bool isRead() const { return fault == None; }
};

/// Reads a WGS 84 position in whichever format it is written.
///
/// Angles are degrees, degrees and minutes, or these and seconds; marks and leading zeros may be
/// left out. The hemispheres are told by N, S, E and W before or behind, then in any order, or by
/// signs, then latitude first. The decimal sign is point or comma. Squares may be larger than those
/// that formatPosition() writes; their centre is the position. Behind the zone of UTM, N and S are
/// bands, or hemispheres where the band cannot be meant. A text of more than 100 characters is not
/// read.
JTBASE_EXPORT PositionReading readPosition(QStringView text);

/// Tells the user why the text was not read, and shows how a position is written in `wanted`. Empty
/// for a text that was read.
JTBASE_EXPORT QString positionRefusal(const PositionReading& reading, CoordFormat wanted);
