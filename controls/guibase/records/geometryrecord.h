// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRect>

#include <optional>

/// What QWidget::saveGeometry() writes, read without the toolkit: QWidget::restoreGeometry() itself
/// takes nearly any bytes, and places windows where they say. All rectangles are in pixels of the
/// desktop; those of child widgets in pixels of the parent.
struct GeometryRecord
{
    quint16 version = 3;      ///< 1 to 3
    quint16 minorVersion = 0; ///< Not judged: kept as it is.
    QRect frame;              ///< With the frame that the window manager drew.
    QRect normal;             ///< Without it, as when neither maximized nor full screen.
    qint32 screen = 0;        ///< Index of the screen.
    quint8 maximized = 0;     ///< Not 0 when it was.
    quint8 fullScreen = 0;    ///< Not 0 when it was.
    qint32 screenWidth = 0;   ///< 0 before version 2: not known.
    QRect geometry;           ///< Without the frame, as it was; `normal` before version 3.

    bool isNormal() const { return maximized == 0 && fullScreen == 0; }
    /// Takes the screen and the place from another record; size and state stay.
    void moveTo(const GeometryRecord& other);
    bool operator==(const GeometryRecord&) const = default;

    /// Nothing for bytes of another length, magic number or version, and for rectangles with a
    /// negative size or an edge further away than `farthestPosition`.
    static std::optional<GeometryRecord> fromBytes(const QByteArray& bytes);
    QByteArray toBytes() const;

    static constexpr int farthestPosition = 1 << 20;
};
