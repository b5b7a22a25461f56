// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QSize>

#include <functional>

class QPainter;

/// An icon of this size that is drawn anew for every scale of the screen, and so is sharp on each.
/// Whole coordinates lie in the middle of pixels at a scale of 1, so that thin lines fill them.
QIcon drawnIcon(const QSize& size, const std::function<void(QPainter&)>& draw);
