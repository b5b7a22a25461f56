// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

/// Checks of stored splitter states: QSplitter::restoreState() reserves the memory that a state
/// claims to need.
namespace SplitterStateCheck {

/// The number of widgets whose sizes the state holds. Nothing when the bytes are no whole state as
/// QSplitter::saveState() writes it, with at most 4096 widgets and a handle of at most 256 pixels.
std::optional<int> widgetCount(const QByteArray& state);

} // namespace SplitterStateCheck
