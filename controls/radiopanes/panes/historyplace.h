// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace RadioPanes {

/// A place in the picture of many sweeps.
struct HistoryPlace
{
    quint64 timeUs = 0;           ///< microseconds since 1970-01-01T00:00 UTC
    double hertz = 0;             ///< the frequency
    double stepHz = 0;            ///< No figure of the frequency is finer; 0 when it is not known.
    std::optional<float> levelDb; ///< The highest one that is shown there.
};

/// Makes the text that panes show of the place below the mouse pointer.
using PlaceText = std::function<QString(const HistoryPlace& place)>;

} // namespace RadioPanes
