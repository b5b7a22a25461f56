// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

/// How a column of a list looked: width in pixels, place in the header, and whether it was hidden.
struct ColumnRecord
{
    int width = 0; ///< Of a hidden column what it had before.
    int visualIndex = 0;
    bool isHidden = false;

    bool operator==(const ColumnRecord&) const = default;
};

/// Column records as text: "120,0,0;80,1,1;" holds the widths 120 and 80, the visual indices 0 and
/// 1, and a hidden second column.
namespace ColumnText {

QString format(const QList<ColumnRecord>& columns);
/// Nothing for a text with anything but rows of three numbers, and for a column of more than
/// `largestWidth` pixels.
std::optional<QList<ColumnRecord>> parse(const QString& text);

inline constexpr int largestWidth = 1 << 14;

} // namespace ColumnText
