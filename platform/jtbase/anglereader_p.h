// SPDX-License-Identifier: MIT
#pragma once

#include "positionreader.h"

#include <QString>

/// Reads latitude and longitude as angles. `plain` is in capital letters, with '°', '\'' and '"'
/// for all marks, and one kind of digits, signs and blanks.
PositionReading readAngles(const QString& plain);
