// SPDX-License-Identifier: MIT
#pragma once

#include "recording.h"

#include <QByteArray>

namespace bandmonitor {

/// Appends `sweep` to `text` in the format that RecordingParser reads: one line per hop, each
/// ended by a line feed. Reading it again gives the same sweep: levels and steps are written with
/// as many decimals as that takes (two at least), a bin without a level as `nan`.
void appendSweepText(QByteArray& text, const Sweep& sweep);

/// The whole of `sweep` as text; see appendSweepText().
QByteArray sweepText(const Sweep& sweep);

} // namespace bandmonitor
