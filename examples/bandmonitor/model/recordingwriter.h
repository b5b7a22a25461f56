// SPDX-License-Identifier: MIT
#pragma once

#include "recording.h"

#include <QByteArray>
#include <QString>

namespace bandmonitor {

/// Appends `sweep` to `text` in the format that RecordingParser reads: one line per hop, each
/// ended by a line feed. Reading it again gives the same sweep: levels and steps are written with
/// as many decimals as that takes (two at least), a bin without a level as `nan`.
void appendSweepText(QByteArray& text, const Sweep& sweep);

/// A line that RecordingParser takes for a remark, naming the receiver at `address`; empty without
/// one.
QByteArray receiverRemark(const QString& address);

/// The whole of `sweep` as text; see appendSweepText().
QByteArray sweepText(const Sweep& sweep);

/// The hops of `sweep` with those of their bins that lie in part or whole between the frequencies;
/// valid as long as the sweep is.
std::vector<Segment> hopsBetween(const Sweep& sweep, double lowHz, double highHz);

} // namespace bandmonitor
