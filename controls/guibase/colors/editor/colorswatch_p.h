// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

class QColor;

/// A square of the colour in a black frame, 13 by 13 pixels.
QIcon colorSwatch(const QColor& color);
