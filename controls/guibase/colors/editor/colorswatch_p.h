// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>

class QColor;

/// A square of the colour in a black frame, 13 by 13 pixels.
QPixmap colorSwatch(const QColor& color);
